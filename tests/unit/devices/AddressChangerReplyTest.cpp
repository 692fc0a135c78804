// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "AddressChangeFixture.h"

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

class AddressChangerReply : public AddressChangeFixture
{
protected:
    /// What whoever asked is told.
    QList<ChangeOutcome> outcomes(const QString &address)
    {
        QList<ChangeOutcome> answers;
        changer->updateMacAddressWithAddress(
            en1, address, [&](const ChangeOutcome &outcome) { answers.append(outcome); });
        scheduler.runPending();
        EXPECT_EQ(answers.size(), 1);
        return answers;
    }
    const QString before = host.addressOf(en1);
};

TEST_F(AddressChangerReply, SaysWhetherTheAddressIsInPlace)
{
    const ChangeOutcome outcome = outcomes(wanted).first();
    EXPECT_TRUE(outcome.isInPlace);
    EXPECT_EQ(outcome.address, wanted.toLower());
    helper.mood = FakeHelper::Mood::Lying;
    EXPECT_FALSE(outcomes(u"02:AA:BB:CC:DD:02"_s).first().isInPlace);
    helper.mood = FakeHelper::Mood::Refusing;
    EXPECT_FALSE(outcomes(u"02:AA:BB:CC:DD:02"_s).first().isInPlace);
    EXPECT_TRUE(outcomes(u"2:AA:BB:CC:DD:1"_s).first().isInPlace) << "it had that one already";
}

TEST_F(AddressChangerReply, OfTheAddressInUseSaysThatItIsInPlace)
{
    EXPECT_TRUE(outcomes(before).first().isInPlace);
    EXPECT_TRUE(helper.journal().isEmpty());
}

TEST_F(AddressChangerReply, WithoutHelperOrInterfaceSaysThatItIsNot)
{
    helper.installed = false;
    EXPECT_FALSE(outcomes(wanted).first().isInPlace);
    helper.installed = true;
    host.unplug(en1);
    const ChangeOutcome outcome = outcomes(wanted).first();
    EXPECT_FALSE(outcome.isInPlace);
    EXPECT_EQ(outcome.address, QString());
}

TEST_F(AddressChangerReply, ComesAfterEverybodyElseHeardWhoKnowsOfIt)
{
    QStringList course;
    QObject::connect(changer.get(), &AddressChanger::changeEnded,
        [&](const QString &, const ChangeOutcome &outcome) {
            course << (outcome.isReported ? u"ended, reported"_s : u"ended"_s);
        });
    changer->updateMacAddressWithAddress(
        en1, wanted, [&](const ChangeOutcome &) { course << u"reply"_s; });
    scheduler.runPending();
    change(en1, u"02:AA:BB:CC:DD:02"_s);
    EXPECT_EQ(course, (QStringList{u"ended, reported"_s, u"reply"_s, u"ended"_s}));
}

TEST_F(AddressChangerReply, OfAnAddressThatCannotBeReadBackSaysWhatTheHelperSaid)
{
    host.at(en1).broken = true;
    host.clearJournal();
    const ChangeOutcome outcome = outcomes(wanted).first();
    EXPECT_TRUE(outcome.isInPlace);
    EXPECT_EQ(outcome.address, QString());
    EXPECT_EQ(outcome.requested, wanted);
    EXPECT_EQ(host.journal().count(u"info "_s + en1), 2) << "read once more";
    EXPECT_TRUE(notifier.messages().isEmpty()) << "nothing is known to be true";
    helper.mood = FakeHelper::Mood::Refusing;
    EXPECT_FALSE(outcomes(wanted).first().isInPlace);
}

TEST_F(AddressChangerReply, OfARandomAddressComesToo)
{
    random.put(QByteArray::fromHex("c0abcdef0009"));
    bool inPlace = false;
    changer->genRandomMacAddressWithVendor(
        en1, std::nullopt, [&](const ChangeOutcome &outcome) { inPlace = outcome.isInPlace; });
    scheduler.runPending();
    EXPECT_TRUE(inPlace);
}

TEST_F(AddressChangerReply, IsNotTheMessageThatAnAddressCannotBeKept)
{
    changer->tellUndone(en1);
    ASSERT_EQ(notifier.messages().size(), 1);
    EXPECT_EQ(notifier.messages().first().title, "Wi-Fi Address was replaced"_L1);
    EXPECT_TRUE(notifier.messages().first().body.startsWith("Another program"_L1));
}

} // namespace
} // namespace quillon::test
