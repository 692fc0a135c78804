// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "contract/SdBus.h"
#include "helper/AddressChange.h"
#include "helper/BusCallers.h"
#include "helper/IdlePeriod.h"
#include "helper/PolkitAuthority.h"
#include "helper/PrivilegedRequests.h"

#include <chrono>
#include <functional>
#include <memory>
#include <string>

namespace quillon {

/// The helper on the system bus: the interface of contract/com.orvandel.Quillon4HelperTool.xml, and
/// the one loop in which everything happens. It keeps nothing between two runs.
class HelperDaemon
{
public:
    /// Carries out an uninstallation that has been authorized.
    using Uninstallation = std::function<Outcome()>;

    /// `connection` to the bus, on which no event loop runs; it outlives the daemon, as `kernel`
    /// does.
    HelperDaemon(sdbus::IConnection &connection, KernelLink &kernel, Uninstallation uninstallation,
        std::chrono::milliseconds idlePeriod);
    HelperDaemon(const HelperDaemon &) = delete;
    HelperDaemon &operator=(const HelperDaemon &) = delete;

    /// Takes the name and serves until nobody has asked anything for the idle period, until
    /// `stopDescriptor` becomes readable, until it has been uninstalled, or until the bus goes
    /// away. Throws sdbus::Error when the bus refuses the name or goes away.
    void run(int stopDescriptor);

private:
    void registerMethods();
    void changeAddress(sdbus::MethodCall call);
    void uninstall(sdbus::MethodCall call);
    void serve(int stopDescriptor);
    void leave(int stopDescriptor);
    /// False when `stopDescriptor` became readable.
    bool waitForMessages(int stopDescriptor);
    void processMessages();

    sdbus::IConnection &m_connection;
    AddressChange m_addressChange;
    Uninstallation m_uninstallation;
    BusCallers m_callers;
    PolkitAuthority m_authority;
    PrivilegedRequests m_requests;
    IdlePeriod m_idle;
    bool m_uninstalled = false;
    std::unique_ptr<sdbus::IObject> m_object;
    sdbus::Slot m_departures;
};

} // namespace quillon
