// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "helper/Removal.h"

#include "helper/BusCall.h"
#include "helper/SystemBus.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <poll.h>
#include <string>
#include <string_view>
#include <utility>

namespace quillon {

namespace {

// What went wrong may go wrong again at once; it shall not take the whole processor.
constexpr int errorPauseMilliseconds = 10;
// For the answer to go out.
constexpr std::chrono::seconds lastOutput{1};
// The root process waits for the bus and the service manager to read their folders again.
constexpr std::chrono::microseconds answerTime = std::chrono::seconds{90};

Refusal uninstallFailed(std::string why)
{
    return {contract::error::uninstallFailed, std::move(why)};
}

Refusal refusalOf(const sd_bus_error &error, int number)
{
    if (error.name == nullptr) {
        return uninstallFailed(std::strerror(number));
    }
    const bool isPackages = std::string_view{error.name} == contract::error::ownedByPackage.name;
    return {isPackages ? contract::error::ownedByPackage : contract::error::uninstallFailed,
        error.message == nullptr ? std::string{error.name} : std::string{error.message}};
}

} // namespace

Outcome requestRemoval()
{
    // A connection of its own: what reaches the helper meanwhile waits in the other one.
    const auto bus = connectToSystemBus();
    const auto call = bus ? busCall(*bus, contract::removalName, contract::removal::path,
                                contract::removal::interface, contract::removal::remove.name)
                          : nullptr;
    if (!call) {
        return uninstallFailed("There is no system bus.");
    }
    sd_bus_error error{};
    const int result = sd_bus_call(
        bus.get(), call.get(), static_cast<std::uint64_t>(answerTime.count()), &error, nullptr);
    const Outcome outcome = result < 0 ? Outcome{refusalOf(error, -result)} : std::nullopt;
    sd_bus_error_free(&error);
    return outcome;
}

RemovalService::RemovalService(sd_bus &bus, Uninstallation uninstallation)
    : m_bus{bus}
    , m_uninstallation{std::move(uninstallation)}
    , m_filter{contract::removal::path}
{
}

RemovalService::~RemovalService()
{
    sd_bus_slot_unref(m_slot);
}

bool RemovalService::publish()
{
    static const std::array<sd_bus_vtable, 3> table{{SD_BUS_VTABLE_START(0),
        SD_BUS_METHOD(contract::removal::remove.name, contract::removal::remove.inputSignature,
            contract::removal::remove.outputSignature, called, SD_BUS_VTABLE_UNPRIVILEGED),
        SD_BUS_VTABLE_END}};
    m_filter.allow(contract::removal::interface, contract::removal::remove);
    return m_filter.begin(m_bus) &&
           sd_bus_add_object_vtable(&m_bus, &m_slot, contract::removal::path,
               contract::removal::interface, table.data(), this) >= 0 &&
           sd_bus_request_name(&m_bus, contract::removalName, 0) >= 0;
}

int RemovalService::called(sd_bus_message *call, void *self, sd_bus_error *)
{
    return handleBusMessage([&] { return static_cast<RemovalService *>(self)->remove(*call); });
}

int RemovalService::remove(sd_bus_message &call)
{
    const bool isSecond = std::exchange(m_isDone, true);
    const auto outcome = isSecond ? Outcome{uninstallFailed("Done already.")} : m_uninstallation();
    if (!outcome) {
        return sd_bus_reply_method_return(&call, nullptr);
    }
    const sd_bus_error error{outcome->error.name, outcome->message.c_str(), 0};
    return sd_bus_reply_method_error(&call, &error);
}

bool RemovalService::serve(std::chrono::milliseconds limit)
{
    if (!publish()) {
        return false;
    }
    const auto end = std::chrono::steady_clock::now() + limit;
    while (!m_isDone && sd_bus_is_open(&m_bus) > 0) {
        const int result = sd_bus_process(&m_bus, nullptr);
        // In every round: anybody can have the bus start this process, and messages that never end
        // must not keep it.
        const auto left = std::chrono::duration_cast<std::chrono::microseconds>(
            end - std::chrono::steady_clock::now());
        if (!m_isDone && left.count() <= 0) {
            return false;
        }
        if (result < 0) {
            ::poll(nullptr, 0, errorPauseMilliseconds);
        } else if (result == 0) {
            sd_bus_wait(&m_bus, static_cast<std::uint64_t>(left.count()));
        }
    }
    finishOutput(m_bus, lastOutput);
    return m_isDone;
}

} // namespace quillon
