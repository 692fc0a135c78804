// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "service/Service.h"

#include "contract/Interfaces.h"
#include "contract/Names.h"

#include <cerrno>
#include <cstdio>
#include <sys/random.h>
#include <utility>

namespace quillon::service {

namespace {

// More than any session needs; each waits for the helper for some seconds at most.
constexpr unsigned mostOpenRequests = 64;

std::vector<std::uint8_t> freshAuthorization()
{
    std::vector<std::uint8_t> bytes(contract::authorizationSize);
    ssize_t size = -1;
    do {
        // Up to 256 bytes come whole once the kernel's generator is ready.
        size = getrandom(bytes.data(), bytes.size(), 0);
    } while (size < 0 && errno == EINTR);
    return size == static_cast<ssize_t>(bytes.size()) ? bytes : std::vector<std::uint8_t>();
}

// A reply can only fail when its caller or the bus is gone; then nobody is left to be told.
template <typename Reply>
void send(const Reply &reply)
{
    try {
        reply.send();
    } catch (const sdbus::Error &error) {
        std::fprintf(stderr, "An answer was not sent: %s\n", error.what());
    }
}

} // namespace

Service::Service(PollLoop &loop, sdbus::IConnection &sessionBus, InstalledHelper installed)
    : m_installed(std::move(installed))
    , m_helper(loop)
    , m_installation(loop, m_installed.seed())
    , m_object(sdbus::createObject(sessionBus, bus::Path{contract::service::path}))
    , m_notifications(sdbus::createObject(sessionBus, bus::Path{contract::distributed::path}))
{
    bus::publish(*m_object, contract::service::interface,
        {{contract::service::installHelperTool,
             [this](sdbus::MethodCall call) { installHelperTool(std::move(call)); }},
            {contract::service::setupAuthorizationRights,
                [this](sdbus::MethodCall call) { setupAuthorizationRights(std::move(call)); }},
            {contract::service::connectWithEndpointAndAuthorization,
                [this](sdbus::MethodCall call) {
                    connectWithEndpointAndAuthorization(std::move(call));
                }}});
    bus::publish(
        *m_notifications, contract::distributed::interface, {}, {contract::distributed::posted});
    sessionBus.requestName(bus::Name{contract::serviceName});
}

void Service::begin()
{
    ++m_requests;
    ++m_openRequests;
}

void Service::answer(const sdbus::MethodCall &call)
{
    --m_openRequests;
    send(call.createReply());
}

void Service::refuse(const sdbus::MethodCall &call, const char *name, const std::string &message)
{
    --m_openRequests;
    send(call.createErrorReply(sdbus::Error(bus::ErrorName{name}, message)));
}

void Service::installHelperTool(sdbus::MethodCall call)
{
    begin();
    if (m_isInstalling) {
        refuse(call, contract::error::installFailed.name, "An installation is already running");
        return;
    }
    m_isInstalling = true;
    m_helper.askVersion([this, call](const std::string &version) {
        // Looked at now: a self-installed helper that finds a package's beside it goes when asked.
        if (version == contract::helperVersion && m_installed.isCurrent()) {
            m_isInstalling = false;
            answer(call);
        } else {
            runInstallation(call);
        }
    });
}

void Service::runInstallation(const sdbus::MethodCall &call)
{
    m_installation.start(
        [this, call](HelperInstallation::Outcome outcome, const std::string &message) {
            m_isInstalling = false;
            switch (outcome) {
            case HelperInstallation::Outcome::Installed:
                answer(call);
                announceHelperUpdated();
                return;
            case HelperInstallation::Outcome::NotAuthorized:
                refuse(call, contract::error::notAuthorized.name, message);
                return;
            case HelperInstallation::Outcome::Failed:
                refuse(call, contract::error::installFailed.name, message);
                return;
            }
        });
}

void Service::setupAuthorizationRights(sdbus::MethodCall call)
{
    begin();
    m_authorization = freshAuthorization();
    answer(call);
}

void Service::connectWithEndpointAndAuthorization(sdbus::MethodCall call)
{
    begin();
    if (m_openRequests > mostOpenRequests) {
        refuse(
            call, contract::error::tooManyRequests.name, "Too many requests wait for the helper");
        return;
    }
    if (m_authorization.empty()) {
        m_authorization = freshAuthorization();
    }
    const auto reply = [this, call](const std::string &endpoint) {
        --m_openRequests;
        auto answer = call.createReply();
        // Another build's helper counts as none, so that the program offers to install this one.
        answer << (m_installed.isCurrent() ? endpoint : std::string()) << m_authorization;
        send(answer);
    };
    m_helper.askEndpoint(reply);
}

void Service::announceHelperUpdated()
{
    auto signal = m_notifications->createSignal(bus::Interface{contract::distributed::interface},
        bus::Member{contract::distributed::posted.name});
    signal << std::string(contract::helperUpdated) << std::string(contract::helperUpdatedObject);
    m_notifications->emitSignal(signal);
}

} // namespace quillon::service
