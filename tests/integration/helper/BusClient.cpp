// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "integration/helper/BusClient.h"

#include "contract/Names.h"
#include "integration/helper/Sandbox.h"

#include <chrono>
#include <numeric>
#include <unistd.h>

namespace quillon::test {

namespace {

using namespace std::chrono_literals;

constexpr auto patience = 120s;

/// The text of the reply that `call` returns, "done" for one without, or the name of its error.
template <typename Call>
std::string answerOf(Call call)
{
    try {
        sdbus::MethodReply reply = call();
        std::string text = BusClient::done;
        if (!reply.isEmpty()) {
            reply >> text;
        }
        return text;
    } catch (const sdbus::Error &error) {
        return error.getName();
    }
}

} // namespace

std::unique_ptr<sdbus::IConnection> connectAs(const std::string &user)
{
    const auto original = geteuid();
    if (seteuid(userId(user)) != 0) {
        return nullptr;
    }
    auto connection = sdbus::createSystemBusConnection();
    // The bus asked the socket who connected; who we are afterwards does not matter to it.
    return seteuid(original) == 0 ? std::move(connection) : nullptr;
}

std::vector<std::uint8_t> someAuthorization()
{
    std::vector<std::uint8_t> bytes(contract::authorizationSize);
    std::iota(bytes.begin(), bytes.end(), std::uint8_t{1});
    return bytes;
}

BusClient::BusClient(const std::string &user)
    : m_connection{connectAs(user)}
    , m_helper{sdbus::createProxy(
          *m_connection, bus::Name{contract::helperName}, bus::Path{contract::helper::path})}
    , m_bus{sdbus::createProxy(
          *m_connection, bus::Name{"org.freedesktop.DBus"}, bus::Path{"/org/freedesktop/DBus"})}
{
}

BusClient::~BusClient()
{
    if (m_loops) {
        m_connection->leaveEventLoop();
    }
}

sdbus::MethodCall BusClient::callOf(const contract::Method &method)
{
    return m_helper->createMethodCall(
        bus::Interface{contract::helper::interface}, bus::Member{method.name});
}

std::string BusClient::send(sdbus::MethodCall &call)
{
    return answerOf([&] { return m_helper->callMethod(call, patience); });
}

std::string BusClient::version()
{
    auto call = callOf(contract::helper::getVersion);
    return send(call);
}

std::string BusClient::endpoint()
{
    auto call = callOf(contract::helper::connectWithEndpoint);
    return send(call);
}

std::string BusClient::change(const std::string &device, const std::string &address,
    bool deviceIsWiFi, const std::vector<std::uint8_t> &authorization)
{
    auto call = callOf(contract::helper::changeAddressOfDevice);
    call << device << address << deviceIsWiFi << authorization;
    return send(call);
}

std::string BusClient::uninstall(const std::vector<std::uint8_t> &authorization)
{
    auto call = callOf(contract::helper::uninstall);
    call << authorization;
    return send(call);
}

std::string BusClient::call(const std::string &destination, const std::string &path,
    const std::string &interface, const std::string &method)
{
    const auto proxy = sdbus::createProxy(*m_connection, bus::Name{destination}, bus::Path{path});
    return answerOf([&] {
        const auto call = proxy->createMethodCall(bus::Interface{interface}, bus::Member{method});
        return proxy->callMethod(call, patience);
    });
}

void BusClient::changeLater(const std::string &device, const std::string &address)
{
    if (!m_loops) {
        m_connection->enterEventLoopAsync();
        m_loops = true;
    }
    auto call = callOf(contract::helper::changeAddressOfDevice);
    call << device << address << false << someAuthorization();
    bus::callLater(
        *m_helper, call,
        [this](sdbus::MethodReply &, const sdbus::Error *error) {
            const std::lock_guard lock{m_mutex};
            ++m_answers[error == nullptr ? done : std::string{error->getName()}];
        },
        patience);
}

std::map<std::string, int> BusClient::answers() const
{
    const std::lock_guard lock{m_mutex};
    return m_answers;
}

bool BusClient::hasOwner(const std::string &name)
{
    bool owned = false;
    m_bus->callMethod("NameHasOwner")
        .onInterface("org.freedesktop.DBus")
        .withArguments(name)
        .storeResultsTo(owned);
    return owned;
}

pid_t BusClient::processOf(const std::string &name)
{
    std::uint32_t process = 0;
    m_bus->callMethod("GetConnectionUnixProcessID")
        .onInterface("org.freedesktop.DBus")
        .withArguments(name)
        .storeResultsTo(process);
    return static_cast<pid_t>(process);
}

} // namespace quillon::test
