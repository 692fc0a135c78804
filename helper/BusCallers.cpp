// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "helper/BusCallers.h"

#include <chrono>
#include <utility>

namespace quillon {

namespace {

constexpr char busName[] = "org.freedesktop.DBus";
constexpr char busPath[] = "/org/freedesktop/DBus";
constexpr std::chrono::seconds answerTime{10};

/// Asks the bus about one name; `answer` gets what it said, or none.
template <typename Value, typename Answer>
void ask(sdbus::IProxy &proxy, const char *method, const std::string &name, Answer answer)
{
    try {
        auto call = proxy.createMethodCall(bus::Interface{busName}, bus::Member{method});
        call << name;
        bus::callLater(
            proxy, call,
            [answer](sdbus::MethodReply &reply, const sdbus::Error *error) {
                std::optional<Value> value;
                try {
                    if (error == nullptr) {
                        Value read{};
                        reply >> read;
                        value = read;
                    }
                } catch (const sdbus::Error &) {
                    value.reset();
                }
                answer(value);
            },
            answerTime);
    } catch (const sdbus::Error &) {
        answer(std::nullopt);
    }
}

} // namespace

BusCallers::BusCallers(sdbus::IConnection &connection)
    : m_bus{sdbus::createProxy(connection, bus::Name{busName}, bus::Path{busPath})}
{
}

void BusCallers::userOf(const std::string &caller, UserAnswer answer)
{
    ask<std::uint32_t>(*m_bus, "GetConnectionUnixUser", caller,
        [answer = std::move(answer)](std::optional<std::uint32_t> user) { answer(user); });
}

void BusCallers::isPresent(const std::string &caller, PresenceAnswer answer)
{
    ask<bool>(*m_bus, "NameHasOwner", caller,
        [answer = std::move(answer)](std::optional<bool> present) { answer(present == true); });
}

} // namespace quillon
