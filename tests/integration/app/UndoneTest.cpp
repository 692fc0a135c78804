// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Another program sets an address of its own while the program runs.
#include "integration/app/EndToEndTest.h"
#include "store/model/QuillonModel.h"

namespace quillon::test {

using namespace Qt::StringLiterals;

using namespace std::chrono_literals;

class UndoneTest : public EndToEndTest
{
protected:
    static inline const QString replacedTitle = u"Ethernet Address was replaced"_s;

    void plugIn()
    {
        startProgram();
        plugCable();
        settle();
        giveLease(true);
        ASSERT_TRUE(changesAreRecorded(1));
        letPass(10s);
    }
    // Then the helper's answer has been handled to its end.
    bool changesAreRecorded(qsizetype count)
    {
        return eventually([&] { return savedHistory(records).size() == count; });
    }
    static void anotherProgramSets(const QString &address)
    {
        administrator().run(u"ip link set dev %1 address %2"_s.arg(card, address));
    }
};

TEST_F(UndoneTest, AnAddressThatAnotherProgramPutsBackIsChangedTwiceMoreAndThenTold)
{
    ASSERT_TRUE(addRule(records, randomOnceRule(card)));
    plugIn();
    for (const qsizetype count : {2, 3}) {
        anotherProgramSets(factoryAddress);
        ASSERT_TRUE(changesAreRecorded(count));
        letPass(10s);
        settle();
        EXPECT_NE(kernelAddress(), factoryAddress);
        EXPECT_TRUE(program->messages(replacedTitle).isEmpty());
    }
    anotherProgramSets(factoryAddress);
    EXPECT_TRUE(eventually([this] { return program->messages(replacedTitle).size() == 1; }));
    anotherProgramSets(u"02:00:5e:10:00:66"_s);
    settle();
    letPass(5min);
    settle();
    EXPECT_EQ(kernelAddress(), u"02:00:5e:10:00:66"_s);
    EXPECT_EQ(program->helperLink.changes.size(), 3);
    EXPECT_EQ(program->messages(replacedTitle).size(), 1);
}

TEST_F(UndoneTest, AFixedAddressThatAnotherProgramPutsBackIsSetAgain)
{
    QVariantMap rule = randomOnceRule(card);
    rule[model::rule::address] = u"02:00:5E:10:00:77"_s;
    ASSERT_TRUE(addRule(records, rule));
    plugIn();
    anotherProgramSets(factoryAddress);
    ASSERT_TRUE(changesAreRecorded(2));
    letPass(5min);
    settle();
    EXPECT_EQ(kernelAddress(), u"02:00:5e:10:00:77"_s);
    EXPECT_EQ(program->helperLink.changes.size(), 2);
}

TEST_F(UndoneTest, TheUserIsAskedAndHasItAppliedAgain)
{
    startProgram();
    program->delegate().features().devices.addressChanger.updateMacAddressWithAddress(
        card, u"02:00:5e:10:00:55"_s);
    ASSERT_TRUE(changesAreRecorded(1));
    anotherProgramSets(u"02:00:5e:10:00:66"_s);
    const auto &shown = program->userNotifications.onScreen;
    const auto question = [&shown] {
        return std::ranges::find(
            shown, u"Ethernet shows another Address"_s, &UserNotificationRequest::title);
    };
    ASSERT_TRUE(eventually([&] { return question() != shown.end(); }));
    EXPECT_EQ(question()->body, u"eth5 now has 02:00:5e:10:00:66 in place of 02:00:5e:10:00:55."_s);
    const auto applyAgain = question()->actions.at(0).chosen;
    applyAgain();
    EXPECT_TRUE(eventually([&] { return question() == shown.end(); }));
    EXPECT_EQ(kernelAddress(), u"02:00:5e:10:00:55"_s);
}

TEST_F(UndoneTest, AnAddressThatTheUserChoseOnTheVisitStays)
{
    ASSERT_TRUE(addRule(records, randomOnceRule(card)));
    plugIn();
    program->delegate().features().mainWindow.changeInterfacefromPopup(card);
    letPass(1s);
    program->delegate().features().mainWindow.randomizeAddress();
    ASSERT_TRUE(changesAreRecorded(2));
    const QString chosen = kernelAddress();
    letPass(10s);
    // Another lease.
    administrator().run(u"ip addr del 198.51.100.5/24 dev %1\n"
                        "ip addr add 198.51.100.6/24 dev %1\n"
                        "ip route add default via 198.51.100.1 dev %1"_s.arg(card));
    settle();
    letPass(5min);
    settle();
    EXPECT_EQ(kernelAddress(), chosen);
    EXPECT_EQ(program->helperLink.changes.size(), 2);
}

} // namespace quillon::test
