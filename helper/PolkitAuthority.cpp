// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "helper/PolkitAuthority.h"

#include "helper/Log.h"

#include <chrono>
#include <cstdint>
#include <map>
#include <utility>

namespace quillon {

namespace {

constexpr char polkitName[] = "org.freedesktop.PolicyKit1";
constexpr char polkitPath[] = "/org/freedesktop/PolicyKit1/Authority";
constexpr char polkitInterface[] = "org.freedesktop.PolicyKit1.Authority";
constexpr std::uint32_t allowUserInteraction = 1;
constexpr std::chrono::seconds decisionTime{120};

using Subject = sdbus::Struct<std::string, std::map<std::string, sdbus::Variant>>;
using Decision = sdbus::Struct<bool, bool, std::map<std::string, std::string>>;

bool isYes(sdbus::MethodReply &reply, const sdbus::Error *error)
{
    if (error != nullptr) {
        logLine("polkit did not decide: " + harmless(error->getName()));
        return false;
    }
    try {
        Decision decision;
        reply >> decision;
        return std::get<0>(decision);
    } catch (const sdbus::Error &) {
        logLine("polkit's answer was not understood");
        return false;
    }
}

} // namespace

PolkitAuthority::PolkitAuthority(sdbus::IConnection &connection)
    : m_polkit{sdbus::createProxy(connection, bus::Name{polkitName}, bus::Path{polkitPath})}
{
}

void PolkitAuthority::authorize(const std::string &caller, const std::string &action,
    const Details &details, const std::string &check, Answer answer)
{
    try {
        auto call = m_polkit->createMethodCall(
            bus::Interface{polkitInterface}, bus::Member{"CheckAuthorization"});
        const Subject subject{"system-bus-name", {{"name", sdbus::Variant{caller}}}};
        call << subject << action << details << allowUserInteraction << check;
        bus::callLater(
            *m_polkit, call,
            [this, check, answer](sdbus::MethodReply &reply, const sdbus::Error *error) {
                if (error != nullptr) {
                    // After the time limit the prompt would still be open.
                    cancel(check);
                }
                answer(isYes(reply, error));
            },
            decisionTime);
    } catch (const sdbus::Error &error) {
        logLine("polkit cannot be asked: " + harmless(error.getName()));
        answer(false);
    }
}

void PolkitAuthority::cancel(const std::string &check)
{
    try {
        auto call = m_polkit->createMethodCall(
            bus::Interface{polkitInterface}, bus::Member{"CancelCheckAuthorization"});
        call << check;
        // An error only means that there was nothing left to cancel.
        bus::callLater(
            *m_polkit, call, [](sdbus::MethodReply &, const sdbus::Error *) {}, decisionTime);
    } catch (const sdbus::Error &error) {
        logLine("polkit cannot be asked: " + harmless(error.getName()));
    }
}

} // namespace quillon
