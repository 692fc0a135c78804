// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "helper/BusCallers.h"

#include <chrono>
#include <string_view>
#include <utility>

namespace quillon {

namespace {

constexpr char busName[] = "org.freedesktop.DBus";
constexpr char busPath[] = "/org/freedesktop/DBus";
constexpr std::chrono::seconds answerTime{10};

// Connections that have gone: the only signal the helper listens to.
constexpr char departuresMatch[] =
    "type='signal',sender='org.freedesktop.DBus',path='/org/freedesktop/DBus',"
    "interface='org.freedesktop.DBus',member='NameOwnerChanged',arg2=''";

BusMessage question(sd_bus &bus, const char *method, const std::string &name)
{
    auto call = busCall(bus, busName, busPath, busName, method);
    if (call && sd_bus_message_append(call.get(), "s", name.c_str()) < 0) {
        call.reset();
    }
    return call;
}

} // namespace

BusCallers::BusCallers(sd_bus &bus)
    : m_bus{bus}
{
}

BusCallers::~BusCallers()
{
    sd_bus_slot_unref(m_departures);
}

void BusCallers::userOf(const std::string &caller, UserAnswer answer)
{
    const auto understood = [answer](sd_bus_message &reply) {
        std::uint32_t user = 0;
        const bool isKnown = sd_bus_message_is_method_error(&reply, nullptr) == 0 &&
                             sd_bus_message_read(&reply, "u", &user) > 0;
        answer(isKnown ? std::optional{user} : std::nullopt);
    };
    const auto call = question(m_bus, "GetConnectionUnixUser", caller);
    if (!callLater(m_bus, call, answerTime, understood)) {
        answer(std::nullopt);
    }
}

void BusCallers::isPresent(const std::string &caller, PresenceAnswer answer)
{
    const auto understood = [answer](sd_bus_message &reply) {
        int present = 0;
        const bool isKnown = sd_bus_message_is_method_error(&reply, nullptr) == 0 &&
                             sd_bus_message_read(&reply, "b", &present) > 0;
        answer(isKnown && present != 0);
    };
    if (!callLater(m_bus, question(m_bus, "NameHasOwner", caller), answerTime, understood)) {
        answer(false);
    }
}

bool BusCallers::watchDepartures(Departure departed)
{
    m_departed = std::move(departed);
    return sd_bus_add_match_async(
               &m_bus, &m_departures, departuresMatch, ownerChanged, nullptr, this) >= 0;
}

int BusCallers::ownerChanged(sd_bus_message *signal, void *self, sd_bus_error *)
{
    return handleBusMessage([&] {
        // Anybody can send a signal straight to us, and the match does not look at who did: only
        // the bus writes the sender.
        const char *sender = sd_bus_message_get_sender(signal);
        const char *name = nullptr;
        const char *before = nullptr;
        const char *after = nullptr;
        if (sender != nullptr && std::string_view{sender} == busName &&
            sd_bus_message_read(signal, "sss", &name, &before, &after) > 0) {
            static_cast<BusCallers *>(self)->m_departed(name);
        }
        return 0;
    });
}

} // namespace quillon
