// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "helper/PolkitAuthority.h"

#include "helper/Log.h"
#include "helper/RequestLog.h"

#include <chrono>
#include <cstdint>

namespace quillon {

namespace {

constexpr char polkitName[] = "org.freedesktop.PolicyKit1";
constexpr char polkitPath[] = "/org/freedesktop/PolicyKit1/Authority";
constexpr char polkitInterface[] = "org.freedesktop.PolicyKit1.Authority";
constexpr char troubles[] = "troubles with polkit";
constexpr std::uint32_t allowUserInteraction = 1;
constexpr std::chrono::seconds decisionTime{120};

bool append(sd_bus_message *call, const Authority::Details &details)
{
    if (sd_bus_message_open_container(call, 'a', "{ss}") < 0) {
        return false;
    }
    for (const auto &[key, value] : details) {
        if (sd_bus_message_append(call, "{ss}", key.c_str(), value.c_str()) < 0) {
            return false;
        }
    }
    return sd_bus_message_close_container(call) >= 0;
}

BusMessage question(sd_bus &bus, const std::string &caller, const std::string &action,
    const Authority::Details &details, const std::string &check)
{
    auto call = busCall(bus, polkitName, polkitPath, polkitInterface, "CheckAuthorization");
    const bool isComplete =
        call &&
        sd_bus_message_append(
            call.get(), "(sa{sv})", "system-bus-name", 1, "name", "s", caller.c_str()) >= 0 &&
        sd_bus_message_append(call.get(), "s", action.c_str()) >= 0 &&
        append(call.get(), details) &&
        sd_bus_message_append(call.get(), "us", allowUserInteraction, check.c_str()) >= 0;
    if (!isComplete) {
        call.reset();
    }
    return call;
}

} // namespace

PolkitAuthority::PolkitAuthority(sd_bus &bus, RequestLog &log)
    : m_bus{bus}
    , m_log{log}
{
}

void PolkitAuthority::authorize(const std::string &caller, const std::string &action,
    const Details &details, const std::string &check, Answer answer)
{
    const auto decided = [this, check, answer](sd_bus_message &reply) {
        if (sd_bus_message_is_method_error(&reply, nullptr) != 0) {
            // After the time limit the prompt would still be open.
            cancel(check);
        }
        answer(isYes(reply));
    };
    if (!callLater(m_bus, question(m_bus, caller, action, details, check), decisionTime, decided)) {
        m_log.limited(troubles, "polkit cannot be asked");
        answer(false);
    }
}

bool PolkitAuthority::isYes(sd_bus_message &reply)
{
    if (const auto error = busErrorOf(reply); !error.empty()) {
        m_log.limited(troubles, "polkit did not decide: " + harmless(error));
        return false;
    }
    int isAuthorized = 0;
    int isChallenge = 0;
    if (sd_bus_message_has_signature(&reply, "(bba{ss})") <= 0 ||
        sd_bus_message_enter_container(&reply, 'r', "bba{ss}") <= 0 ||
        sd_bus_message_read(&reply, "bb", &isAuthorized, &isChallenge) <= 0) {
        m_log.limited(troubles, "polkit's answer was not understood");
        return false;
    }
    return isAuthorized != 0;
}

void PolkitAuthority::cancel(const std::string &check)
{
    const auto call =
        busCall(m_bus, polkitName, polkitPath, polkitInterface, "CancelCheckAuthorization");
    // No answer: an error would only mean that there was nothing left to cancel, and the bus counts
    // the answers that are awaited.
    if (!call || sd_bus_message_append(call.get(), "s", check.c_str()) < 0 ||
        sd_bus_message_set_expect_reply(call.get(), 0) < 0 ||
        sd_bus_send(&m_bus, call.get(), nullptr) < 0) {
        m_log.limited(troubles, "a check of polkit could not be canceled");
    }
}

} // namespace quillon
