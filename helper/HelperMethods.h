// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "helper/AddressChange.h"
#include "helper/BusCall.h"
#include "helper/CallFilter.h"
#include "helper/PrivilegedRequests.h"

#include <functional>
#include <string>
#include <vector>

namespace quillon {

class RequestLog;

/// The methods of contract/com.orvandel.Quillon4HelperTool.xml as the bus delivers them: reads and
/// judges their arguments, and hands what needs authorization to the requests.
class HelperMethods
{
public:
    /// What the methods lead to; all of it outlives this.
    struct Actions
    {
        /// Somebody has called one of the methods.
        std::function<void()> called;
        AddressChange &addressChange;
        /// Carries out an uninstallation that has been authorized.
        std::function<Outcome()> uninstall;
    };

    HelperMethods(sd_bus &bus, PrivilegedRequests &requests, RequestLog &log, Actions actions);
    ~HelperMethods();
    HelperMethods(const HelperMethods &) = delete;
    HelperMethods &operator=(const HelperMethods &) = delete;

    /// Offers them; false when that fails.
    bool publish();

private:
    using Method = int (HelperMethods::*)(sd_bus_message &call);

    template <Method method>
    static int called(sd_bus_message *call, void *self, sd_bus_error *error);
    template <Method method>
    void add(const contract::Method &description);

    int connectWithEndpoint(sd_bus_message &call);
    int version(sd_bus_message &call);
    int changeAddress(sd_bus_message &call);
    int uninstall(sd_bus_message &call);
    bool hasRoomFor(sd_bus_message &call);
    void submit(sd_bus_message &call, PrivilegedRequest request);
    void refuse(sd_bus_message &call, const Refusal &refusal);

    sd_bus &m_bus;
    PrivilegedRequests &m_requests;
    RequestLog &m_log;
    Actions m_actions;
    CallFilter m_filter;
    /// What the bus library keeps pointers to.
    std::vector<std::string> m_argumentNames;
    std::vector<sd_bus_vtable> m_table;
    sd_bus_slot *m_slot = nullptr;
};

} // namespace quillon
