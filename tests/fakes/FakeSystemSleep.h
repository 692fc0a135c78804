// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/SystemSleep.h"

#include <functional>
#include <utility>

namespace quillon::test {

/// The machine's sleep, of which the test tells.
class FakeSystemSleep : public SystemSleep
{
public:
    void watch(std::function<void()> resumed) override { m_resumed = std::move(resumed); }
    void resume() { m_resumed(); }

private:
    std::function<void()> m_resumed;
};

} // namespace quillon::test
