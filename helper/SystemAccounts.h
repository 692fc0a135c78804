// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <sys/types.h>

namespace quillon {

/// The system user as whom the helper serves: nobody's log-in, and owner of nothing.
inline constexpr char helperUser[] = "quillon4-helper";

struct SystemAccount
{
    uid_t user;
    gid_t group;
};

/// The helper's user; none when there is no such user, or when it is root under another name.
std::optional<SystemAccount> helperAccount();

/// Makes the helper's user when there is none, by the system's own tool. `line` is one of
/// sysusers.d(5). As root. Returns what prevented it; empty on success.
std::string makeHelperAccount(const std::string &line);

/// The group `name` when no user belongs to it, so that what it may do only root can.
std::optional<gid_t> groupWithoutMembers(const std::string &name);

} // namespace quillon
