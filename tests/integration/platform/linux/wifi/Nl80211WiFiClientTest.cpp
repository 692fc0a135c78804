// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/wifi/Nl80211WiFiClient.h"

#include "fakes/LogCapture.h"
#include "platform/linux/wifi/Nl80211LocationAuthorization.h"
#include "platform/linux/wifi/Nl80211Socket.h"

#include <QFileInfo>
#include <gtest/gtest.h>

#include <array>
#include <cerrno>
#include <cstddef>
#include <linux/audit.h>
#include <linux/filter.h>
#include <linux/netlink.h>
#include <linux/seccomp.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/syscall.h>

namespace quillon::test {

using namespace Qt::StringLiterals;

namespace {

/// From now on socket(2) fails for this protocol of netlink with this errno, as sandboxes do it.
void refuseNetlink(quint32 protocol, quint32 error)
{
    constexpr quint32 number = offsetof(seccomp_data, nr);
    constexpr quint32 domain = offsetof(seccomp_data, args[0]);
    constexpr quint32 wanted = offsetof(seccomp_data, args[2]);
    std::array filter{sock_filter BPF_STMT(BPF_LD | BPF_W | BPF_ABS, number),
        sock_filter BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, SYS_socket, 0, 5),
        sock_filter BPF_STMT(BPF_LD | BPF_W | BPF_ABS, domain),
        sock_filter BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, AF_NETLINK, 0, 3),
        sock_filter BPF_STMT(BPF_LD | BPF_W | BPF_ABS, wanted),
        sock_filter BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, protocol, 0, 1),
        sock_filter BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ERRNO | error),
        sock_filter BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW)};
    const sock_fprog program{.len = filter.size(), .filter = filter.data()};
    if (prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) != 0 ||
        prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &program) != 0) {
        std::_Exit(99);
    }
}

/// For a process of its own: 1 when access is refused and the client finds nothing, silently.
int isRefusedSilently(quint32 protocol, int error)
{
    refuseNetlink(protocol, static_cast<quint32>(error));
    const LogCapture log;
    const bool found = Nl80211WiFiClient().firstInterface().has_value();
    const bool silent = LogCapture::taken().isEmpty();
    return wiFiAccess() == WiFiAccess::Refused && !found && silent ? 1 : 0;
}

} // namespace

TEST(Nl80211WiFiClient, AnswersSilentlyWhereThereIsNoRadio)
{
    const LogCapture log;
    // A new network namespace holds no radio, whatever the machine has.
    const auto wifi = Nl80211WiFiClient().firstInterface();
    EXPECT_EQ(wifi, std::nullopt);
    EXPECT_EQ(LogCapture::taken(), QStringList());
}

TEST(Nl80211WiFiClient, TheSocketKnowsWhetherTheKernelIsWireless)
{
    const bool hasWireless = QFileInfo::exists(u"/sys/class/ieee80211"_s);
    Nl80211Socket socket;
    EXPECT_EQ(socket.access(), hasWireless ? WiFiAccess::Granted : WiFiAccess::NoWireless);
    EXPECT_EQ(socket.family() != 0, hasWireless);
    EXPECT_EQ(socket.ask({}).error, hasWireless ? 0 : ENOTCONN);
    EXPECT_NE(wiFiAccess(), WiFiAccess::Refused);
}

// How sandboxes refuse: a filter of system calls, a security module, a list of address families.
class Nl80211WiFiClientRefused : public ::testing::TestWithParam<int>
{
};

TEST_P(Nl80211WiFiClientRefused, IsSeenAndNotLogged)
{
    EXPECT_EXIT(std::_Exit(isRefusedSilently(NETLINK_GENERIC, GetParam())),
        ::testing::ExitedWithCode(1), "");
}

INSTANTIATE_TEST_SUITE_P(
    Sandboxes, Nl80211WiFiClientRefused, ::testing::Values(EPERM, EACCES, EAFNOSUPPORT));

TEST(Nl80211WiFiClient, RefusalOfAnotherFacilityIsNotOurs)
{
    EXPECT_EXIT(
        std::_Exit(isRefusedSilently(NETLINK_ROUTE, EPERM)), ::testing::ExitedWithCode(0), "");
}

} // namespace quillon::test
