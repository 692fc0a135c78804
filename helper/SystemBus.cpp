// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "helper/SystemBus.h"

#include "helper/Log.h"

#include <chrono>
#include <cstdlib>
#include <memory>
#include <poll.h>

namespace quillon {

namespace {

constexpr char systemBusAddress[] = "unix:path=/run/dbus/system_bus_socket";
// The service manager reads every unit again.
constexpr std::chrono::seconds answerTime{30};

void tell(sdbus::IConnection &connection, const char *name, const char *path, const char *interface,
    const char *method)
{
    try {
        const auto proxy = sdbus::createProxy(connection, bus::Name{name}, bus::Path{path});
        const auto call = proxy->createMethodCall(bus::Interface{interface}, bus::Member{method});
        proxy->callMethod(call, answerTime);
    } catch (const sdbus::Error &error) {
        logLine(std::string{method} + " of " + name + ": " + harmless(error.getName()));
    }
}

bool isThere(sdbus::IConnection &connection, const std::string &name)
{
    try {
        const auto proxy = sdbus::createProxy(
            connection, bus::Name{"org.freedesktop.DBus"}, bus::Path{"/org/freedesktop/DBus"});
        auto call = proxy->createMethodCall(
            bus::Interface{"org.freedesktop.DBus"}, bus::Member{"NameHasOwner"});
        call << name;
        auto reply = proxy->callMethod(call, answerTime);
        bool owned = false;
        reply >> owned;
        return owned;
    } catch (const sdbus::Error &) {
        return false;
    }
}

} // namespace

std::unique_ptr<sdbus::IConnection> connectToSystemBus()
{
    setenv("DBUS_SYSTEM_BUS_ADDRESS", systemBusAddress, 1);
    return sdbus::createSystemBusConnection();
}

void reloadBus(sdbus::IConnection &connection)
{
    tell(connection, "org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus",
        "ReloadConfig");
}

void reloadServiceManager(sdbus::IConnection &connection)
{
    // A call would start it where the bus can, and it would be running for nothing.
    if (isThere(connection, "org.freedesktop.systemd1")) {
        tell(connection, "org.freedesktop.systemd1", "/org/freedesktop/systemd1",
            "org.freedesktop.systemd1.Manager", "Reload");
    }
}

void waitUntilGone(
    sdbus::IConnection &connection, const char *name, std::chrono::milliseconds limit)
{
    constexpr std::chrono::milliseconds pause{20};
    const auto end = std::chrono::steady_clock::now() + limit;
    while (isThere(connection, name) && std::chrono::steady_clock::now() < end) {
        poll(nullptr, 0, static_cast<int>(pause.count()));
    }
}

} // namespace quillon
