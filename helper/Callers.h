// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

namespace quillon {

/// Who is on the bus, as the bus itself says. A caller is its unique name (":1.42"), which the bus
/// writes into every message and never gives to another connection; never a process id, which could
/// pass to another program, and never anything that the caller says of itself.
class Callers
{
public:
    using UserAnswer = std::function<void(std::optional<std::uint32_t> user)>;
    using PresenceAnswer = std::function<void(bool present)>;

    virtual ~Callers() = default;

    /// The user id of the caller's connection; none when the caller has left or the bus does not
    /// say. The answer comes later, once.
    virtual void userOf(const std::string &caller, UserAnswer answer) = 0;
    /// Whether the caller is still connected; every doubt is "no". The answer comes later, once.
    virtual void isPresent(const std::string &caller, PresenceAnswer answer) = 0;
};

} // namespace quillon
