// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QString>
#include <QUrl>

namespace quillon {

/// Whether a password may be sent there: https, or the computer itself.
bool isSafeServer(const QUrl &url);
/// Whether both are at one server: scheme, host and port.
bool isSameServer(const QUrl &one, const QUrl &other);

/// The address of what is called `path` below `folder`, a slash between its parts; a part may have
/// any characters. With a slash at the end when `path` has one or is empty.
QUrl addressBelow(const QUrl &folder, const QString &path);

/// Where the files of `user` may be, the likeliest first: `typed` is what somebody typed or copied
/// from a browser or a manual. All are safe (isSafeServer), end in a slash and hold no password.
/// Empty when there is no server in it.
QList<QUrl> webDavCandidates(const QString &typed, const QString &user);

} // namespace quillon
