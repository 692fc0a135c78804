// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Reachability.h"

#include <utility>

namespace quillon::test {

/// The internet, there or not.
class FakeReachability : public Reachability
{
public:
    bool isReachable() override
    {
        ++questions;
        return reachable;
    }

    void watch(std::function<void()> changed) override { m_changed = std::move(changed); }
    /// A portal lets us in, or closes.
    void become(bool isReachable)
    {
        reachable = isReachable;
        m_changed();
    }

    bool reachable = true;
    int questions = 0;

private:
    std::function<void()> m_changed;
};

} // namespace quillon::test
