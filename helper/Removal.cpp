// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "helper/Removal.h"

#include "helper/Log.h"
#include "helper/SystemBus.h"

#include <algorithm>
#include <cstdint>
#include <poll.h>
#include <string>
#include <utility>

namespace quillon {

namespace {

// The root process waits for the bus and the service manager to read their folders again.
constexpr std::chrono::seconds answerTime{90};

Refusal refusalOf(const sdbus::Error &error)
{
    const bool isPackages = std::string{error.getName()} == contract::error::ownedByPackage.name;
    return {isPackages ? contract::error::ownedByPackage : contract::error::uninstallFailed,
        error.getMessage()};
}

} // namespace

Outcome requestRemoval()
{
    try {
        // A connection of its own: what reaches the helper meanwhile waits in the other one.
        const auto connection = connectToSystemBus();
        const auto proxy = sdbus::createProxy(
            *connection, bus::Name{contract::removalName}, bus::Path{contract::removal::path});
        const auto call = proxy->createMethodCall(bus::Interface{contract::removal::interface},
            bus::Member{contract::removal::remove.name});
        proxy->callMethod(call, answerTime);
        return std::nullopt;
    } catch (const sdbus::Error &error) {
        return refusalOf(error);
    }
}

RemovalService::RemovalService(sdbus::IConnection &connection, Uninstallation uninstallation)
    : m_connection{connection}
    , m_uninstallation{std::move(uninstallation)}
    , m_object{sdbus::createObject(connection, bus::Path{contract::removal::path})}
{
    bus::publish(*m_object, contract::removal::interface,
        {{contract::removal::remove, [this](const sdbus::MethodCall &call) { remove(call); }}});
    m_connection.requestName(bus::Name{contract::removalName});
}

void RemovalService::remove(const sdbus::MethodCall &call)
{
    if (m_isDone) {
        throw sdbus::Error{bus::ErrorName{contract::error::uninstallFailed.name}, "Done already."};
    }
    m_isDone = true;
    if (const auto outcome = m_uninstallation()) {
        throw sdbus::Error{bus::ErrorName{outcome->error.name}, outcome->message};
    }
    call.createReply().send();
}

bool RemovalService::serve(std::chrono::milliseconds limit)
{
    const auto end = std::chrono::steady_clock::now() + limit;
    while (!m_isDone) {
        if (bus::processOne(m_connection)) {
            continue;
        }
        const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(
            end - std::chrono::steady_clock::now());
        if (left <= std::chrono::milliseconds{0}) {
            return false;
        }
        const auto poll = m_connection.getEventLoopPollData();
        const int own = poll.getPollTimeout();
        const auto wait = static_cast<int>(left.count());
        pollfd descriptor{poll.fd, poll.events, 0};
        ::poll(&descriptor, 1, own < 0 ? wait : std::min(own, wait));
    }
    return true;
}

} // namespace quillon
