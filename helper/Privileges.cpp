// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "helper/Privileges.h"

#include "helper/SystemAccounts.h"

#include <cap-ng.h>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <grp.h>
#include <linux/close_range.h>
#include <sys/prctl.h>
#include <sys/stat.h>
#include <unistd.h>

// Kernel interface since 6.3; the build machine's headers may be older.
#ifndef PR_SET_MDWE
#define PR_SET_MDWE 65
#define PR_MDWE_REFUSE_EXEC_GAIN 1UL
#endif

namespace quillon {

namespace {

std::string failure(const char *what)
{
    return std::string{what} + ": " + std::strerror(errno);
}

std::optional<std::string> dropBoundingSet()
{
    for (int capability = 0; capability <= CAP_LAST_CAP; ++capability) {
        const bool bounded = prctl(PR_CAPBSET_READ, capability, 0, 0, 0) == 1;
        if (capability == CAP_NET_ADMIN || !bounded) {
            continue;
        }
        // EPERM where whoever started us has already taken CAP_SETPCAP: no_new_privs holds anyway.
        if (prctl(PR_CAPBSET_DROP, capability, 0, 0, 0) != 0 && errno != EPERM) {
            return failure("cannot narrow the bounding set");
        }
    }
    return std::nullopt;
}

/// Root becomes the helper's own user, whatever else it could. Its permitted capabilities stay, for
/// dropCapabilities() to drop.
std::optional<std::string> becomeHelperUser()
{
    const auto account = helperAccount();
    if (!account) {
        return std::string{"there is no system user "} + helperUser;
    }
    if (prctl(PR_SET_KEEPCAPS, 1, 0, 0, 0) != 0 || setgroups(0, nullptr) != 0 ||
        setresgid(account->group, account->group, account->group) != 0 ||
        setresuid(account->user, account->user, account->user) != 0 ||
        prctl(PR_SET_KEEPCAPS, 0, 0, 0, 0) != 0) {
        return failure("cannot become the helper's user");
    }
    return std::nullopt;
}

/// What the kernel says, not what a library believes: CAP_NET_ADMIN in force and nothing beside it.
/// It may be inheritable too, which gives nothing more to this process.
bool haveNetworkAdministrationAlone()
{
    if (capng_get_caps_process() != 0) {
        return false;
    }
    for (int capability = 0; capability <= CAP_LAST_CAP; ++capability) {
        const auto number = static_cast<unsigned>(capability);
        const int wanted = capability == CAP_NET_ADMIN ? 1 : 0;
        if (capng_have_capability(CAPNG_EFFECTIVE, number) != wanted ||
            capng_have_capability(CAPNG_PERMITTED, number) != wanted ||
            capng_have_capability(CAPNG_INHERITABLE, number) > wanted) {
            return false;
        }
    }
    return true;
}

std::optional<std::string> dropCapabilities()
{
    if (prctl(PR_CAP_AMBIENT, PR_CAP_AMBIENT_CLEAR_ALL, 0, 0, 0) != 0) {
        return failure("cannot clear the ambient capabilities");
    }
    // Under the unit it is so from the start, and its filter lets no capset() through.
    if (haveNetworkAdministrationAlone()) {
        return std::nullopt;
    }
    capng_clear(CAPNG_SELECT_CAPS);
    capng_update(
        CAPNG_ADD, static_cast<capng_type_t>(CAPNG_EFFECTIVE | CAPNG_PERMITTED), CAP_NET_ADMIN);
    if (capng_apply(CAPNG_SELECT_CAPS) != 0) {
        return failure("cannot drop capabilities");
    }
    if (!haveNetworkAdministrationAlone()) {
        return std::string{"the capabilities in force are not CAP_NET_ADMIN alone"};
    }
    return std::nullopt;
}

std::optional<std::string> closeInheritedDescriptors()
{
    if (close_range(STDERR_FILENO + 1, ~0U, 0) != 0) {
        return failure("cannot close inherited descriptors");
    }
    return std::nullopt;
}

} // namespace

std::optional<std::string> openStandardDescriptors()
{
    for (int descriptor : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        if (fcntl(descriptor, F_GETFD) < 0 && open("/dev/null", O_RDWR) != descriptor) {
            return failure("cannot open /dev/null");
        }
    }
    return std::nullopt;
}

bool mayAdministerNetworks()
{
    return capng_get_caps_process() == 0 &&
           capng_have_capability(CAPNG_EFFECTIVE, CAP_NET_ADMIN) != 0;
}

std::optional<std::string> keepNetworkAdministrationOnly()
{
    // Before libraries read it: whoever started us chose the environment, which could name another
    // bus.
    if (clearenv() != 0) {
        return failure("cannot clear the environment");
    }
    umask(0077);
    if (chdir("/") != 0) {
        return failure("cannot go to the root folder");
    }
    if (auto problem = closeInheritedDescriptors()) {
        return problem;
    }
    if (auto problem = dropBoundingSet()) {
        return problem;
    }
    if (geteuid() == 0) {
        if (auto problem = becomeHelperUser()) {
            return problem;
        }
    }
    if (prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) != 0) {
        return failure("cannot set no_new_privs");
    }
    if (prctl(PR_SET_DUMPABLE, 0, 0, 0, 0) != 0) {
        return failure("cannot forbid dumps");
    }
    // Not on kernels before 6.3, where the unit's filter does it.
    prctl(PR_SET_MDWE, PR_MDWE_REFUSE_EXEC_GAIN, 0UL, 0UL, 0UL);
    return dropCapabilities();
}

std::string continueAs(const char *program)
{
    // Where the unit has started us, it is inheritable already.
    if (capng_get_caps_process() == 0 &&
        capng_have_capability(CAPNG_INHERITABLE, CAP_NET_ADMIN) == 0) {
        capng_update(CAPNG_ADD, CAPNG_INHERITABLE, CAP_NET_ADMIN);
        capng_apply(CAPNG_SELECT_CAPS);
    }
    if (prctl(PR_CAP_AMBIENT, PR_CAP_AMBIENT_RAISE, CAP_NET_ADMIN, 0, 0) != 0) {
        return failure("cannot hand the capability on");
    }
    char *const arguments[] = {const_cast<char *>(program), nullptr};
    char *const environment[] = {nullptr};
    execve(program, arguments, environment);
    auto problem = failure(program);
    prctl(PR_CAP_AMBIENT, PR_CAP_AMBIENT_CLEAR_ALL, 0, 0, 0);
    return problem;
}

} // namespace quillon
