// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "updates/UpdateFeed.h"
#include "updates/UpdateSource.h"

namespace quillon {

class SettingsStore;

/// The list of versions that was accepted last. It is kept in the settings as it came, with its
/// signature, and believed no more there than when a server sends it. Main thread.
class AcceptedFeed
{
public:
    /// The program by whose name a list says that it is about us.
    static const QString application;

    AcceptedFeed(SettingsStore &settings, UpdateSource source);

    /// Keeps `file` as the latest list if it is signed, about this program, neither expired nor
    /// from the future, and not older than the one that is kept. Otherwise nothing changes, and the
    /// Error is an UpdateProblem.
    std::optional<Error> accept(const QByteArray &file, const QDateTime &now);

    /// The newest release of the list that is kept, if it is newer than this program.
    std::optional<UpdateRelease> offer() const;

private:
    Result<UpdateFeed> read(const QByteArray &file) const;

    SettingsStore &m_settings;
    const UpdateSource m_source;
};

} // namespace quillon
