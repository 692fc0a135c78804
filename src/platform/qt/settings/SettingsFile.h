// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/SettingsProblem.h"
#include "platform/qt/settings/SettingsValues.h"

#include <QByteArray>

#include <mutex>
#include <optional>
#include <set>
#include <utility>
#include <vector>

namespace quillon {

/// The settings file and its troubles: reads what others wrote into the values, writes what is
/// unsaved, sets a damaged file aside. It never replaces a file that it could not read. Safe from
/// every thread; one at a time reads or writes, while the values stay available.
class SettingsFile
{
public:
    enum class Patience
    {
        None, ///< a missing or damaged file is one
        Some, ///< it may be in the middle of being written: look again later
    };
    enum class Outcome
    {
        Done,
        NotYet, ///< only with Patience::Some; nothing was taken over or written
        Failed,
    };

    SettingsFile(const QString &path, SettingsValues &values);

    /// Takes over the file's content, unless it is as it was.
    Outcome read(Patience patience);
    /// The same, then writes what is unsaved. Done when nothing unsaved is left of what was there
    /// at the call.
    Outcome save(Patience patience);
    /// The problems that arose since the last call. One that lasts comes once.
    std::vector<SettingsProblem> takeProblems();

private:
    Outcome readLocked(Patience patience);
    Outcome replaceLost(Patience patience);
    Outcome setAside(const Error &damage);
    void arose(SettingsProblem::Kind kind, const Error &error, const QString &keptPath = {});

    const QString m_path;
    SettingsValues &m_values;
    std::mutex m_mutex;
    QByteArray m_lastContent; ///< as read or written last
    std::set<SettingsProblem::Kind> m_lasting;
    std::vector<SettingsProblem> m_news;
};

} // namespace quillon
