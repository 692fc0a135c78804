// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "integration/helper/RawBus.h"

#include "integration/helper/Sandbox.h"

#include <unistd.h>

namespace quillon::test {

namespace {

constexpr char busName[] = "org.freedesktop.DBus";
constexpr char busPath[] = "/org/freedesktop/DBus";
constexpr std::uint64_t patience = 20'000'000;

} // namespace

RawBus::RawBus(const std::string &user)
{
    const auto original = geteuid();
    if (seteuid(userId(user)) != 0) {
        return;
    }
    sd_bus_open_system(&m_bus);
    // The bus looks at who connected while both say hello.
    const char *name = nullptr;
    sd_bus_get_unique_name(m_bus, &name);
    if (seteuid(original) != 0) {
        m_bus = sd_bus_flush_close_unref(m_bus);
    }
}

RawBus::~RawBus()
{
    sd_bus_flush_close_unref(m_bus);
}

std::string RawBus::uniqueName() const
{
    const char *name = nullptr;
    return sd_bus_get_unique_name(m_bus, &name) < 0 ? std::string{} : std::string{name};
}

int RawBus::send(std::uint8_t type, const std::string &destination, const char *path,
    const char *interface, const char *member, const Fill &fill)
{
    sd_bus_message *message = nullptr;
    int result = type == SD_BUS_MESSAGE_SIGNAL
                     ? sd_bus_message_new_signal(m_bus, &message, path, interface, member)
                     : sd_bus_message_new_method_call(
                           m_bus, &message, destination.c_str(), path, interface, member);
    if (result >= 0 && type == SD_BUS_MESSAGE_SIGNAL) {
        result = sd_bus_message_set_destination(message, destination.c_str());
    }
    if (result >= 0) {
        if (fill) {
            fill(message);
        }
        // Who does not want the number wants no reply either.
        std::uint64_t number = 0;
        result = sd_bus_send(m_bus, message, &number);
    }
    sd_bus_message_unref(message);
    return result;
}

void RawBus::signalAsTheBus(const std::string &destination, const char *member, const Fill &fill)
{
    send(SD_BUS_MESSAGE_SIGNAL, destination, busPath, busName, member, fill);
}

std::string RawBus::call(const std::string &destination, const char *path, const char *interface,
    const char *member, const Fill &fill)
{
    sd_bus_message *message = nullptr;
    sd_bus_message *reply = nullptr;
    sd_bus_error error{};
    int result = sd_bus_message_new_method_call(
        m_bus, &message, destination.c_str(), path, interface, member);
    if (result >= 0) {
        if (fill) {
            fill(message);
        }
        result = sd_bus_call(m_bus, message, patience, &error, &reply);
    }
    const std::string name = result >= 0             ? "done"
                             : error.name != nullptr ? std::string{error.name}
                                                     : "not sent";
    m_lastErrorText = error.message == nullptr ? "" : error.message;
    sd_bus_error_free(&error);
    sd_bus_message_unref(reply);
    sd_bus_message_unref(message);
    return name;
}

int RawBus::replyToNothing(const std::string &destination, std::uint32_t number)
{
    // A call that the victim is made to have sent.
    sd_bus_message *call = nullptr;
    sd_bus_message *reply = nullptr;
    int result = sd_bus_message_new_method_call(m_bus, &call, nullptr, "/", "a.b", "C");
    if (result >= 0) {
        result = sd_bus_message_set_sender(call, destination.c_str());
    }
    if (result >= 0) {
        result = sd_bus_message_seal(call, number, 0);
    }
    if (result >= 0) {
        result = sd_bus_message_new_method_return(call, &reply);
    }
    if (result >= 0) {
        result = sd_bus_message_append(reply, "(bba{ss})", 1, 0, 0);
    }
    if (result >= 0) {
        result = sd_bus_send(m_bus, reply, nullptr);
    }
    sd_bus_message_unref(reply);
    sd_bus_message_unref(call);
    return result;
}

std::vector<std::string> RawBus::settle()
{
    std::vector<std::string> errors;
    sd_bus_flush(m_bus);
    sd_bus_message *message = nullptr;
    while (sd_bus_process(m_bus, &message) > 0) {
        if (const auto *error = message == nullptr ? nullptr : sd_bus_message_get_error(message)) {
            errors.emplace_back(error->name);
        }
        message = sd_bus_message_unref(message);
    }
    return errors;
}

} // namespace quillon::test
