// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/RandomSource.h"

namespace quillon::test {

/// Gives out the bytes that a test put in, then zeros.
class FakeRandomSource : public RandomSource
{
public:
    QByteArray bytes(int count) override
    {
        if (m_failing) {
            return {};
        }
        const QByteArray given = m_bytes.left(count).leftJustified(count, '\0');
        m_bytes.remove(0, count);
        return given;
    }

    void put(const QByteArray &bytes) { m_bytes += bytes; }
    void fail() { m_failing = true; }

private:
    QByteArray m_bytes;
    bool m_failing = false;
};

} // namespace quillon::test
