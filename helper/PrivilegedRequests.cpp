// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "helper/PrivilegedRequests.h"

#include "helper/Log.h"

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

void logOutcome(const PrivilegedRequest &request, const Outcome &outcome)
{
    std::string line = request.caller + ' ' + request.action;
    for (const auto &[key, value] : request.details) {
        line += ' ' + key + '=' + harmless(value);
    }
    line += outcome ? std::string{": "} + outcome->error.name : std::string{": done"};
    logLine(line);
}

} // namespace

PrivilegedRequests::PrivilegedRequests(Callers &callers, Authority &authority, Limits limits)
    : m_callers{callers}
    , m_authority{authority}
    , m_limits{limits}
{
}

void PrivilegedRequests::submit(PrivilegedRequest request)
{
    const auto refuse = [&request](const Refusal &refusal) {
        logOutcome(request, refusal);
        request.reply(refusal);
    };
    if (m_waiting.size() >= m_limits.total || countOf(request.caller) >= m_limits.perCaller) {
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
    m_waiting.emplace(number, Waiting{std::move(request), std::move(*check), std::nullopt, false});
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
    if (countOf(*user) >= m_limits.perUser) {
        finish(number, tooMany());
        return;
    }
    auto &waiting = place->second;
    waiting.user = user;
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
    if (place == m_waiting.end()) {
        return;
    }
    place->second.asked = false;
    if (!authorized) {
        finish(number, notAuthorized("The caller is not authorized to do this."));
        return;
    }
    // The decision was about a caller who may have left since: what he asked for is no longer
    // wanted.
    const auto caller = place->second.request.caller;
    m_callers.isPresent(caller, [this, number](bool present) { presenceKnown(number, present); });
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
    finish(number, operation());
}

void PrivilegedRequests::finish(Number number, const Outcome &outcome)
{
    auto node = m_waiting.extract(number);
    logOutcome(node.mapped().request, outcome);
    node.mapped().request.reply(outcome);
}

void PrivilegedRequests::callerVanished(const std::string &caller)
{
    std::vector<Number> numbers;
    for (const auto &[number, waiting] : m_waiting) {
        if (waiting.request.caller == caller) {
            numbers.push_back(number);
        }
    }
    for (const auto number : numbers) {
        if (const auto &waiting = m_waiting.at(number); waiting.asked) {
            m_authority.cancel(waiting.check);
        }
        finish(number, notAuthorized("The caller has left the bus."));
    }
}

void PrivilegedRequests::refuseAll()
{
    while (!m_waiting.empty()) {
        const auto &[number, waiting] = *m_waiting.begin();
        if (waiting.asked) {
            m_authority.cancel(waiting.check);
        }
        finish(number, notAuthorized("The helper ends."));
    }
}

std::size_t PrivilegedRequests::countOf(const std::string &caller) const
{
    return static_cast<std::size_t>(std::count_if(m_waiting.begin(), m_waiting.end(),
        [&](const auto &entry) { return entry.second.request.caller == caller; }));
}

std::size_t PrivilegedRequests::countOf(std::uint32_t user) const
{
    return static_cast<std::size_t>(std::count_if(m_waiting.begin(), m_waiting.end(),
        [&](const auto &entry) { return entry.second.user == user; }));
}

} // namespace quillon
