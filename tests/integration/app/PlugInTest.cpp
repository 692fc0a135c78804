// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The road of one event: from the cable to the changed address, its history and its message.
#include "base/SettingsKeys.h"
#include "integration/app/EndToEndTest.h"
#include "store/model/QuillonModel.h"

namespace quillon::test {

using namespace Qt::StringLiterals;

using namespace std::chrono_literals;

class PlugInTest : public EndToEndTest
{
protected:
    // Once there is one more than that, the helper's answer has been handled to its end.
    bool changeIsRecorded(qsizetype before = 0)
    {
        return eventually([&] { return savedHistory(records).size() > before; });
    }

    // The card has a link and nothing that leads to the internet.
    void startWithRuleAndCable(int speed = 60)
    {
        ASSERT_TRUE(addRule(records, randomOnceRule(card)));
        startProgram(speed);
        plugCable();
        settle();
    }

    void expectOneChange()
    {
        const QString now = kernelAddress();
        EXPECT_NE(now, factoryAddress);
        EXPECT_EQ(addressesSeen(), (QStringList{factoryAddress, now}));
        ASSERT_EQ(program->helperLink.changes.size(), 1);
        EXPECT_EQ(program->helperLink.changes.first().device, card);
        EXPECT_EQ(program->record(card).value(record::current), now);

        const auto history = savedHistory(records);
        ASSERT_EQ(history.size(), 1);
        EXPECT_EQ(history.first().value(model::connection::device), card);
        EXPECT_EQ(history.first().value(model::connection::interface), u"Ethernet"_s);
        // As it was asked for: a first octet below 16 has one digit.
        const QString asked = history.first().value(model::connection::address).toString();
        EXPECT_EQ(asked.rightJustified(now.size(), u'0').toLower(), now);
        EXPECT_EQ(history.first().value(model::connection::ssid), QString());
        EXPECT_EQ(history.first().value(model::connection::bssid), QString());
        EXPECT_TRUE(history.first().value(model::connection::date).toDateTime().isValid());

        EXPECT_EQ(
            program->messages(changedTitle), QStringList{u"Your new MAC Address is: "_s + now});
        EXPECT_EQ(program->messages(notChangedTitle), QStringList());
    }

