// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "helper/Authority.h"
#include "helper/Callers.h"
#include "helper/Outcome.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <set>
#include <string>

namespace quillon {

class RequestLog;

/// Something that needs authorization. Its arguments have been validated.
struct PrivilegedRequest
{
    /// The sender of the message, as the bus wrote it.
    std::string caller;
    /// The polkit action that it needs.
    std::string action;
    Authority::Details details;
    /// Looked at once, before the authority is asked about it; a refusal ends the request.
    std::function<Outcome()> precondition;
    /// Carries it out; called at most once, and only when the caller may and is still there.
    std::function<Outcome()> operation;
    /// Called exactly once.
    std::function<void(const Outcome &)> reply;
    /// What it is about: a caller's requests about the same are carried out in the order in which
    /// they were asked for, whichever the authority decides first. "" is about nothing else.
    std::string subject = {};
};

/// The only way to a privileged operation. A request waits here until the bus has named its
/// caller's user, the authority has said yes and the bus has said that the caller is still there;
/// anything else is a refusal. One thread; operations run one after the other.
class PrivilegedRequests
{
public:
    /// How many requests may wait. A user may have many connections, so there is a bound on users
    /// too: one who fills his share leaves room for the others.
    struct Limits
    {
        std::size_t perCaller = 4;
        std::size_t perUser = 8;
        /// Of known users in all. Each awaits one answer of the authority, of which the bus allows
        /// 128.
        std::size_t total = 32;
        /// Whose user the bus has not named yet. Far more than one user's connections can send, so
        /// that nobody can shut others out before it is known who he is.
        std::size_t unidentified = 4096;
    };

    PrivilegedRequests(Callers &callers, Authority &authority, RequestLog &log, Limits limits);
    PrivilegedRequests(const PrivilegedRequests &) = delete;
    PrivilegedRequests &operator=(const PrivilegedRequests &) = delete;

    /// False when submit() would refuse, whatever is asked for.
    bool hasRoomFor(const std::string &caller) const;
    void submit(PrivilegedRequest request);
    /// The connection `caller` has gone: its requests are refused and its prompts taken away. A
    /// request keeps its place until the authority has answered, for it counts at the bus so long.
    void callerVanished(const std::string &caller);
    /// The helper ends.
    void refuseAll();

    std::size_t waiting() const { return m_waiting.size(); }

private:
    /// Counts up and never repeats: a late answer meets no other request.
    using Number = std::uint64_t;

    struct Waiting
    {
        PrivilegedRequest request;
        std::string check;
        std::optional<std::uint32_t> user;
        /// The authority owes an answer.
        bool asked = false;
        bool answered = false;
        /// The authority has said yes, and an earlier request about the same may have to come
        /// first.
        bool held = false;
        /// Its operation has run, whatever came of it.
        bool carriedOut = false;
    };

    void userKnown(Number number, std::optional<std::uint32_t> user);
    void decided(Number number, bool authorized);
    bool isBehindAnother(Number number) const;
    void proceed(Number number);
    void proceedWithHeld(const std::string &caller);
    void presenceKnown(Number number, bool present);
    void answer(Waiting &waiting, const Outcome &outcome);
    void finish(Number number, const Outcome &outcome);
    void forget(Number number);
    void cancel(Number number, const char *why);
    void logRefusal(const PrivilegedRequest &request, std::optional<std::uint32_t> user,
        const Refusal &refusal);

    Callers &m_callers;
    Authority &m_authority;
    RequestLog &m_log;
    Limits m_limits;
    Number m_last = 0;
    std::map<Number, Waiting> m_waiting;
    // Found again without a look at all of them: somebody may send thousands.
    std::map<std::string, std::set<Number>> m_byCaller;
    std::map<std::uint32_t, std::size_t> m_countOfUser;
    std::size_t m_identified = 0;
};

} // namespace quillon
