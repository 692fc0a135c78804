// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>

namespace quillon {

/// Cryptographically strong random bytes. Any thread.
class RandomSource
{
public:
    virtual ~RandomSource() = default;

    /// Exactly `count` bytes, or none when the source failed.
    virtual QByteArray bytes(int count) = 0;
};

} // namespace quillon
