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
#include <string>

namespace quillon {

/// Something that needs authorization. Its arguments have been validated.
struct PrivilegedRequest
{
    /// The sender of the message, as the bus wrote it.
    std::string caller;
    /// The polkit action that it needs.
    std::string action;
    Authority::Details details;
    /// Carries it out; called at most once, and only when the caller may and is still there.
    std::function<Outcome()> operation;
    /// Called exactly once.
    std::function<void(const Outcome &)> reply;
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
        std::size_t total = 32;
    };

    PrivilegedRequests(Callers &callers, Authority &authority, Limits limits);
    PrivilegedRequests(const PrivilegedRequests &) = delete;
    PrivilegedRequests &operator=(const PrivilegedRequests &) = delete;

    void submit(PrivilegedRequest request);
    /// The connection `caller` has gone: its requests are refused and its prompts taken away.
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
        bool asked = false;
    };

    void userKnown(Number number, std::optional<std::uint32_t> user);
    void decided(Number number, bool authorized);
    void presenceKnown(Number number, bool present);
    void finish(Number number, const Outcome &outcome);
    std::size_t countOf(const std::string &caller) const;
    std::size_t countOf(std::uint32_t user) const;

    Callers &m_callers;
    Authority &m_authority;
    Limits m_limits;
    Number m_last = 0;
    std::map<Number, Waiting> m_waiting;
};

} // namespace quillon
