// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "helper/SystemAccounts.h"

#include <array>
#include <cerrno>
#include <cstring>
#include <grp.h>
#include <pwd.h>
#include <spawn.h>
#include <sys/wait.h>

namespace quillon {

namespace {

// Fixed: a search path could point root at another program.
constexpr char sysusers[] = "/usr/bin/systemd-sysusers";

} // namespace

std::optional<SystemAccount> helperAccount()
{
    const passwd *const entry = getpwnam(helperUser);
    if (entry == nullptr || entry->pw_uid == 0 || entry->pw_gid == 0) {
        return std::nullopt;
    }
    return SystemAccount{entry->pw_uid, entry->pw_gid};
}

std::string makeHelperAccount(const std::string &line)
{
    if (helperAccount()) {
        return {};
    }
    const auto problem = [](const std::string &why) {
        return std::string{"the system user "} + helperUser + " cannot be made: " + why;
    };
    const std::array<const char *, 4> arguments{sysusers, "--inline", line.c_str(), nullptr};
    const std::array<char *, 1> environment{nullptr};
    pid_t child = -1;
    const int result = posix_spawn(&child, sysusers, nullptr, nullptr,
        const_cast<char *const *>(arguments.data()), environment.data());
    if (result != 0) {
        return problem(std::string{sysusers} + ": " + std::strerror(result));
    }
    int status = 0;
    while (waitpid(child, &status, 0) < 0 && errno == EINTR) {
    }
    endpwent();
    if (!WIFEXITED(status) || WEXITSTATUS(status) != 0 || !helperAccount()) {
        return problem(std::string{sysusers} + " failed");
    }
    return {};
}

std::optional<gid_t> groupWithoutMembers(const std::string &name)
{
    const auto *const group = getgrnam(name.c_str());
    if (group == nullptr || group->gr_mem[0] != nullptr) {
        return std::nullopt;
    }
    const auto id = group->gr_gid;
    bool isSomebodys = false;
    setpwent();
    for (const passwd *entry = getpwent(); entry != nullptr; entry = getpwent()) {
        isSomebodys = isSomebodys || entry->pw_gid == id;
    }
    endpwent();
    return isSomebodys ? std::nullopt : std::optional{id};
}

} // namespace quillon
