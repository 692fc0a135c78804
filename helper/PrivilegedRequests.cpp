// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "helper/PrivilegedRequests.h"

#include "helper/Log.h"
#include "helper/RequestLog.h"

#include <algorithm>
#include <array>
#include <sys/random.h>
#include <utility>
#include <vector>

namespace quillon {

namespace {

Refusal notAuthorized(const char *why)
{
    return {contract::error::notAuthorized, why};
}

Refusal tooMany()
{
    return {contract::error::tooManyRequests, "Too many requests are waiting for a decision."};
}

/// 128 random bits, so that nobody can name another's check; none when the kernel gives none.
std::optional<std::string> unguessableName()
{
    std::array<unsigned char, 16> bytes{};
    if (getrandom(bytes.data(), bytes.size(), 0) != static_cast<ssize_t>(bytes.size())) {
        return std::nullopt;
    }
    static constexpr char digits[] = "0123456789abcdef";
    std::string name = "quillon-";
    for (unsigned char byte : bytes) {
        name += digits[byte >> 4U];
        name += digits[byte & 15U];
    }
    return name;
}

std::string lineOf(const PrivilegedRequest &request)
{
    std::string line = request.caller + ' ' + request.action;
    for (const auto &[key, value] : request.details) {
        line += ' ' + key + '=' + harmless(value);
    }
    return line;
}

std::string refusedRequestsOf(std::optional<std::uint32_t> user)
{
    return "refused requests of " +
           (user ? "user " + std::to_string(*user) : std::string{"unidentified callers"});
}

} // namespace

PrivilegedRequests::PrivilegedRequests(
    Callers &callers, Authority &authority, RequestLog &log, Limits limits)
    : m_callers{callers}
    , m_authority{authority}
    , m_log{log}
    , m_limits{limits}
{
}

bool PrivilegedRequests::hasRoomFor(const std::string &caller) const
{
    const auto ofCaller = m_byCaller.find(caller);
    const bool callerIsFull =
        ofCaller != m_byCaller.end() && ofCaller->second.size() >= m_limits.perCaller;
    return !callerIsFull && m_waiting.size() - m_identified < m_limits.unidentified;
}

void PrivilegedRequests::submit(PrivilegedRequest request)
{
    const auto refuse = [&](const Refusal &refusal) {
        logRefusal(request, std::nullopt, refusal);
        request.reply(refusal);
    };
    if (!hasRoomFor(request.caller)) {
        refuse(tooMany());
        return;
    }
    auto check = unguessableName();
    if (!check) {
        refuse(notAuthorized("The kernel gave no random bytes."));
        return;
    }
    const auto number = ++m_last;
    const auto caller = request.caller;
    m_byCaller[caller].insert(number);
    m_waiting.emplace(number, Waiting{std::move(request), std::move(*check), {}});
    m_callers.userOf(caller, [this, number](auto user) { userKnown(number, user); });
}

void PrivilegedRequests::userKnown(Number number, std::optional<std::uint32_t> user)
{
    const auto place = m_waiting.find(number);
    if (place == m_waiting.end()) {
        return;
    }
    if (!user) {
        finish(number, notAuthorized("The caller has left the bus."));
        return;
    }
    auto &waiting = place->second;
    waiting.user = user;
    const bool isRoom = m_countOfUser[*user] < m_limits.perUser && m_identified < m_limits.total;
    ++m_countOfUser[*user];
    ++m_identified;
    if (!isRoom) {
        finish(number, tooMany());
        return;
    }
    if (const auto refusal = waiting.request.precondition()) {
        finish(number, refusal);
        return;
    }
    waiting.asked = true;
    // Copies: an answer that comes at once ends the request while its question is still being
    // asked.
    const auto caller = waiting.request.caller;
    const auto action = waiting.request.action;
    const auto details = waiting.request.details;
    const auto check = waiting.check;
    m_authority.authorize(caller, action, details, check,
        [this, number](bool authorized) { decided(number, authorized); });
}

void PrivilegedRequests::decided(Number number, bool authorized)
{
    const auto place = m_waiting.find(number);
    if (place == m_waiting.end() || !place->second.asked) {
        return;
    }
    place->second.asked = false;
    if (place->second.answered) {
        forget(number);
        return;
    }
    if (!authorized) {
        finish(number, notAuthorized("The caller is not authorized to do this."));
        return;
    }
    place->second.held = true;
    proceed(number);
}

bool PrivilegedRequests::isBehindAnother(Number number) const
{
    const auto &request = m_waiting.at(number).request;
    const auto &ofCaller = m_byCaller.at(request.caller);
    return !request.subject.empty() &&
           std::any_of(ofCaller.begin(), ofCaller.lower_bound(number), [&](auto earlier) {
               const auto &before = m_waiting.at(earlier);
               return !before.answered && before.request.subject == request.subject;
           });
}

void PrivilegedRequests::proceed(Number number)
{
    if (isBehindAnother(number)) {
        return;
    }
    // The decision was about a caller who may have left since: what he asked for is no longer
    // wanted.
    auto &waiting = m_waiting.at(number);
    waiting.held = false;
    const auto caller = waiting.request.caller;
    m_callers.isPresent(caller, [this, number](bool present) { presenceKnown(number, present); });
}

void PrivilegedRequests::proceedWithHeld(const std::string &caller)
{
    const auto ofCaller = m_byCaller.find(caller);
    if (ofCaller == m_byCaller.end()) {
        return;
    }
    // A copy, and looked up each: whoever proceeds may end at once, and others with him.
    for (const auto numbers = ofCaller->second; const auto number : numbers) {
        const auto place = m_waiting.find(number);
        if (place != m_waiting.end() && place->second.held) {
            proceed(number);
        }
    }
}

void PrivilegedRequests::presenceKnown(Number number, bool present)
{
    const auto place = m_waiting.find(number);
    if (place == m_waiting.end()) {
        return;
    }
    if (!present) {
        finish(number, notAuthorized("The caller has left the bus."));
        return;
    }
    const auto operation = std::move(place->second.request.operation);
    place->second.carriedOut = true;
    finish(number, operation());
}

void PrivilegedRequests::answer(Waiting &waiting, const Outcome &outcome)
{
    waiting.answered = true;
    if (waiting.carriedOut) {
        // Also what failed halfway may have changed the system.
        m_log.done(lineOf(waiting.request) + ": " +
                   (outcome ? outcome->error.name + (' ' + harmless(outcome->message)) : "done"));
    } else if (outcome) {
        logRefusal(waiting.request, waiting.user, *outcome);
    }
    waiting.request.reply(outcome);
    waiting.request.operation = nullptr;
    waiting.request.reply = nullptr;
}

void PrivilegedRequests::finish(Number number, const Outcome &outcome)
{
    answer(m_waiting.at(number), outcome);
    forget(number);
}

void PrivilegedRequests::forget(Number number)
{
    const auto node = m_waiting.extract(number);
    const auto &waiting = node.mapped();
    if (const auto ofCaller = m_byCaller.find(waiting.request.caller);
        ofCaller->second.erase(number) != 0 && ofCaller->second.empty()) {
        m_byCaller.erase(ofCaller);
    }
    if (waiting.user) {
        --m_identified;
        if (const auto ofUser = m_countOfUser.find(*waiting.user); --ofUser->second == 0) {
            m_countOfUser.erase(ofUser);
        }
    }
    proceedWithHeld(waiting.request.caller);
}

void PrivilegedRequests::cancel(Number number, const char *why)
{
    auto &waiting = m_waiting.at(number);
    if (waiting.answered) {
        return;
    }
    if (!waiting.asked) {
        finish(number, notAuthorized(why));
        return;
    }
    answer(waiting, notAuthorized(why));
    // Last: it may answer at once.
    m_authority.cancel(std::string{waiting.check});
}

void PrivilegedRequests::callerVanished(const std::string &caller)
{
    const auto ofCaller = m_byCaller.find(caller);
    if (ofCaller == m_byCaller.end()) {
        return;
    }
    // The latest first: none of them is to proceed because one before it has ended.
    const auto numbers = ofCaller->second;
    for (auto number = numbers.rbegin(); number != numbers.rend(); ++number) {
        cancel(*number, "The caller has left the bus.");
    }
}

void PrivilegedRequests::refuseAll()
{
    std::vector<Number> numbers;
    for (const auto &[number, waiting] : m_waiting) {
        numbers.push_back(number);
    }
    // As above.
    for (auto number = numbers.rbegin(); number != numbers.rend(); ++number) {
        cancel(*number, "The helper ends.");
    }
    m_waiting.clear();
    m_byCaller.clear();
    m_countOfUser.clear();
    m_identified = 0;
}

void PrivilegedRequests::logRefusal(
    const PrivilegedRequest &request, std::optional<std::uint32_t> user, const Refusal &refusal)
{
    m_log.limited(refusedRequestsOf(user), lineOf(request) + ": " + refusal.error.name);
}

} // namespace quillon
