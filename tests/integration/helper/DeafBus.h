// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "helper/SystemBus.h"

#include <atomic>
#include <thread>

namespace quillon::test {

/// A bus for one client: it gives every name, but never says that a name was given back, as a real
/// one does not whose limits are exhausted.
class DeafBus
{
public:
    DeafBus();
    /// The client loses its connection.
    ~DeafBus();
    DeafBus(const DeafBus &) = delete;
    DeafBus &operator=(const DeafBus &) = delete;

    /// The other end, connected like the helper to the system bus.
    SystemBus client();

    /// From now on it reads nothing, and sends calls of GetVersion until the client takes no more.
    void readNothing() { m_readsNothing = true; }
    /// The client has taken its name.
    bool isEntered() const { return m_isEntered; }
    /// The client wants to give it back.
    bool isLeft() const { return m_isLeft; }
    /// Calls that were sent after readNothing().
    int calls() const { return m_calls; }

private:
    static int received(sd_bus_message *message, void *self, sd_bus_error *error);
    void serve();
    void sendCall();

    int m_clientSocket = -1;
    sd_bus *m_bus = nullptr;
    std::atomic<bool> m_readsNothing = false;
    std::atomic<bool> m_isEntered = false;
    std::atomic<bool> m_isLeft = false;
    std::atomic<bool> m_isOver = false;
    std::atomic<int> m_calls = 0;
    std::thread m_thread;
};

} // namespace quillon::test
