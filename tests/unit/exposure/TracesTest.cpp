// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "exposure/Traces.h"

#include <gtest/gtest.h>

namespace quillon::test {

using namespace Qt::StringLiterals;

namespace {

using namespace std::chrono_literals;
using Kind = Trace::Kind;
using Lasts = Trace::Lasts;
using Answer = ExposureFacts::Answer;
using Made = ExposureFacts::Made;

QByteArray hex(const char *text)
{
    return QByteArray::fromHex(text);
}

class TracesTest : public testing::Test
{
protected:
    /// Of an interface of which all is known, and nothing told.
    TracesTest()
    {
        facts.owner = u"NetworkManager"_s;
        facts.hostName = u"laptop"_s;
        facts.ipv4 = {.isUsed = Answer::No};
        facts.ipv6 = {.isUsed = Answer::No};
        facts.ipv6Addresses = QList<ExposureFacts::Ipv6Address>();
        facts.avahi.isTold = Answer::No;
        facts.resolvedMdns.isTold = Answer::No;
        facts.resolvedLlmnr.isTold = Answer::No;
        facts.login.isUsed = Answer::No;
    }

    QList<Trace> traces(std::optional<std::chrono::seconds> sinceChange = std::nullopt) const
    {
        return tracesOf(u"eth0"_s, facts, link, sinceChange);
    }
    QList<Trace> of(Kind kind) const
    {
        QList<Trace> found;
        for (const Trace &trace : traces()) {
            if (trace.kind == kind) {
                found.append(trace);
            }
        }
        return found;
    }
    Lasts lastingOf(const ExposureFacts::Ipv6Address &address)
    {
        facts.ipv6Addresses = {address};
        const auto found = of(Kind::Ipv6Address);
        EXPECT_EQ(found.size(), 1);
        return found.value(0).lasts;
    }
    void useDhcp()
    {
        facts.ipv4 = {.isUsed = Answer::Yes,
            .sendsName = Answer::Yes,
            .sendsIdentifier = Answer::Yes,
            .identifier = hex("01020000005411"),
            .identifierMade = Made::OfAddressInUse};
    }

