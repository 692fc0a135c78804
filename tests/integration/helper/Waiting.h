// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <thread>

namespace quillon::test {

/// Waits until `condition` holds, for other processes that nobody can hurry. False after two
/// minutes, which only a hang reaches.
template <typename Condition>
bool waitUntil(Condition condition)
{
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::minutes{2};
    while (!condition()) {
        if (std::chrono::steady_clock::now() > deadline) {
            return false;
        }
        std::this_thread::sleep_for(std::chrono::milliseconds{5});
    }
    return true;
}

} // namespace quillon::test
