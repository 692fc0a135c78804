// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/overview/OverviewChanges.h"

#include "unit/presentation/DeviceModelsFixture.h"

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

class OverviewChangesTest : public DeviceModelsFixture
{
protected:
    OverviewChanges changes{changer};
    const QString other = u"02:00:00:00:00:01"_s;
};

TEST_F(OverviewChangesTest, CountsAChangeFromThePressOn)
{
    machine.helper.mood = FakeHelper::Mood::Hanging;
    changes.ask(wired, OverviewAction::Restore);
    EXPECT_TRUE(changes.isUnderWay(wired));
    EXPECT_EQ(changes.actionOf(wired), OverviewAction::Restore);
    changer.updateMacAddressWithAddress(wired, other);
    scheduler.runPending();
    EXPECT_TRUE(changes.isUnderWay(wired));
    EXPECT_FALSE(changes.isUnderWay(wifi));
}

TEST_F(OverviewChangesTest, EndsWithWhatBecameOfIt)
{
    changes.ask(wired, OverviewAction::Randomize);
    changer.updateMacAddressWithAddress(wired, other);
    scheduler.runPending();
    EXPECT_FALSE(changes.isUnderWay(wired));
    ASSERT_TRUE(changes.outcomeOf(wired));
    EXPECT_TRUE(changes.outcomeOf(wired)->isInPlace);
    EXPECT_EQ(changes.outcomeOf(wired)->address, other);
    changes.forgetOutcomes();
    EXPECT_FALSE(changes.outcomeOf(wired));
}

TEST_F(OverviewChangesTest, EndsWhereTheInterfaceHasTheAddress)
{
    changes.ask(wired, OverviewAction::Restore);
    changer.updateMacAddressWithAddress(wired, host.addressOf(wired));
    scheduler.runPending();
    EXPECT_FALSE(changes.isUnderWay(wired));
    EXPECT_FALSE(changes.outcomeOf(wired));
}

TEST_F(OverviewChangesTest, CountsWhatOthersAskForByTheWay)
{
    machine.helper.mood = FakeHelper::Mood::Refusing;
    changer.updateMacAddressWithAddress(wired, other);
    changer.updateMacAddressWithAddress(wired, u"02:00:00:00:00:02"_s);
    QList<bool> underWay;
    QObject::connect(
        &changes, &OverviewChanges::changed, [&] { underWay << changes.isUnderWay(wired); });
    scheduler.runPending();
    EXPECT_FALSE(changes.isUnderWay(wired));
    EXPECT_TRUE(underWay.contains(true));
    EXPECT_FALSE(changes.outcomeOf(wired)->isInPlace);
}

} // namespace
} // namespace quillon::test
