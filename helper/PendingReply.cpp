// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "helper/PendingReply.h"

namespace quillon {

PendingReply::PendingReply(sd_bus_message &call)
{
    sd_bus *bus = sd_bus_message_get_bus(&call);
    std::uint64_t number = 0;
    auto copy =
        busCall(*bus, nullptr, contract::helper::path, contract::helper::interface, "Answer");
    if (copy && sd_bus_message_get_cookie(&call, &number) >= 0 &&
        sd_bus_message_set_sender(copy.get(), sd_bus_message_get_sender(&call)) >= 0 &&
        sd_bus_message_set_expect_reply(copy.get(), sd_bus_message_get_expect_reply(&call)) >= 0 &&
        sd_bus_message_seal(copy.get(), number, 0) >= 0) {
        m_call = std::move(copy);
    }
}

int PendingReply::send(const Outcome &outcome)
{
    const auto call = std::move(m_call);
    sd_bus_message *reply = nullptr;
    int result = 0;
    if (outcome) {
        const sd_bus_error error{outcome->error.name, outcome->message.c_str(), 0};
        result = sd_bus_message_new_method_error(call.get(), &reply, &error);
    } else {
        result = sd_bus_message_new_method_return(call.get(), &reply);
    }
    const BusMessage owned{reply};
    if (result >= 0) {
        result = sd_bus_send(nullptr, reply, nullptr);
    }
    return result < 0 ? -result : 0;
}

} // namespace quillon
