// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "contract/SdBus.h"
#include "service/HelperContact.h"
#include "service/HelperInstallation.h"
#include "service/InstalledHelper.h"

#include <memory>
#include <string>
#include <vector>

namespace quillon::service {

class PollLoop;

/// The operations of contract/com.orvandel.Quillon4XPCService.xml on one session bus connection. It
/// trusts the session it runs in, and holds no rights that the session does not have.
class Service
{
public:
    /// Owns the service's name when it returns. Throws sdbus::Error when the bus or the name cannot
    /// be had.
    Service(PollLoop &loop, sdbus::IConnection &sessionBus, InstalledHelper installed);

    /// Whether a request waits for its answer.
    bool isBusy() const { return m_openRequests > 0; }
    /// Counts requests, so that the owner can see that there was one.
    unsigned requests() const { return m_requests; }

private:
    void installHelperTool(sdbus::MethodCall call);
    void runInstallation(const sdbus::MethodCall &call);
    void setupAuthorizationRights(sdbus::MethodCall call);
    void connectWithEndpointAndAuthorization(sdbus::MethodCall call);

    void begin();
    void answer(const sdbus::MethodCall &call);
    void refuse(const sdbus::MethodCall &call, const char *name, const std::string &message);
    void announceHelperUpdated();

    InstalledHelper m_installed;
    HelperContact m_helper;
    HelperInstallation m_installation;
    std::unique_ptr<sdbus::IObject> m_object;
    std::unique_ptr<sdbus::IObject> m_notifications;
    std::vector<std::uint8_t> m_authorization;
    unsigned m_openRequests = 0;
    unsigned m_requests = 0;
    bool m_isInstalling = false;
};

} // namespace quillon::service
