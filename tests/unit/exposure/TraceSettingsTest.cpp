// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "exposure/TraceSettings.h"

#include <gtest/gtest.h>

namespace quillon::test {

using namespace Qt::StringLiterals;

namespace {

using Kind = Trace::Kind;
using Lasts = Trace::Lasts;

const QString networkManager = u"NetworkManager"_s;
const QString networkd = u"systemd-networkd"_s;

TEST(TraceSettings, AreThoseOfTheOwner)
{
    EXPECT_EQ(settingAgainst(Kind::DhcpName, Lasts::Always, networkManager, u"eth0"_s),
        u"ipv4.dhcp-send-hostname no"_s);
    EXPECT_EQ(
        settingAgainst(Kind::DhcpName, Lasts::Always, networkd, u"eth0"_s), u"SendHostname=no"_s);
    EXPECT_EQ(settingAgainst(Kind::DhcpName, Lasts::Always, u"iwd"_s, u"eth0"_s), QString());
    EXPECT_EQ(settingAgainst(Kind::DhcpName, Lasts::Always, {}, u"eth0"_s), QString());
}

TEST(TraceSettings, GoByWhatAnIpv6AddressIsMadeOf)
{
    const auto of = [](Lasts lasts, const QString &owner) {
        return settingAgainst(Kind::Ipv6Address, lasts, owner, u"eth0"_s);
    };
    EXPECT_EQ(
        of(Lasts::NamesHardwareAddress, networkManager), u"ipv6.addr-gen-mode stable-privacy"_s);
    EXPECT_EQ(of(Lasts::OnThisNetwork, networkManager),
        u"connection.stable-id ${CONNECTION}/${RANDOM}"_s);
    EXPECT_EQ(of(Lasts::OnThisNetwork, networkd), u"IPv6PrivacyExtensions=yes"_s);
    EXPECT_EQ(of(Lasts::FollowsAddress, {}), u"net.ipv6.conf.eth0.addr_gen_mode=3"_s);
    EXPECT_EQ(of(Lasts::OnThisNetwork, {}), u"net.ipv6.conf.eth0.use_tempaddr=2"_s);
    EXPECT_EQ(of(Lasts::ChangesByItself, networkManager), QString()) << "nothing is left to do";
}

TEST(TraceSettings, AreNoneWhereNoLessCanBeShown)
{
    for (const Kind kind : {Kind::DhcpIdentifier, Kind::Duid}) {
        EXPECT_EQ(
            settingAgainst(kind, Lasts::FollowsAddress, networkManager, u"eth0"_s), QString());
        EXPECT_NE(settingAgainst(kind, Lasts::Always, networkManager, u"eth0"_s), QString());
    }
}

TEST(TraceSettings, NameTheInterfaceAsItIs)
{
    EXPECT_EQ(settingAgainst(Kind::MulticastName, Lasts::Always, u"Avahi"_s, u"%1<b>"_s),
        u"deny-interfaces=%1<b>"_s);
}

} // namespace
} // namespace quillon::test
