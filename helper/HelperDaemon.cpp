// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "helper/HelperDaemon.h"

#include "contract/Names.h"
#include "helper/Log.h"
#include "helper/SystemBus.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdint>
#include <cstring>
#include <limits>
#include <poll.h>
#include <utility>

namespace quillon {

namespace {

using namespace std::chrono_literals;

// Users that the bus is asked for at once. With a question to polkit and one about presence for
// each of the 32 requests that wait, this stays below the 128 answers that the bus lets us await.
constexpr std::size_t mostQuestions = 32;
// Between two looks at everything else, so that a flood of messages holds nothing up.
constexpr int messagesAtOnce = 64;
// What went wrong may go wrong again at once; it shall not take the whole processor.
constexpr int errorPauseMilliseconds = 10;
constexpr int noDescriptor = -1;
// Longer than a person has for a prompt: who waits longer waits for what came in meanwhile.
constexpr std::chrono::seconds longestFinish{150};
// A service manager stops who gives his name back (TimeoutStopSec is 10 s): what had reached the
// helper before is still served.
constexpr std::chrono::seconds finishAfterName{7};
// The bus takes answers within milliseconds, unless it holds too many that nobody reads.
constexpr std::chrono::seconds longestOutput{5};
constexpr std::chrono::seconds lastOutput{1};

std::chrono::steady_clock::time_point now()
{
    return std::chrono::steady_clock::now();
}

bool isOwnership(sd_bus_message &answer)
{
    constexpr std::uint32_t primaryOwner = 1; // DBUS_REQUEST_NAME_REPLY_PRIMARY_OWNER
    std::uint32_t result = 0;
    return sd_bus_message_is_method_error(&answer, nullptr) == 0 &&
           sd_bus_message_read(&answer, "u", &result) > 0 && result == primaryOwner;
}

} // namespace

HelperDaemon::HelperDaemon(sd_bus &bus, KernelLink &kernel, Uninstallation uninstallation,
    Superseded superseded, std::chrono::milliseconds idlePeriod)
    : m_bus{bus}
    , m_superseded{std::move(superseded)}
    , m_log{now, logLine}
    , m_addressChange{kernel}
    , m_busCallers{bus}
    , m_callers{m_busCallers, mostQuestions}
    , m_authority{bus, m_log}
    , m_requests{m_callers, m_authority, m_log, {}}
    , m_idle{idlePeriod, now()}
    , m_methods{bus, m_requests, m_log,
          {[this] { m_idle.used(now()); }, m_addressChange,
              [this, uninstall = std::move(uninstallation)] {
                  auto outcome = uninstall();
                  m_uninstalled = !outcome;
                  return outcome;
              }}}
{
}

bool HelperDaemon::run(int stopDescriptor)
{
    if (!begin()) {
        return false;
    }
    serve(stopDescriptor);
    const bool ended = isConnected() && m_name == NameState::Owned;
    leave(stopDescriptor);
    if (!isStuck()) {
        finishOutput(m_bus, lastOutput);
    }
    return ended;
}

bool HelperDaemon::begin()
{
    // Departures first: no caller's may be missed. Nothing here waits for an answer: meanwhile
    // messages of any size would pile up.
    return m_busCallers.watchDepartures([this](const std::string &caller) {
        m_requests.callerVanished(caller);
    }) && m_methods.publish() &&
           sd_bus_request_name_async(
               &m_bus, nullptr, contract::helperName, 0, nameAnswered, this) >= 0;
}

int HelperDaemon::nameAnswered(sd_bus_message *answer, void *self, sd_bus_error *)
{
    auto *daemon = static_cast<HelperDaemon *>(self);
    daemon->m_name = isOwnership(*answer) ? NameState::Owned : NameState::Refused;
    daemon->m_idle.used(now());
    return 0;
}

int HelperDaemon::nameReleased(sd_bus_message *, void *self, sd_bus_error *)
{
    static_cast<HelperDaemon *>(self)->m_name = NameState::Released;
    return 0;
}

void HelperDaemon::serve(int stopDescriptor)
{
    handleMessagesUntil(stopDescriptor, [this] { return isTimeToLeave(); });
    m_deadline = IdlePeriod::Time::max();
    if (isStuck()) {
        logLine("ended: the bus takes no more answers, as somebody does not read his");
    }
}

bool HelperDaemon::isTimeToLeave()
{
    const bool somebodyWaits = m_requests.waiting() > 0;
    if (somebodyWaits) {
        m_idle.used(now());
    }
    if (m_uninstalled || m_name == NameState::Refused || m_idle.isOver(now())) {
        return true;
    }
    if (!m_superseded()) {
        return false;
    }
    // Whoever keeps asking must not keep an older helper in its place.
    m_deadline = std::min(m_deadline, now() + longestFinish);
    return !somebodyWaits;
}

void HelperDaemon::leave(int stopDescriptor)
{
    // From here on the bus starts a new helper for whoever calls the name. What it had given to
    // this one before comes before its answer to this, and is served to the end. No answer comes
    // when the bus reads nothing, or when messages without end are before it.
    m_deadline = now() + finishAfterName;
    if (sd_bus_release_name_async(&m_bus, nullptr, contract::helperName, nameReleased, this) >= 0) {
        m_idle.used(now());
        handleMessagesUntil(noDescriptor, [this] { return m_name == NameState::Released; });
    }
    const auto nobodyWaits = [this] { return m_requests.waiting() == 0; };
    if (!m_isStopped) {
        handleMessagesUntil(noDescriptor, nobodyWaits);
    }
    m_deadline = now() + longestFinish;
    handleMessagesUntil(stopDescriptor, nobodyWaits);
    m_requests.refuseAll();
    m_log.flush();
}

void HelperDaemon::handleMessagesUntil(int stopDescriptor, const std::function<bool()> &isOver)
{
    for (;;) {
        const bool more = processMessages();
        if (isOver() || now() >= m_deadline || !isConnected() || isStuck() ||
            !waitForMessages(stopDescriptor, more ? 0ms : timeToWait())) {
            return;
        }
    }
}

bool HelperDaemon::isConnected() const
{
    return sd_bus_is_open(&m_bus) > 0;
}

bool HelperDaemon::outputWaits()
{
    if (!isOutputWaiting(m_bus)) {
        m_outputWaitsSince.reset();
        return false;
    }
    m_outputWaitsSince = m_outputWaitsSince.value_or(now());
    return true;
}

bool HelperDaemon::isStuck()
{
    return outputWaits() && now() - *m_outputWaitsSince >= longestOutput;
}

bool HelperDaemon::processMessages()
{
    int errors = 0;
    for (int i = 0; i < messagesAtOnce; ++i) {
        // Nothing more is taken in while answers wait to go out, so that few pile up.
        if (outputWaits() && !takesOutput(m_bus, 0ms)) {
            return false;
        }
        const int result = sd_bus_process(&m_bus, nullptr);
        if (result == 0 || !isConnected()) {
            return false;
        }
        if (result < 0) {
            // Mostly it ends with one message.
            m_log.limited("messages that could not be read",
                std::string{"a message could not be read: "} + std::strerror(-result));
            ++errors;
        }
    }
    if (errors == messagesAtOnce) {
        ::poll(nullptr, 0, errorPauseMilliseconds);
    }
    return true;
}

std::chrono::milliseconds HelperDaemon::timeToWait() const
{
    // Somebody who thinks at a prompt keeps the helper from being idle.
    auto limit = std::chrono::milliseconds{std::numeric_limits<int>::max()};
    if (m_requests.waiting() == 0) {
        limit = m_idle.left(now());
    }
    limit = std::min(limit, m_log.left().value_or(limit));
    limit =
        std::clamp(std::chrono::ceil<std::chrono::milliseconds>(m_deadline - now()), 0ms, limit);
    if (m_outputWaitsSince) {
        const auto left = *m_outputWaitsSince + longestOutput - now();
        return std::clamp(std::chrono::ceil<std::chrono::milliseconds>(left), 0ms, limit);
    }
    std::uint64_t busTime = 0;
    if (sd_bus_get_timeout(&m_bus, &busTime) > 0) {
        const auto due = std::chrono::steady_clock::time_point{std::chrono::microseconds{
            std::min<std::uint64_t>(busTime, std::numeric_limits<std::int64_t>::max() / 1000)}};
        const auto left = std::chrono::ceil<std::chrono::milliseconds>(due - now());
        limit = std::clamp(left, 0ms, limit);
    }
    return limit;
}

bool HelperDaemon::waitForMessages(int stopDescriptor, std::chrono::milliseconds limit)
{
    const int events = m_outputWaitsSince ? POLLOUT : sd_bus_get_events(&m_bus);
    std::array<pollfd, 2> descriptors{
        {{sd_bus_get_fd(&m_bus), static_cast<short>(std::max(events, 0)), 0},
            {stopDescriptor, POLLIN, 0}}};
    const int ready =
        ::poll(descriptors.data(), descriptors.size(), static_cast<int>(limit.count()));
    m_log.flush();
    const bool isAskedToStop = ready > 0 && (descriptors[1].revents & POLLIN) != 0;
    m_isStopped = m_isStopped || isAskedToStop;
    return !isAskedToStop;
}

} // namespace quillon
