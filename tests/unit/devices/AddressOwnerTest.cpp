// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "AddressChangeFixture.h"

namespace quillon::test {

using namespace Qt::StringLiterals;

namespace {

using Outcome = AddressOwner::Outcome;

/// en1 is in the hands of a network manager.
class AddressOwnerTest : public AddressChangeFixture
{
protected:
    AddressOwnerTest() { owners.own(en1); }

    ChangeOutcome changed()
    {
        std::optional<ChangeOutcome> outcome;
        changer->updateMacAddressWithAddress(
            en1, wanted, [&outcome](const ChangeOutcome &came) { outcome = came; });
        scheduler.runPending();
        EXPECT_TRUE(outcome.has_value());
        return outcome.value_or(ChangeOutcome());
    }
    QStringList titles() const
    {
        QStringList titles;
        for (const auto &message : notifier.messages()) {
            titles.append(message.title);
        }
        return titles;
    }
};

TEST_F(AddressOwnerTest, TakesPartBeforeAndAfterTheHelper)
{
    owners.think();
    change(en1, wanted);
    EXPECT_EQ(owners.journal(), QStringList{u"prepare en1"_s});
    EXPECT_TRUE(helper.changes().isEmpty());

    owners.answer();
    owners.think();
    scheduler.runPending();
    EXPECT_EQ(owners.journal(), (QStringList{u"prepare en1"_s, u"settle en1 changed"_s}));
    EXPECT_EQ(helper.changes().size(), 1);
    EXPECT_TRUE(notifier.messages().isEmpty()) << "nothing is certain before it has settled";

    owners.answer();
    scheduler.runPending();
    EXPECT_EQ(notifier.messages(),
        told("Wi-Fi Address Changed", "Your new MAC Address is: 02:aa:bb:cc:dd:01"));
}

TEST_F(AddressOwnerTest, IsAskedForNoOtherInterface)
{
    change(en0, wanted);
    EXPECT_TRUE(owners.journal().isEmpty());
    EXPECT_EQ(helper.changes().size(), 1);
}

TEST_F(AddressOwnerTest, ThatDoesNotLetGoKeepsTheHelperFromBeingAsked)
{
    owners.keepHold();
    const ChangeOutcome outcome = changed();
    EXPECT_FALSE(outcome.isInPlace);
    EXPECT_TRUE(outcome.wasAsked) << "else the helper would count as missing";
    EXPECT_TRUE(helper.changes().isEmpty());
    EXPECT_EQ(notifier.messages(),
        told("Wi-Fi Address was not Changed", "NetworkManager did not let go of it"));
}

TEST_F(AddressOwnerTest, TakesTheInterfaceBackWhenTheHelperRefuses)
{
    helper.mood = FakeHelper::Mood::Refusing;
    EXPECT_FALSE(changed().isConfirmed);
    EXPECT_EQ(owners.journal(), (QStringList{u"prepare en1"_s, u"settle en1 unchanged"_s}));
}

TEST_F(AddressOwnerTest, TakesTheInterfaceBackWhenThereIsNoHelper)
{
    helper.installed = false;
    EXPECT_FALSE(changed().wasAsked);
    EXPECT_EQ(owners.journal(), (QStringList{u"prepare en1"_s, u"settle en1 unchanged"_s}));
}

TEST_F(AddressOwnerTest, TakesTheInterfaceBackWhenTheProgramEndsMeanwhile)
{
    helper.mood = FakeHelper::Mood::Hanging;
    change(en1, wanted);
    changer.reset();
    EXPECT_EQ(owners.journal(), (QStringList{u"prepare en1"_s, u"gone en1"_s}));
}

TEST_F(AddressOwnerTest, ThatDoesNotConnectAgainIsTold)
{
    owners.settleAs(Outcome::NotBack);
    EXPECT_TRUE(changed().isInPlace);
    EXPECT_EQ(notifier.messages().value(1),
        told("Wi-Fi is not connected again", "Please connect it again with NetworkManager")
            .first());
}

TEST_F(AddressOwnerTest, ThatLeavesSomethingOfBeforeIsTold)
{
    owners.setName(u"systemd-networkd"_s);
    owners.settleAs(AddressOwner::Outcomes(Outcome::KeepsIPAddress) | Outcome::KeepsIPv6Address);
    EXPECT_TRUE(changed().isInPlace);
    constexpr char advice[] = "Please connect it again with systemd-networkd";
    EXPECT_EQ(
        notifier.messages().value(1), told("Wi-Fi keeps the IP Address of before", advice).first());
    EXPECT_EQ(notifier.messages().value(2),
        told("Wi-Fi keeps an IPv6 Address made from the old one", advice).first());
    EXPECT_EQ(notifier.messages().size(), 3);
}

TEST_F(AddressOwnerTest, ThatNobodyKnowsIsNotNamed)
{
    owners.setName({});
    owners.settleAs(Outcome::NotBack);
    EXPECT_TRUE(changed().isInPlace);
    EXPECT_EQ(notifier.messages().value(1),
        told("Wi-Fi is not connected again",
            "Please connect it again with the program that connects it")
            .first());
}

TEST_F(AddressOwnerTest, ThatNobodyKnowsHasNoNetworksSettings)
{
    owners.setName({});
    // The address from before.
    owners.whenSettling([this] { EXPECT_TRUE(host.giveAddress(en1, u"02:16:3e:44:55:66"_s)); });
    EXPECT_FALSE(changed().isInPlace);
    EXPECT_EQ(notifier.messages().last(),
        told("Wi-Fi Address was not Changed", "Please make sure your Device is enabled").first());
}

TEST_F(AddressOwnerTest, AnAddressForScanningIsNoneOfANetwork)
{
    owners.settleAs(Outcome::NotBack);
    owners.whenSettling([this] { EXPECT_TRUE(host.giveAddress(en1, u"6e:87:7e:9b:4a:58"_s)); });
    EXPECT_FALSE(changed().isInPlace);
    EXPECT_EQ(notifier.messages(),
        told("Wi-Fi is not connected again", "Please connect it again with NetworkManager"));
}

TEST_F(AddressOwnerTest, ThatTakesNoWordFromASessionThatMayChangeNothingIsTold)
{
    owners.settleAs(Outcome::Untold);
    helper.mood = FakeHelper::Mood::Refusing;
    EXPECT_FALSE(changed().isInPlace);
    EXPECT_EQ(notifier.messages(), told("Wi-Fi Address was not Changed",
                                       "Only the session in front of this computer may change it"));

    helper.installed = false;
    EXPECT_FALSE(changed().isInPlace);
    EXPECT_EQ(
        notifier.messages().last().body, u"Please make sure you have installed the HelperTool"_s);
}

TEST_F(AddressOwnerTest, ThatTakesNoWordIsTold)
{
    owners.settleAs(Outcome::Untold);
    EXPECT_TRUE(changed().isInPlace);
    EXPECT_EQ(
        titles(), (QStringList{u"Wi-Fi Address Changed"_s, u"Wi-Fi Address may be replaced"_s}));
}

TEST_F(AddressOwnerTest, ThatGivesAnAddressOfItsOwnIsTold)
{
    // The one from before, and another one.
    for (const QString &own : {u"02:16:3e:44:55:66"_s, u"02:00:00:00:00:07"_s}) {
        owners.whenSettling([this, own] { EXPECT_TRUE(host.giveAddress(en1, own)); });
        const ChangeOutcome outcome = changed();
        EXPECT_FALSE(outcome.isInPlace);
        EXPECT_EQ(outcome.address, own);
        EXPECT_EQ(notifier.messages().last(),
            told("Wi-Fi Address was not Changed",
                "NetworkManager gives this network an Address of its own. Look for it in the "
                "network's settings")
                .first());
    }
    EXPECT_EQ(titles().size(), 2);
    EXPECT_EQ(order.filter(u"history"_s), QStringList()) << "no change to remember";
}

TEST_F(AddressOwnerTest, SeesOneChangeOfItsInterfaceAtATime)
{
    owners.think();
    change(en1, u"02:aa:bb:cc:dd:05"_s);
    change(en1, wanted);
    EXPECT_EQ(owners.journal(), QStringList{u"prepare en1"_s});
    owners.answer();
    scheduler.runPending();
    EXPECT_EQ(owners.journal(), (QStringList{u"prepare en1"_s, u"settle en1 changed"_s,
                                    u"prepare en1"_s, u"settle en1 changed"_s}));
    EXPECT_EQ(host.addressOf(en1), "02:aa:bb:cc:dd:01"_L1);
    EXPECT_EQ(titles(), (QStringList{u"Wi-Fi Address Changed"_s, u"Wi-Fi Address Changed"_s}));
}

TEST_F(AddressOwnerTest, OfOneInterfaceDoesNotHoldUpAnother)
{
    owners.think();
    change(en1, wanted);
    change(en0, u"02:aa:bb:cc:dd:02"_s);
    EXPECT_EQ(host.addressOf(en0), "02:aa:bb:cc:dd:02"_L1);
    owners.answer();
    scheduler.runPending();
    EXPECT_EQ(host.addressOf(en1), "02:aa:bb:cc:dd:01"_L1);
}

} // namespace

} // namespace quillon::test
