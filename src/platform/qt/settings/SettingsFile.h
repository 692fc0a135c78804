// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/SettingsProblem.h"
#include "platform/qt/settings/SettingsValues.h"

#include <QByteArray>

#include <chrono>
#include <mutex>
#include <optional>
#include <set>
#include <utility>
#include <vector>

namespace quillon {

class Scheduler;

/// The settings file and its troubles: reads what others wrote into the values, writes what is
/// unsaved, sets a damaged file aside. It never replaces a file that it could not read. Safe from
/// every thread; one at a time reads or writes, while the values stay available.
///
/// A file that appears damaged, or is gone, may be in the middle of being written. It is taken for
/// what it seems once it has been the same for a second, or has not been whole for ten.
class SettingsFile
{
public:
    enum class Outcome
    {
        Done,
        NotYet, ///< look again; nothing was taken over or written
        Lost,   ///< only of read(): the file is gone or set aside, and all values are unsaved
        Failed,
    };

    /// `clock` is asked for its monotonic time only.
    SettingsFile(const QString &path, SettingsValues &values, const Scheduler &clock);

    /// Takes over the file's content, unless it is as it was.
    Outcome read();
    /// The same, then writes what is unsaved. Done when nothing unsaved is left of what was there
    /// at the call.
    Outcome save();
    /// The problems that arose since the last call. One that lasts comes once.
    std::vector<SettingsProblem> takeProblems();

private:
    /// What somebody who looks at the file sees.
    struct Sight
    {
        bool isThere = false;
        quint64 number = 0;
        qint64 changed = 0; ///< nanoseconds
        QByteArray bytes;

        bool operator==(const Sight &) const = default;
    };
    /// A sight that is not to be trusted yet.
    struct Doubt
    {
        Sight sight;
        std::chrono::milliseconds since; ///< it has been this one
        std::chrono::milliseconds begun; ///< the file has not been whole
        bool isOver = false;
    };

    Outcome readLocked();
    Sight sight(const QByteArray &bytes) const;
    bool isInDoubt(const QByteArray &bytes);
    void forgetTroubles();
    Outcome replaceLost();
    Outcome setAside(const Error &damage);
    void arose(SettingsProblem::Kind kind, const Error &error, const QString &keptPath = {});

    const QString m_path;
    SettingsValues &m_values;
    const Scheduler &m_clock;
    std::mutex m_mutex;
    QByteArray m_lastContent; ///< as read or written last
    std::optional<Doubt> m_doubt;
    std::set<SettingsProblem::Kind> m_lasting;
    std::vector<SettingsProblem> m_news;
};

} // namespace quillon
