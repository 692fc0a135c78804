// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>

#include <optional>

namespace quillon {

/// The bytes compressed (raw Deflate, RFC 1951, over a dictionary of words that changes are made
/// of, so that a file of one change gets shorter as well). Empty when there is no memory for it.
QByteArray compressed(const QByteArray &bytes);

/// The way back for any bytes. None when they are not the whole of what compressed() made, or when
/// more than `limit` bytes would come out: no more memory than that is taken.
std::optional<QByteArray> decompressed(const QByteArray &bytes, qsizetype limit);

} // namespace quillon
