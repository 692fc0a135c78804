// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
// A rule that changes an address again and again, and what may happen to its interface meanwhile.
#include "integration/app/EndToEndTest.h"

namespace quillon::test {

using namespace Qt::StringLiterals;

using namespace std::chrono_literals;

class CountdownEndToEndTest : public EndToEndTest
{
protected:
    static inline const QString startedTitle = u"Quillon Timer started"_s;

    /// The card is on a network, and its countdown of a minute runs.
    void startCountdown()
    {
        ASSERT_TRUE(addRule(records, randomEveryRule(card, 1)));
        startProgram();
        plugCable();
        settle();
        before = kernelAddresses();
        giveLease(true);
        ASSERT_TRUE(eventually([this] { return countdown().isValid(); }));
    }

    /// When the running countdown was started; invalid when none runs.
    QDateTime countdown() const
    {
        const QVariantMap timers = program->delegate().features().rules.timers.timers();
        return timers.value(card).toMap().value(u"startDate"_s).toDateTime();
    }

    bool countdownHasEnded(const QDateTime &start)
    {
        return eventually([&] { return countdown() != start; });
    }

    bool changesAreRecorded(qsizetype count)
    {
        return eventually([&] { return savedHistory(records).size() >= count; });
    }

    // Only those interfaces that are still called what they were.
    void expectOthersAsBefore()
    {
        auto after = kernelAddresses();
        after.remove(card);
        for (auto link = after.cbegin(); link != after.cend(); ++link) {
            if (before.contains(link.key())) {
                EXPECT_EQ(link.value(), before.value(link.key())) << qPrintable(link.key());
            }
        }
    }

    QMap<QString, QString> before;
};

TEST_F(CountdownEndToEndTest, TheAddressChangesAtZeroAndTheCountdownStartsAgain)
{
    startCountdown();
    const QDateTime first = countdown();
    letPass(5s);
    EXPECT_TRUE(program->helperLink.changes.isEmpty()) << "not at once";
    EXPECT_EQ(program->messages(startedTitle).size(), 1);

    ASSERT_TRUE(countdownHasEnded(first));
    const QDateTime second = countdown();
    // The clock runs on while others do their part, as long as a busy machine takes for it.
    EXPECT_GE(first.secsTo(second), 60);
    ASSERT_TRUE(changesAreRecorded(1));

    ASSERT_TRUE(countdownHasEnded(second));
    const QDateTime third = countdown();
    EXPECT_GE(second.secsTo(third), 60);
    // However long it takes to look at two changes, there is no third.
    program->delegate().features().rules.timers.pauseCountdownTimer(card);
    ASSERT_TRUE(changesAreRecorded(2));
    letPass(5s);

    ASSERT_EQ(program->helperLink.changes.size(), 2);
    EXPECT_EQ(program->messages(startedTitle).size(), 3);
    EXPECT_EQ(program->messages(changedTitle).size(), 2);
    EXPECT_EQ(addressesSeen().size(), 3) << qPrintable(addressesSeen().join(u' '));
    expectOthersAsBefore();
}

TEST_F(CountdownEndToEndTest, APulledCableDoesNotStopIt)
{
    startCountdown();
    const QDateTime start = countdown();
    pullCable();
    settle();
    EXPECT_EQ(status(), u"inactive"_s);
    ASSERT_TRUE(changesAreRecorded(1));
    EXPECT_NE(countdown(), start);
    EXPECT_NE(kernelAddress(), factoryAddress);
    expectOthersAsBefore();
}

TEST_F(CountdownEndToEndTest, ARenamedInterfaceIsNotChangedUnderItsNewName)
{
    startCountdown();
    administrator().run(
        u"ip link set eth5 down; ip link set eth5 name eth6; ip link set eth6 up"_s);
    settle();
    EXPECT_TRUE(program->devices().contains(u"eth6"_s));
    letPass(150s);
    EXPECT_TRUE(countdown().isValid()) << "the rule still holds, should the interface come back";
    ASSERT_GE(program->helperLink.changes.size(), 1);
    for (const auto &change : std::as_const(program->helperLink.changes)) {
        EXPECT_EQ(change.device, card);
    }
    EXPECT_EQ(kernelAddresses().value(u"eth6"_s), factoryAddress);
    EXPECT_TRUE(program->messages(changedTitle).isEmpty());
    EXPECT_TRUE(savedHistory(records).isEmpty());
    expectOthersAsBefore();
}

TEST_F(CountdownEndToEndTest, ARemovedInterfaceIsNotChangedAndNoOtherIs)
{
    startCountdown();
    administrator().run(u"ip link del eth5"_s);
    before.remove(u"far-eth5"_s);
    settle();
    letPass(150s);
    EXPECT_TRUE(program->messages(changedTitle).isEmpty());
    EXPECT_TRUE(savedHistory(records).isEmpty());
    expectOthersAsBefore();

    // A card of that name is plugged in: it is changed when the time has come.
    administrator().run(u"ip link add eth5 address %1 type veth peer name far-eth5\n"
                        "ip link set far-eth5 up; ip link set eth5 up"_s.arg(factoryAddress));
    giveLease(true);
    ASSERT_TRUE(changesAreRecorded(1));
    EXPECT_NE(kernelAddress(), factoryAddress);
    expectOthersAsBefore();
}

TEST_F(CountdownEndToEndTest, ItEndsWithTheProgram)
{
    startCountdown();
    program.reset();
    startProgram();
    // One second after the start the rule is carried out, which starts another countdown.
    ASSERT_TRUE(eventually([this] { return countdown().isValid(); }));
    EXPECT_TRUE(savedHistory(records).isEmpty());
    EXPECT_EQ(kernelAddress(), factoryAddress);
}

} // namespace quillon::test
