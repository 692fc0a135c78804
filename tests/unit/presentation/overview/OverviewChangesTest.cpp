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

TEST_F(OverviewChangesTest, EndsWithWhatBecameOfIt)
{
    changes.underWay().ask(wired, ChangeRequest::Randomize);
    changer.updateMacAddressWithAddress(wired, other);
    scheduler.runPending();
    EXPECT_FALSE(changes.underWay().contains(wired));
    ASSERT_TRUE(changes.outcomeOf(wired));
    EXPECT_TRUE(changes.outcomeOf(wired)->isInPlace);
    EXPECT_EQ(changes.outcomeOf(wired)->address, other);
    changes.forgetOutcomes();
    EXPECT_FALSE(changes.outcomeOf(wired));
}

TEST_F(OverviewChangesTest, EndsWhereTheInterfaceHasTheAddress)
{
    changes.underWay().ask(wired, ChangeRequest::Restore);
    changer.updateMacAddressWithAddress(wired, host.addressOf(wired));
    scheduler.runPending();
    EXPECT_FALSE(changes.underWay().contains(wired));
    EXPECT_FALSE(changes.outcomeOf(wired));
}

TEST_F(OverviewChangesTest, CountsWhatOthersAskForByTheWay)
{
    machine.helper.mood = FakeHelper::Mood::Refusing;
    changer.updateMacAddressWithAddress(wired, other);
    changer.updateMacAddressWithAddress(wired, u"02:00:00:00:00:02"_s);
    QList<bool> underWay;
    QObject::connect(&changes, &OverviewChanges::changed,
        [&] { underWay << changes.underWay().contains(wired); });
    scheduler.runPending();
    EXPECT_FALSE(changes.underWay().contains(wired));
    EXPECT_TRUE(underWay.contains(true));
    EXPECT_FALSE(changes.outcomeOf(wired)->isInPlace);
}

} // namespace
} // namespace quillon::test
