// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "helper/BusCall.h"

#include "helper/Log.h"

#include <cerrno>
#include <exception>
#include <utility>

namespace quillon {

namespace {

int passAnswer(sd_bus_message *answer, void *handler, sd_bus_error *)
{
    return handleBusMessage([&] {
        (*static_cast<BusAnswer *>(handler))(*answer);
        return 0;
    });
}

void deleteAnswer(void *handler)
{
    delete static_cast<BusAnswer *>(handler);
}

} // namespace

BusMessage busCall(
    sd_bus &bus, const char *name, const char *path, const char *interface, const char *method)
{
    sd_bus_message *call = nullptr;
    return BusMessage{sd_bus_message_new_method_call(&bus, &call, name, path, interface, method) < 0
                          ? nullptr
                          : call};
}

std::string busErrorOf(sd_bus_message &answer)
{
    const sd_bus_error *error = sd_bus_message_get_error(&answer);
    return error == nullptr || error->name == nullptr ? std::string{} : std::string{error->name};
}

bool callLater(sd_bus &bus, const BusMessage &call, std::chrono::seconds limit, BusAnswer answer)
{
    auto handler = std::make_unique<BusAnswer>(std::move(answer));
    sd_bus_slot *slot = nullptr;
    const auto microseconds = static_cast<std::uint64_t>(std::chrono::microseconds{limit}.count());
    if (!call ||
        sd_bus_call_async(&bus, &slot, call.get(), passAnswer, handler.get(), microseconds) < 0) {
        return false;
    }
    // The bus owns the slot from here on, and the slot the handler.
    sd_bus_slot_set_destroy_callback(slot, deleteAnswer);
    static_cast<void>(handler.release());
    sd_bus_slot_set_floating(slot, 1);
    sd_bus_slot_unref(slot);
    return true;
}

int handleBusMessage(const std::function<int()> &handle) noexcept
{
    try {
        return handle();
    } catch (const std::exception &error) {
        try {
            logLine(std::string{"a message could not be handled: "} + harmless(error.what()));
        } catch (const std::exception &) {
            // No memory even for the line.
        }
        return -ENOMEM;
    }
}

} // namespace quillon
