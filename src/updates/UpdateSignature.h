// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>

#include <optional>

namespace quillon {

/// What is signed of `file`: every byte before its last line, when that line is
///
///     <!-- signature: BASE64 -->
///
/// with one line feed after it and with the Ed25519 signature (RFC 8032) of those bytes that
/// belongs to `publicKey` (32 bytes). None for a missing, wrong or differently written signature.
/// For any bytes; any thread.
std::optional<QByteArray> signedContent(const QByteArray &file, const QByteArray &publicKey);

} // namespace quillon
