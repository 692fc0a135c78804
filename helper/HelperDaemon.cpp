// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "helper/HelperDaemon.h"

#include "contract/Interfaces.h"
#include "contract/Names.h"
#include "contract/Validation.h"
#include "helper/Log.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdint>
#include <limits>
#include <poll.h>
#include <utility>
#include <vector>

namespace quillon {

namespace {

// Connections that have gone: the only signal the helper listens to. Matched before the name is
// taken, so that no caller's departure can be missed.
constexpr char departuresMatch[] =
    "type='signal',sender='org.freedesktop.DBus',path='/org/freedesktop/DBus',"
    "interface='org.freedesktop.DBus',member='NameOwnerChanged',arg2=''";

std::chrono::steady_clock::time_point now()
{
    return std::chrono::steady_clock::now();
}

void answer(const sdbus::MethodCall &call, const Outcome &outcome)
{
    try {
        if (outcome) {
            call.createErrorReply(
                    sdbus::Error{bus::ErrorName{outcome->error.name}, outcome->message})
                .send();
        } else {
            call.createReply().send();
        }
    } catch (const sdbus::Error &error) {
        logLine("an answer could not be sent: " + harmless(error.getName()));
    }
}

void refuse(const sdbus::MethodCall &call, contract::ErrorName error, const char *why)
{
    logLine(bus::senderOf(call) + ' ' + call.getMemberName() + ": " + error.name);
    answer(call, Refusal{error, why});
}

bool isAuthorizationSized(const std::vector<std::uint8_t> &authorization)
{
    return authorization.size() == contract::authorizationSize;
}

constexpr char wrongSize[] = "The authorization is not 32 bytes long.";

} // namespace

HelperDaemon::HelperDaemon(sdbus::IConnection &connection, KernelLink &kernel,
    Uninstallation uninstallation, std::chrono::milliseconds idlePeriod)
    : m_connection{connection}
    , m_addressChange{kernel}
    , m_uninstallation{std::move(uninstallation)}
    , m_callers{connection}
    , m_authority{connection}
    , m_requests{m_callers, m_authority, {}}
    , m_idle{idlePeriod, now()}
    , m_object{sdbus::createObject(connection, bus::Path{contract::helper::path})}
{
    registerMethods();
    m_departures = bus::listen(connection, departuresMatch, [this](sdbus::Message &message) {
        std::string name;
        message >> name;
        m_requests.callerVanished(name);
    });
}

void HelperDaemon::registerMethods()
{
    const auto text = [this](const std::function<std::string()> &value) {
        return [this, value](const sdbus::MethodCall &call) {
            m_idle.used(now());
            auto reply = call.createReply();
            reply << value();
            reply.send();
        };
    };
    bus::publish(*m_object, contract::helper::interface,
        {{contract::helper::connectWithEndpoint,
             text([this] { return m_connection.getUniqueName(); })},
            {contract::helper::getVersion,
                text([] { return std::string{contract::helperVersion}; })},
            {contract::helper::changeAddressOfDevice,
                [this](sdbus::MethodCall call) { changeAddress(std::move(call)); }},
            {contract::helper::uninstall,
                [this](sdbus::MethodCall call) { uninstall(std::move(call)); }}});
}

void HelperDaemon::changeAddress(sdbus::MethodCall call)
{
    m_idle.used(now());
    std::string device;
    std::string addressText;
    bool deviceIsWiFi = false;
    std::vector<std::uint8_t> authorization;
    call >> device >> addressText >> deviceIsWiFi >> authorization;
    if (!isAuthorizationSized(authorization)) {
        refuse(call, contract::error::invalidAuthorization, wrongSize);
        return;
    }
    if (!contract::isValidDeviceName(device)) {
        refuse(call, contract::error::invalidDevice, "This is no name of an interface.");
        return;
    }
    const auto address = contract::unicastAddress(addressText);
    if (!address) {
        refuse(call, contract::error::invalidAddress,
            "This is no address that an interface can have.");
        return;
    }
    const Authority::Details details{
        {"device", device}, {"address", contract::addressText(*address)}};
    m_requests.submit({bus::senderOf(call), contract::actionChange, details,
        [this, device, address, deviceIsWiFi] {
            return m_addressChange.change(device, *address, deviceIsWiFi);
        },
        [call](const Outcome &outcome) { answer(call, outcome); }});
}

void HelperDaemon::uninstall(sdbus::MethodCall call)
{
    m_idle.used(now());
    std::vector<std::uint8_t> authorization;
    call >> authorization;
    if (!isAuthorizationSized(authorization)) {
        refuse(call, contract::error::invalidAuthorization, wrongSize);
        return;
    }
    m_requests.submit({bus::senderOf(call), contract::actionUninstall, {},
        [this] {
            auto outcome = m_uninstallation();
            m_uninstalled = !outcome;
            return outcome;
        },
        [call](const Outcome &outcome) { answer(call, outcome); }});
}

void HelperDaemon::run(int stopDescriptor)
{
    m_connection.requestName(bus::Name{contract::helperName});
    m_idle.used(now());
    serve(stopDescriptor);
    leave(stopDescriptor);
}

void HelperDaemon::serve(int stopDescriptor)
{
    while (!m_uninstalled) {
        processMessages();
        if (m_requests.waiting() > 0) {
            m_idle.used(now());
        } else if (m_idle.isOver(now())) {
            return;
        }
        if (!m_uninstalled && !waitForMessages(stopDescriptor)) {
            return;
        }
    }
}

void HelperDaemon::leave(int stopDescriptor)
{
    // From here on the bus starts a new helper for whoever calls the name. What it had given to
    // this one before is in the connection's queue now, and is served to the end.
    m_connection.releaseName(bus::Name{contract::helperName});
    processMessages();
    while (m_requests.waiting() > 0 && waitForMessages(stopDescriptor)) {
        processMessages();
    }
    m_requests.refuseAll();
}

bool HelperDaemon::waitForMessages(int stopDescriptor)
{
    const auto pollData = m_connection.getEventLoopPollData();
    int timeout = pollData.getPollTimeout();
    if (m_requests.waiting() == 0) {
        const auto idle = static_cast<int>(
            std::min<std::int64_t>(m_idle.left(now()).count(), std::numeric_limits<int>::max()));
        timeout = timeout < 0 ? idle : std::min(timeout, idle);
    }
    std::array<pollfd, 2> descriptors{
        {{pollData.fd, pollData.events, 0}, {stopDescriptor, POLLIN, 0}}};
    const int ready = ::poll(descriptors.data(), descriptors.size(), timeout);
    return ready <= 0 || (descriptors[1].revents & POLLIN) == 0;
}

void HelperDaemon::processMessages()
{
    while (bus::processOne(m_connection)) {
    }
}

} // namespace quillon
