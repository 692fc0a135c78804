// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace quillon {

/// The content of a regular file of somebody else's, at most so many bytes of it; none when it
/// cannot be read. Never waits for whoever is at the other end of a pipe. Any thread.
std::optional<QByteArray> readBounded(const QString &path, qsizetype most = 256 * 1024);

} // namespace quillon
