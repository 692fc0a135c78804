// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "helper/SystemBus.h"

#include "helper/BusCall.h"
#include "helper/Log.h"

#include <cerrno>
#include <chrono>
#include <cstdint>
#include <cstring>
#include <poll.h>
#include <string>
#include <sys/socket.h>

namespace quillon {

namespace {

constexpr char systemBusAddress[] = "unix:path=/run/dbus/system_bus_socket";
constexpr char busName[] = "org.freedesktop.DBus";
constexpr char busPath[] = "/org/freedesktop/DBus";
// The service manager reads every unit again.
constexpr std::chrono::microseconds answerTime = std::chrono::seconds{30};

/// The answer to a call without arguments or with one text; none after an error, which is logged.
BusMessage ask(sd_bus &bus, const char *name, const char *path, const char *interface,
    const char *method, const char *text = nullptr)
{
    const auto call = busCall(bus, name, path, interface, method);
    int result = call ? 0 : -ENOMEM;
    if (result == 0 && text != nullptr) {
        result = sd_bus_message_append(call.get(), "s", text);
    }
    sd_bus_error error{};
    sd_bus_message *answer = nullptr;
    if (result >= 0) {
        const auto limit = static_cast<std::uint64_t>(answerTime.count());
        result = sd_bus_call(&bus, call.get(), limit, &error, &answer);
    }
    if (result < 0) {
        const char *why = error.name != nullptr ? error.name : std::strerror(-result);
        logLine(std::string{method} + " of " + name + ": " + harmless(why));
    }
    sd_bus_error_free(&error);
    return BusMessage{answer};
}

bool isThere(sd_bus &bus, const char *name)
{
    int isOwned = 0;
    const auto answer = ask(bus, busName, busPath, busName, "NameHasOwner", name);
    return answer && sd_bus_message_read(answer.get(), "b", &isOwned) > 0 && isOwned != 0;
}

} // namespace

SystemBus connectToSystemBus()
{
    sd_bus *created = nullptr;
    if (sd_bus_new(&created) < 0) {
        return nullptr;
    }
    SystemBus bus{created};
    // Without descriptors in messages nobody can use ours up.
    if (sd_bus_set_address(created, systemBusAddress) < 0 ||
        sd_bus_set_bus_client(created, 1) < 0 || sd_bus_negotiate_fds(created, 0) < 0 ||
        sd_bus_start(created) < 0) {
        bus.reset();
    }
    if (bus) {
        limitOutput(*bus);
    }
    return bus;
}

void limitOutput(sd_bus &bus)
{
    // The library asks for 8 MB, which hold thousands of answers.
    constexpr int bytes = 128 * 1024;
    setsockopt(sd_bus_get_fd(&bus), SOL_SOCKET, SO_SNDBUF, &bytes, sizeof(bytes));
}

bool isOutputWaiting(sd_bus &bus)
{
    std::uint64_t waiting = 0;
    return sd_bus_is_ready(&bus) > 0 && sd_bus_get_n_queued_write(&bus, &waiting) >= 0 &&
           waiting > 0;
}

bool takesOutput(sd_bus &bus, std::chrono::milliseconds limit)
{
    pollfd output{sd_bus_get_fd(&bus), POLLOUT, 0};
    return poll(&output, 1, static_cast<int>(limit.count())) > 0;
}

void finishOutput(sd_bus &bus, std::chrono::milliseconds limit)
{
    using Clock = std::chrono::steady_clock;
    const auto end = Clock::now() + limit;
    while (isOutputWaiting(bus)) {
        const auto left = std::chrono::ceil<std::chrono::milliseconds>(end - Clock::now());
        // The library writes before it reads, so that it takes in nothing here.
        if (left.count() <= 0 || !takesOutput(bus, left) || sd_bus_process(&bus, nullptr) < 0) {
            return;
        }
    }
}

void reloadBus(sd_bus &bus)
{
    ask(bus, busName, busPath, busName, "ReloadConfig");
}

void reloadServiceManager(sd_bus &bus)
{
    // A call would start it where the bus can, and it would be running for nothing.
    if (isThere(bus, "org.freedesktop.systemd1")) {
        ask(bus, "org.freedesktop.systemd1", "/org/freedesktop/systemd1",
            "org.freedesktop.systemd1.Manager", "Reload");
    }
}

void waitUntilGone(sd_bus &bus, const char *name, std::chrono::milliseconds limit)
{
    constexpr std::chrono::milliseconds pause{20};
    const auto end = std::chrono::steady_clock::now() + limit;
    while (isThere(bus, name) && std::chrono::steady_clock::now() < end) {
        poll(nullptr, 0, static_cast<int>(pause.count()));
    }
}

} // namespace quillon
