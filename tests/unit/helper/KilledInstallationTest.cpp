// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
// What a killed installation or removal leaves behind, the next one takes up: the process is killed
// before each of its system calls that changes something.
#include "unit/helper/SmallSystem.h"

#include <gmock/gmock.h>

#include <functional>
#include <set>
#include <sys/ptrace.h>
#include <sys/syscall.h>
#include <sys/wait.h>

namespace quillon {
namespace {

bool changesSomething(const __ptrace_syscall_info &call)
{
    static const std::set<long> changing{SYS_mkdirat, SYS_write, SYS_fchown, SYS_fchmod, SYS_fsync,
        SYS_renameat, SYS_renameat2, SYS_unlinkat};
    const auto number = static_cast<long>(call.entry.nr);
    return call.op == PTRACE_SYSCALL_INFO_ENTRY &&
           (changing.count(number) != 0 ||
               (number == SYS_openat && (call.entry.args[2] & O_CREAT) != 0));
}

class KilledInstallationTest : public test::SmallSystem
{
protected:
    /// Runs `work` in a process of its own and kills it before the system call number `last` of
    /// those that change something. False when there were not so many.
    static bool killedBefore(int last, const std::function<void()> &work)
    {
        const pid_t child = fork();
        if (child == 0) {
            ptrace(PTRACE_TRACEME, 0, nullptr, nullptr);
            raise(SIGSTOP);
            work();
            _exit(0);
        }
        int status = 0;
        waitpid(child, &status, 0);
        ptrace(PTRACE_SETOPTIONS, child, nullptr, PTRACE_O_TRACESYSGOOD | PTRACE_O_EXITKILL);
        int count = 0;
        while (ptrace(PTRACE_SYSCALL, child, nullptr, nullptr) == 0 &&
               waitpid(child, &status, 0) == child && WIFSTOPPED(status)) {
            __ptrace_syscall_info call{};
            ptrace(PTRACE_GET_SYSCALL_INFO, child, sizeof call, &call);
            if (changesSomething(call) && count++ == last) {
                kill(child, SIGKILL);
                waitpid(child, &status, 0);
                return true;
            }
        }
        return false;
    }
    /// The system as it was when the test began.
    void startAnew() const
    {
        // As a person would find it: whatever is there is taken away by hand.
        std::filesystem::remove_all(root + "/usr/local");
        for (const char *folder : {"/etc", "/usr/share", "/usr/lib"}) {
            std::filesystem::remove_all(root + folder);
        }
        for (const char *folder : existing) {
            makeFolders(root + folder);
        }
    }
    static constexpr const char *existing[] = {"/usr/local/share", "/etc/dbus-1/system.d",
        "/etc/systemd/system", "/usr/share/polkit-1", "/usr/lib/systemd/system"};
};

TEST_F(KilledInstallationTest, isTakenUpByTheNextInstallationOrRemoval)
{
    startAnew();
    const auto clean = listing();
    ASSERT_EQ(messageOf(install()), "done");
    const auto installed = listing();
    int kills = 0;
    for (;; ++kills) {
        startAnew();
        if (!killedBefore(kills, [this] { install(); })) {
            break;
        }
        ASSERT_EQ(messageOf(installation().uninstall()), "done") << kills;
        ASSERT_EQ(listing(), clean) << "removed after kill " << kills;
        killedBefore(kills, [this] { install(); });
        ASSERT_EQ(messageOf(install()), "done") << kills;
        ASSERT_EQ(listing(), installed) << "installed after kill " << kills;
        ASSERT_EQ(messageOf(installation().uninstall()), "done") << kills;
        ASSERT_EQ(listing(), clean) << "installed and removed after kill " << kills;
    }
    EXPECT_GT(kills, 50);
}

TEST_F(KilledInstallationTest, overAnOlderOneIsTakenUpByTheNext)
{
    startAnew();
    const auto clean = listing();
    write("/tool", "a newer program");
    ASSERT_EQ(messageOf(install()), "done");
    const auto updated = listing();
    int kills = 0;
    for (bool reached = true; reached; ++kills) {
        startAnew();
        write("/tool", "the program");
        ASSERT_EQ(messageOf(install()), "done");
        write("/tool", "a newer program");
        reached = killedBefore(kills, [this] { install(); });
        ASSERT_EQ(messageOf(install()), "done") << kills;
        ASSERT_EQ(listing(), updated) << "installed after kill " << kills;
        ASSERT_EQ(messageOf(installation().uninstall()), "done") << kills;
        write("/tool", "the program");
        ASSERT_EQ(listing(), clean) << "removed after kill " << kills;
    }
    EXPECT_GT(kills, 50);
}

TEST_F(KilledInstallationTest, thatWasARemovalIsTakenUpByTheNext)
{
    startAnew();
    const auto clean = listing();
    ASSERT_EQ(messageOf(install()), "done");
    const auto installed = listing();
    const auto uninstall = [this] { installation().uninstall(); };
    int kills = 0;
    for (bool reached = true; reached; ++kills) {
        startAnew();
        ASSERT_EQ(messageOf(install()), "done");
        reached = killedBefore(kills, uninstall);
        ASSERT_EQ(messageOf(installation().uninstall()), "done") << kills;
        ASSERT_EQ(listing(), clean) << "removed after kill " << kills;
        ASSERT_EQ(messageOf(install()), "done");
        killedBefore(kills, uninstall);
        ASSERT_EQ(messageOf(install()), "done") << kills;
        ASSERT_EQ(listing(), installed) << "installed after kill " << kills;
        ASSERT_EQ(messageOf(installation().uninstall()), "done") << kills;
        ASSERT_EQ(listing(), clean) << "installed and removed after kill " << kills;
    }
    EXPECT_GT(kills, 15);
}

} // namespace
} // namespace quillon
