// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "helper/Removal.h"

#include "contract/Interfaces.h"
#include "contract/Names.h"
#include "helper/BusCall.h"
#include "helper/SystemBus.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <string>
#include <string_view>
#include <utility>

namespace quillon {

namespace {

// The root process waits for the bus to read its folders again.
constexpr std::chrono::microseconds answerTime = std::chrono::seconds{90};

Refusal refusalOf(const sd_bus_error &error, int result)
{
    const std::string_view name = error.name == nullptr ? "" : error.name;
    return {name == contract::error::ownedByPackage.name ? contract::error::ownedByPackage
                                                         : contract::error::uninstallFailed,
        error.message == nullptr ? std::strerror(-result) : error.message};
}

int refuse(sd_bus_message &call, const Refusal &refusal)
{
    const sd_bus_error error{refusal.error.name, refusal.message.c_str(), 0};
    return sd_bus_reply_method_error(&call, &error);
}

std::chrono::milliseconds leftUntil(std::chrono::steady_clock::time_point end)
{
    return std::chrono::ceil<std::chrono::milliseconds>(end - std::chrono::steady_clock::now());
}

} // namespace

Outcome requestRemoval()
{
    // A connection of its own: what reaches the helper meanwhile waits in the other one.
    const auto bus = connectToSystemBus();
    if (!bus) {
        return Refusal{contract::error::uninstallFailed, "There is no system bus."};
    }
    const auto call = busCall(*bus, contract::removalName, contract::removal::path,
        contract::removal::interface, contract::removal::remove.name);
    if (!call) {
        return Refusal{contract::error::uninstallFailed, std::strerror(ENOMEM)};
    }
    sd_bus_error error{};
    const auto limit = static_cast<std::uint64_t>(answerTime.count());
    const int result = sd_bus_call(bus.get(), call.get(), limit, &error, nullptr);
    auto outcome = result < 0 ? Outcome{refusalOf(error, result)} : std::nullopt;
    sd_bus_error_free(&error);
    return outcome;
}

RemovalService::RemovalService(sd_bus &bus, Uninstallation uninstallation)
    : m_bus{bus}
    , m_uninstallation{std::move(uninstallation)}
{
}

RemovalService::~RemovalService()
{
    sd_bus_slot_unref(m_slot);
}

int RemovalService::called(sd_bus_message *call, void *self, sd_bus_error *)
{
    return handleBusMessage([&] { return static_cast<RemovalService *>(self)->remove(*call); });
}

bool RemovalService::publish()
{
    static const sd_bus_vtable start = SD_BUS_VTABLE_START(0);
    static const sd_bus_vtable method =
        SD_BUS_METHOD(contract::removal::remove.name, contract::removal::remove.inputSignature,
            contract::removal::remove.outputSignature, called, SD_BUS_VTABLE_UNPRIVILEGED);
    static const sd_bus_vtable end = SD_BUS_VTABLE_END;
    static const std::array table{start, method, end};
    return sd_bus_add_object_vtable(&m_bus, &m_slot, contract::removal::path,
               contract::removal::interface, table.data(), this) >= 0 &&
           sd_bus_request_name(&m_bus, contract::removalName, 0) >= 0;
}

int RemovalService::remove(sd_bus_message &call)
{
    if (m_isDone) {
        return refuse(call, {contract::error::uninstallFailed, "Done already."});
    }
    m_isDone = true;
    if (const auto outcome = m_uninstallation()) {
        return refuse(call, *outcome);
    }
    return sd_bus_reply_method_return(&call, "");
}

bool RemovalService::serve(std::chrono::milliseconds limit)
{
    const auto end = std::chrono::steady_clock::now() + limit;
    if (!publish()) {
        return false;
    }
    while (!m_isDone) {
        const int result = sd_bus_process(&m_bus, nullptr);
        const auto left = leftUntil(end);
        if (left.count() <= 0 || sd_bus_is_open(&m_bus) <= 0) {
            return false;
        }
        if (result <= 0) {
            sd_bus_wait(&m_bus, static_cast<std::uint64_t>(std::chrono::microseconds{left}.count()));
        }
    }
    return sd_bus_flush(&m_bus) >= 0;
}

} // namespace quillon