    // It comes, and no other comes after it.
    void expectOneChangeSoon()
    {
        ASSERT_TRUE(changeIsRecorded());
        letPass(2min);
        settle();
        expectOneChange();
    }
};

TEST_F(PlugInTest, APluggedInterfaceThatReachesTheInternetChangesItsAddressOnceByItself)
{
    ASSERT_NO_FATAL_FAILURE(startWithRuleAndCable());
    EXPECT_EQ(status(), u"active"_s);
    EXPECT_EQ(kernelAddress(), factoryAddress) << "nothing leads to the internet yet";

    giveLease(true);
    ASSERT_TRUE(changeIsRecorded());
    settle();
    // Were the change's own events taken for news, it would never end.
    letPass(5min);
    settle();
    expectOneChange();
    EXPECT_EQ(hasRule(), 1);
}

TEST_F(PlugInTest, WithoutAWayToTheInternetOnlyTheStatusIsUpdated)
{
    ASSERT_NO_FATAL_FAILURE(startWithRuleAndCable());
    giveLease(false);
    settle();
    letPass(5min);

    EXPECT_EQ(status(), u"active"_s);
    EXPECT_EQ(program->record(card).value(record::ipAddress), u"198.51.100.5"_s);
    EXPECT_EQ(hasRule(), 1);
    EXPECT_EQ(ruleInForce().value(model::rule::name), u"New address for eth5"_s);
    EXPECT_EQ(kernelAddress(), factoryAddress);
    EXPECT_TRUE(program->helperLink.changes.isEmpty());
    EXPECT_TRUE(savedHistory(records).isEmpty());
    EXPECT_TRUE(program->messages(changedTitle).isEmpty());
}

TEST_F(PlugInTest, ALinkThatGoesDownWithTheChangeDoesNotCauseTheNextOne)
{
    // Slow enough that the cable is back while the program still expects it, within a minute.
    ASSERT_NO_FATAL_FAILURE(startWithRuleAndCable(2));
    // As a card whose driver takes the link down for a new address: when the helper answers it has
    // gone, and the program has heard of it.
    program->helperLink.whenAnswered = [this] {
        pullCable();
        EXPECT_TRUE(eventually([this] { return status() == u"inactive"_s; }));
    };
    giveLease(true);
    ASSERT_TRUE(changeIsRecorded());
    // The change has settled by then, without a link.
    letPass(6s);
    EXPECT_EQ(status(), u"inactive"_s);
    plugCable();
    ASSERT_TRUE(eventually([this] { return status() == u"active"_s; }));
    settle();
    letPass(10s);
    settle();
    EXPECT_EQ(status(), u"active"_s);
    expectOneChange();
}

TEST_F(PlugInTest, ANewStayIsANewChange)
{
    ASSERT_NO_FATAL_FAILURE(startWithRuleAndCable());
    giveLease(true);
    ASSERT_TRUE(changeIsRecorded());
    const QString first = kernelAddress();
    // Longer than the link may be down because of the change.
    letPass(1min);
    pullCable();
    settle();
    EXPECT_EQ(status(), u"inactive"_s);
    EXPECT_EQ(kernelAddress(), first);
    plugCable();
    ASSERT_TRUE(changeIsRecorded(1));
    settle();
    letPass(2min);
    EXPECT_EQ(addressesSeen().size(), 3);
    EXPECT_EQ(program->messages(changedTitle).size(), 2);
}

TEST_F(PlugInTest, ADisabledRuleChangesNothing)
{
    QVariantMap rule = randomOnceRule(card);
    rule[model::rule::enabled] = false;
    ASSERT_TRUE(addRule(records, rule));
    startProgram();
    plugCable();
    settle();
    giveLease(true);
    settle();
    letPass(2min);
    EXPECT_EQ(hasRule(), 2);
    EXPECT_EQ(kernelAddress(), factoryAddress);
}

TEST_F(PlugInTest, OtherInterfacesAreLeftAlone)
{
    const auto before = kernelAddresses();
    ASSERT_NO_FATAL_FAILURE(startWithRuleAndCable());
    giveLease(true);
    ASSERT_TRUE(changeIsRecorded());
    letPass(1min);
    auto after = kernelAddresses();
    EXPECT_NE(after.take(card), factoryAddress);
    EXPECT_EQ(after.size(), before.size() - 1);
    for (auto link = after.cbegin(); link != after.cend(); ++link) {
        EXPECT_EQ(link.value(), before.value(link.key())) << qPrintable(link.key());
    }
}

TEST_F(PlugInTest, ARouteThatComesAfterTheAddressHasBeenToldIsAnEventOfItsOwn)
{
    ASSERT_NO_FATAL_FAILURE(startWithRuleAndCable());
    giveLease(false);
    settle();
    ASSERT_TRUE(program->helperLink.changes.isEmpty());
    administrator().run(u"ip route add default via 198.51.100.1 dev %1"_s.arg(card));
    expectOneChangeSoon();
}

TEST_F(PlugInTest, ANetworkOfIPv6AloneIsOneToo)
{
    ASSERT_NO_FATAL_FAILURE(startWithRuleAndCable());
    administrator().run(u"ip -6 addr add 2001:db8::5/64 dev %1 nodad"_s.arg(card));
    settle();
    ASSERT_TRUE(program->helperLink.changes.isEmpty());
    administrator().run(u"ip -6 route add default via 2001:db8::1 dev %1"_s.arg(card));
    expectOneChangeSoon();
}

TEST_F(PlugInTest, ARouteOfAnInterfaceThatIsNoPortMakesUpForWhatWasMissing)
{
    administrator().run(u"ip link add ifb7 type ifb && ip link set ifb7 up"_s);
    ASSERT_NO_FATAL_FAILURE(startWithRuleAndCable());
    giveLease(false);
    settle();
    ASSERT_TRUE(program->helperLink.changes.isEmpty());
    administrator().run(u"ip route add default dev ifb7"_s);
    expectOneChangeSoon();
    administrator().run(u"ip link del ifb7"_s);
}

TEST_F(PlugInTest, AnotherInterfaceThatChangesInTheSameBurstSwallowsNothing)
{
    // One sorts before the card, one after it.
    const QStringList others{u"eth4"_s, u"eth6"_s};
    for (const QString &other : others) {
        administrator().run(u"ip link add %1 type veth peer name far-%1\n"
                            "ip link set %1 addrgenmode none up\n"
                            "ip link set far-%1 addrgenmode none up"_s.arg(other));
    }
    ASSERT_TRUE(addRule(records, randomOnceRule(card)));
    ASSERT_TRUE(addRule(records, randomOnceRule(others.last())));
    const QString before = kernelAddresses().value(others.last());
    startProgram();
    plugCable();
    settle();
    administrator().run(u"printf 'addr add 203.0.113.4/24 dev eth4\\n"
                        "addr add 203.0.113.68/26 dev eth6\\n"
                        "addr add 198.51.100.5/24 dev %1\\n"
                        "route add default via 198.51.100.1 dev %1\\n' | ip -batch -"_s.arg(card));
    EXPECT_TRUE(changeIsRecorded(1));
    letPass(2min);
    settle();
    EXPECT_EQ(program->helperLink.changes.size(), 2);
    EXPECT_NE(kernelAddress(), factoryAddress);
    EXPECT_NE(kernelAddresses().value(others.last()), before);
    EXPECT_EQ(program->record(others.first()).value(record::ipAddress), u"203.0.113.4"_s);
    for (const QString &other : others) {
        administrator().run(u"ip link del %1"_s.arg(other));
    }
}

} // namespace quillon::test
