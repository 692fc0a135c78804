// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>
#include <QUrl>

namespace quillon {

/// Who tells this build of new versions.
struct UpdateSource
{
    QUrl feed;       ///< of the list of versions; the user may name another one
    QByteArray key;  ///< the Ed25519 key (32 bytes) under which the list is signed, wherever it is
    QString version; ///< of this program
    /// The build was told not to look: the system's own updates bring new versions.
    bool isLeftToSystem = false;
};

} // namespace quillon
