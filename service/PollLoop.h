// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <sdbus-c++/IConnection.h>

#include <chrono>
#include <functional>
#include <map>
#include <optional>

namespace quillon::service {

/// Waits with poll(2) for the buses and descriptors of a program with one thread. Handlers may add
/// and remove what is watched.
class PollLoop
{
public:
    /// `lost` is called once, after `bus` was removed, when the bus broke off.
    void add(sdbus::IConnection &bus, std::function<void()> lost);
    void remove(sdbus::IConnection &bus);
    /// `readable` is called for as long as `descriptor` has something to read or is at its end.
    void watch(int descriptor, std::function<void()> readable);
    void unwatch(int descriptor);

    /// Waits for something to happen, at most `limit`, and handles it. False when nothing happened.
    bool waitOnce(std::optional<std::chrono::milliseconds> limit);
    /// Handles what the buses hold already, without waiting.
    bool processBuses();

private:
    bool processBus(sdbus::IConnection &connection);

    std::map<sdbus::IConnection *, std::function<void()>> m_buses;
    std::map<int, std::function<void()>> m_descriptors;
};

} // namespace quillon::service