    ExposureFacts facts;
    LinkAddresses link{.inUse = hex("020000005411"), .hardware = hex("00005e005301")};
};

TEST_F(TracesTest, AreNoneWhereNothingIsTold)
{
    EXPECT_TRUE(traces().isEmpty());
}

TEST_F(TracesTest, AreNotKnownRatherThanNoneWhereNothingCouldBeRead)
{
    facts = {};
    QList<Kind> kinds;
    for (const Trace &trace : traces()) {
        kinds.append(trace.kind);
        EXPECT_EQ(trace.value, QString());
        EXPECT_EQ(trace.lasts, Lasts::Unknown);
    }
    EXPECT_EQ(
        kinds, QList<Kind>({Kind::DhcpName, Kind::DhcpIdentifier, Kind::Duid, Kind::Ipv6Address,
                   Kind::MulticastName, Kind::LinkLocalName, Kind::LoginIdentity}));
}

TEST_F(TracesTest, TellTheNameThatGoesWithDhcp)
{
    useDhcp();
    const Trace own = of(Kind::DhcpName).value(0);
    EXPECT_EQ(own.value, u"laptop"_s);
    EXPECT_EQ(own.lasts, Lasts::Always);
    EXPECT_EQ(own.owner, u"NetworkManager"_s);
    EXPECT_EQ(own.setting, u"ipv4.dhcp-send-hostname no"_s);
    facts.ipv4.name = u"other"_s;
    EXPECT_EQ(of(Kind::DhcpName).value(0).value, u"other"_s);
    facts.ipv4.sendsName = Answer::No;
    EXPECT_TRUE(of(Kind::DhcpName).isEmpty());
    facts.ipv4.sendsName = Answer::Unknown;
    EXPECT_EQ(of(Kind::DhcpName).value(0).value, QString());
}

TEST_F(TracesTest, LeaveOutANameThatEveryComputerMayHave)
{
    useDhcp();
    facts.resolvedLlmnr.isTold = Answer::Yes;
    facts.avahi.isTold = Answer::Yes;
    for (const auto &name : {u""_s, u"localhost"_s, u"LOCALHOST.localdomain"_s, u"(none)"_s}) {
        facts.hostName = name;
        EXPECT_TRUE(of(Kind::DhcpName).isEmpty()) << qPrintable(name);
        EXPECT_TRUE(of(Kind::LinkLocalName).isEmpty()) << qPrintable(name);
        EXPECT_TRUE(of(Kind::MulticastName).isEmpty()) << qPrintable(name);
    }
    facts.hostName = u"localhost-of-mine"_s;
    EXPECT_EQ(of(Kind::DhcpName).size(), 1);
}

TEST_F(TracesTest, SayNothingOfDhcpForAStaticAddress)
{
    EXPECT_TRUE(of(Kind::DhcpName).isEmpty());
    EXPECT_TRUE(of(Kind::DhcpIdentifier).isEmpty());
    facts.ipv4.isUsed = Answer::Unknown;
    EXPECT_EQ(of(Kind::DhcpName).value(0).value, QString());
    EXPECT_EQ(of(Kind::DhcpIdentifier).size(), 1);
    facts.ipv4.sendsName = Answer::No;
    facts.ipv4.sendsIdentifier = Answer::No;
    EXPECT_TRUE(of(Kind::DhcpName).isEmpty()) << "whether it is used or not";
}

TEST_F(TracesTest, TellTheIdentifierAsItIsSent)
{
    useDhcp();
    EXPECT_EQ(of(Kind::DhcpIdentifier).value(0).value, u"01:02:00:00:00:54:11"_s);
    EXPECT_EQ(of(Kind::DhcpIdentifier).value(0).lasts, Lasts::FollowsAddress);
    facts.ipv4.identifier = hex("0100005e005301");
    EXPECT_EQ(of(Kind::DhcpIdentifier).value(0).lasts, Lasts::NamesHardwareAddress);
    facts.ipv4.identifier.clear();
    facts.ipv4.identifierMade = Made::OfMachine;
    EXPECT_EQ(of(Kind::DhcpIdentifier).value(0).lasts, Lasts::Always);
    EXPECT_EQ(of(Kind::DhcpIdentifier).value(0).value, QString());
}

TEST_F(TracesTest, TellTheDuidWhereThereMayBeOne)
{
    facts.ipv6 = {.isUsed = Answer::Yes,
        .sendsName = Answer::Yes,
        .sendsIdentifier = Answer::Yes,
        .identifier = hex("0003000100005e005301")};
    EXPECT_EQ(of(Kind::Duid).value(0).lasts, Lasts::NamesHardwareAddress);
    EXPECT_EQ(of(Kind::DhcpName).value(0).value, u"laptop"_s) << "DHCP for IPv6 alone sends it too";
    facts.ipv6 = {};
    EXPECT_TRUE(of(Kind::Duid).isEmpty()) << "no router has told of itself";
    facts.ipv6Addresses = {{.octets = hex("20010db8000000001234567890abcdef")}};
    EXPECT_EQ(of(Kind::Duid).size(), 1);
}

TEST_F(TracesTest, RecognizeIpv6AddressesByThemselves)
{
    EXPECT_EQ(lastingOf({.octets = hex("fe8000000000000002005efffe005301"), .isLinkLocal = true}),
        Lasts::NamesHardwareAddress);
    EXPECT_EQ(lastingOf({.octets = hex("20010db800000000000000fffe005411"), .hasEnd = true}),
        Lasts::FollowsAddress);
    EXPECT_EQ(lastingOf({.octets = hex("20010db800000000000000fffe005422"), .hasEnd = true}),
        Lasts::NamesOtherAddress);
    EXPECT_EQ(lastingOf({.octets = hex("20010db8000000001234567890abcdef"), .hasEnd = true}),
        Lasts::OnThisNetwork);
    EXPECT_EQ(lastingOf({.octets = hex("fe800000000000001234567890abcdef"), .isLinkLocal = true}),
        Lasts::OnThisNetwork);
    EXPECT_EQ(lastingOf({.octets = hex("20010db8000000000000000000000007")}), Lasts::Always)
        << "set by hand";
    EXPECT_EQ(lastingOf({.octets = hex("20010db8000000001234567890abcdef"), .isTemporary = true}),
        Lasts::ChangesByItself);
    link.inUse = link.hardware;
    EXPECT_EQ(lastingOf({.octets = hex("fe8000000000000002005efffe005301"), .isLinkLocal = true}),
        Lasts::FollowsAddress);
}

TEST_F(TracesTest, TakeALeasedIpv6AddressForTheDuids)
{
    const ExposureFacts::Ipv6Address leased{
        .octets = hex("20010db8000000000000000000000107"), .hasEnd = true, .isLeased = true};
    EXPECT_EQ(lastingOf(leased), Lasts::Unknown);
    facts.ipv6.identifier = hex("00020000ab11deadbeefdeadbeef");
    EXPECT_EQ(lastingOf(leased), Lasts::OnThisNetwork);
    facts.ipv6 = {.identifierMade = Made::OfAddressInUse};
    EXPECT_EQ(lastingOf(leased), Lasts::FollowsAddress);
}

TEST_F(TracesTest, TellWhatWasKeptAcrossAChange)
{
    facts.ipv6Addresses = {{.octets = hex("20010db8000000001234567890abcdef"), .age = 60s},
        {.octets = hex("20010db8000000001234567890abcdee"), .age = 10s},
        {.octets = hex("20010db8000000001234567890abcded")}};
    const auto kept = [](const QList<Trace> &traces) {
        QList<bool> each;
        for (const Trace &trace : traces) {
            each.append(trace.isKept);
        }
        return each;
    };
    EXPECT_EQ(kept(traces(30s)), QList<bool>({true, false, false}));
    EXPECT_EQ(kept(traces(59s)), QList<bool>({false, false, false})) << "at the same moment";
    EXPECT_EQ(kept(traces()), QList<bool>({false, false, false})) << "no change is known";
}

TEST_F(TracesTest, ListOnlySoManyIpv6AddressesAndCountTheOthers)
{
    facts.ipv6Addresses =
        QList<ExposureFacts::Ipv6Address>(300, {.octets = hex("20010db8000000001234567890abcdef")});
    EXPECT_EQ(of(Kind::Ipv6Address).size(), mostIpv6Addresses);
    EXPECT_EQ(of(Kind::MoreIpv6Addresses).value(0).value, u"292"_s);
    facts.ipv6Addresses->resize(mostIpv6Addresses);
    EXPECT_TRUE(of(Kind::MoreIpv6Addresses).isEmpty());
}

TEST_F(TracesTest, TellTheNamesOnTheLink)
{
    facts.avahi = {.isTold = Answer::Yes, .name = u"laptop-2.local"_s};
    facts.resolvedMdns = {.isTold = Answer::Yes};
    facts.resolvedLlmnr = {.isTold = Answer::Yes};
    const auto names = of(Kind::MulticastName);
    ASSERT_EQ(names.size(), 2);
    EXPECT_EQ(names.at(0).value, u"laptop-2.local"_s);
    EXPECT_EQ(names.at(0).setting, u"deny-interfaces=eth0"_s);
    EXPECT_EQ(names.at(1).value, u"laptop.local"_s);
    EXPECT_EQ(names.at(1).owner, u"NetworkManager"_s);
    EXPECT_EQ(of(Kind::LinkLocalName).value(0).value, u"laptop"_s);
    facts.owner.clear();
    EXPECT_EQ(of(Kind::LinkLocalName).value(0).owner, u"systemd-resolved"_s);
}

TEST_F(TracesTest, SayOnceThatMdnsIsNotKnown)
{
    facts.avahi.isTold = Answer::Unknown;
    facts.resolvedMdns.isTold = Answer::Unknown;
    EXPECT_EQ(of(Kind::MulticastName).size(), 1);
    facts.resolvedMdns.isTold = Answer::Yes;
    ASSERT_EQ(of(Kind::MulticastName).size(), 2) << "one name is known, perhaps not the only one";
    EXPECT_EQ(of(Kind::MulticastName).at(1).value, QString());
}

TEST_F(TracesTest, TellTheIdentityOfTheLogin)
{
    facts.login = {.isUsed = Answer::Yes, .identity = u"alice@example.org"_s};
    EXPECT_EQ(of(Kind::LoginIdentity).value(0).value, u"alice@example.org"_s);
    EXPECT_EQ(of(Kind::LoginIdentity).value(0).setting, u"802-1x.anonymous-identity"_s);
    facts.login.anonymousIdentity = u"anonymous"_s;
    EXPECT_EQ(of(Kind::LoginIdentity).value(0).value, u"anonymous (alice@example.org)"_s);
    facts.login = {.isUsed = Answer::Yes};
    EXPECT_EQ(of(Kind::LoginIdentity).value(0).value, QString()) << "it is a secret, or asked for";
    facts.login = {};
    EXPECT_EQ(of(Kind::LoginIdentity).size(), 1);
}

} // namespace
} // namespace quillon::test
