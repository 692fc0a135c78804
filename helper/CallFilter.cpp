// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "helper/CallFilter.h"

#include "helper/BusCall.h"

#include <algorithm>
#include <utility>

namespace quillon {

CallFilter::CallFilter(std::string path)
    : m_path{std::move(path)}
    , m_calls{{"org.freedesktop.DBus.Introspectable", "Introspect", ""},
          {"org.freedesktop.DBus.Peer", "Ping", ""}}
{
}

CallFilter::~CallFilter()
{
    sd_bus_slot_unref(m_slot);
}

void CallFilter::allow(const char *interface, const contract::Method &method)
{
    m_calls.push_back({interface, method.name, method.inputSignature});
}

bool CallFilter::begin(sd_bus &bus)
{
    return sd_bus_add_filter(&bus, &m_slot, received, this) >= 0;
}

int CallFilter::received(sd_bus_message *message, void *self, sd_bus_error *)
{
    return handleBusMessage([&] {
        const bool isCall = sd_bus_message_is_method_call(message, nullptr, nullptr) > 0;
        const char *name = isCall ? static_cast<CallFilter *>(self)->errorFor(*message) : nullptr;
        if (name == nullptr) {
            return 0;
        }
        const sd_bus_error error{name, "There is no such method here.", 0};
        sd_bus_reply_method_error(message, &error);
        return 1;
    });
}

const char *CallFilter::errorFor(sd_bus_message &call) const
{
    const char *path = sd_bus_message_get_path(&call);
    if (path == nullptr || m_path != path) {
        return SD_BUS_ERROR_UNKNOWN_OBJECT;
    }
    const auto known = std::find_if(m_calls.begin(), m_calls.end(), [&](const Call &allowed) {
        return sd_bus_message_is_method_call(&call, allowed.interface, allowed.member) > 0;
    });
    if (known == m_calls.end()) {
        return SD_BUS_ERROR_UNKNOWN_METHOD;
    }
    return sd_bus_message_has_signature(&call, known->signature) > 0 ? nullptr
                                                                     : SD_BUS_ERROR_INVALID_ARGS;
}

} // namespace quillon
