// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sync/FileProblem.h"

#include <QByteArray>
#include <QString>

namespace quillon {

class AccountKey;
class RandomSource;

/// No sealed file is longer, in bytes, and none holds more than the second when it is unpacked.
inline constexpr qsizetype longestSealedFile = qsizetype{17} << 20;
inline constexpr qsizetype longestContent = qsizetype{16} << 20;

/// The content compressed and sealed (XChaCha20-Poly1305) for a file of that name: under another
/// name, or another key, it cannot be opened. Empty when the source or the memory fails.
QByteArray sealed(
    const QByteArray &content, const QString &name, const AccountKey &key, RandomSource &source);

/// The way back, for any bytes.
ReadResult<QByteArray> opened(const QByteArray &file, const QString &name, const AccountKey &key);

} // namespace quillon
