// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/RandomSource.h"

#include <random>

namespace quillon::test {

/// The same bytes and numbers for the same seed, on every machine.
class SeededRandom : public RandomSource
{
public:
    explicit SeededRandom(quint64 seed)
        : m_engine(seed)
    {
    }

    QByteArray bytes(int count) override
    {
        QByteArray made;
        for (int i = 0; i < count; ++i) {
            made += char(m_engine() & 0xff);
        }
        return made;
    }
    /// 0 up to, but not including `end`.
    int below(int end) { return int(m_engine() % quint64(end)); }
    bool oneIn(int count) { return below(count) == 0; }

private:
    std::mt19937_64 m_engine;
};

} // namespace quillon::test
