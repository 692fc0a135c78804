// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "helper/AddressChange.h"
#include "helper/BusCallers.h"
#include "helper/HelperMethods.h"
#include "helper/IdlePeriod.h"
#include "helper/PacedCallers.h"
#include "helper/PolkitAuthority.h"
#include "helper/PrivilegedRequests.h"
#include "helper/RequestLog.h"

#include <chrono>
#include <functional>
#include <optional>

namespace quillon {

/// The helper on the system bus, from taking its name to leaving it, and the one loop in which
/// everything happens. It keeps nothing between two runs.
class HelperDaemon
{
public:
    /// Carries out an uninstallation that has been authorized.
    using Uninstallation = std::function<Outcome()>;
    /// Whether another helper is to serve from now on; looked at with every message.
    using Superseded = std::function<bool()>;

    /// `bus` is processed by nobody else; it outlives the daemon, as `kernel` does.
    HelperDaemon(sd_bus &bus, KernelLink &kernel, Uninstallation uninstallation,
        Superseded superseded, std::chrono::milliseconds idlePeriod);
    HelperDaemon(const HelperDaemon &) = delete;
    HelperDaemon &operator=(const HelperDaemon &) = delete;

    /// Takes the name and serves until nobody has asked anything for the idle period, until it is
    /// superseded (whoever asks), until `stopDescriptor` becomes readable, or until it has been
    /// uninstalled. It also ends when the bus takes no more of its answers, because somebody does
    /// not read his: the next one starts without them. False when the bus refuses the name or goes
    /// away; no message of anybody ends it.
    bool run(int stopDescriptor);

private:
    enum class NameState
    {
        Asked,
        Owned,
        Refused,
        Released,
    };

    static int nameAnswered(sd_bus_message *answer, void *self, sd_bus_error *error);
    static int nameReleased(sd_bus_message *answer, void *self, sd_bus_error *error);
    bool begin();
    void serve(int stopDescriptor);
    bool isTimeToLeave();
    void leave(int stopDescriptor);
    /// Until `isOver`, m_deadline, the end of the connection, or `stopDescriptor`.
    void handleMessagesUntil(int stopDescriptor, const std::function<bool()> &isOver);
    bool isConnected() const;
    /// True when there may be more.
    bool processMessages();
    /// For the bus to take it; what it has taken may wait there for who is to read it.
    bool outputWaits();
    /// It has waited for too long.
    bool isStuck();
    /// False when `stopDescriptor` became readable.
    bool waitForMessages(int stopDescriptor, std::chrono::milliseconds limit);
    std::chrono::milliseconds timeToWait() const;

    sd_bus &m_bus;
    Superseded m_superseded;
    RequestLog m_log;
    AddressChange m_addressChange;
    BusCallers m_busCallers;
    PacedCallers m_callers;
    PolkitAuthority m_authority;
    PrivilegedRequests m_requests;
    IdlePeriod m_idle;
    HelperMethods m_methods;
    NameState m_name = NameState::Asked;
    bool m_uninstalled = false;
    bool m_isStopped = false;
    IdlePeriod::Time m_deadline = IdlePeriod::Time::max();
    std::optional<IdlePeriod::Time> m_outputWaitsSince;
};

} // namespace quillon
