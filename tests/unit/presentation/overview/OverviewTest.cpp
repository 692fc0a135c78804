// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/overview/Overview.h"

#include "OverviewFixture.h"

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

class OverviewTest : public OverviewFixture
{
};

TEST_F(OverviewTest, IsMadeOnDemandAndReleased)
{
    EXPECT_EQ(overview.controller(), nullptr);
    overview.look();
    overview.setHelperInstalled(true);
    overview.releaseOverviewWindow();
    const auto made = count(overview, &Overview::controllerMade);
    const auto going = count(overview, &Overview::controllerGoing);
    overview.openOverviewWindow();
    overview.openOverviewWindow();
    EXPECT_EQ(*made, 1);
    EXPECT_NE(overview.controller(), nullptr);
    overview.releaseOverviewWindow();
    EXPECT_EQ(*going, 1);
    EXPECT_EQ(overview.controller(), nullptr);
}

TEST_F(OverviewTest, ListensOnlyWhileItIsOpen)
{
    const bool before = notifications.hasObservers();
    open();
    EXPECT_TRUE(notifications.hasObservers());
    overview.releaseOverviewWindow();
    EXPECT_EQ(notifications.hasObservers(), before);
    settings.set(keys::lowerCaseHEX, true);
}

TEST_F(OverviewTest, IsReadAnewWhenItIsOpenedAgain)
{
    open();
    set(wired, [](DeviceRecord &record) { record.current = u"02:00:00:00:00:01"_s; });
    EXPECT_NE(wiredRow().row.currentAddress, u"02:00:00:00:00:01"_s);
    overview.releaseOverviewWindow();
    open();
    EXPECT_EQ(wiredRow().row.currentAddress, u"02:00:00:00:00:01"_s);
}

TEST_F(OverviewTest, IsReadAnewWhenItIsAskedForAndOutOfDate)
{
    open();
    const auto made = count(overview, &Overview::controllerMade);
    open();
    EXPECT_EQ(*made, 0);
    set(wired, [](DeviceRecord &record) { record.current = u"02:00:00:00:00:01"_s; });
    overview.look();
    open();
    EXPECT_EQ(*made, 1);
    EXPECT_EQ(wiredRow().row.currentAddress, u"02:00:00:00:00:01"_s);
    EXPECT_EQ(wiredRow().addressNow, QString());
}

TEST_F(OverviewTest, ShowsAChangeThatBeganBeforeItWasOpened)
{
    machine.helper.mood = FakeHelper::Mood::Hanging;
    changer.genRandomMacAddressWithVendor(wired);
    scheduler.runPending();
    open();
    EXPECT_EQ(wiredRow().line.text, u"Changing…"_s);
    EXPECT_FALSE(wiredRow().randomize.isEnabled);
    EXPECT_FALSE(wiredRow().randomize.isBusy) << "another asked for it";
}

TEST_F(OverviewTest, SaysNothingOfChangesBeforeItWasOpened)
{
    machine.helper.mood = FakeHelper::Mood::Refusing;
    changer.genRandomMacAddressWithVendor(wired);
    scheduler.runPending();
    open();
    EXPECT_EQ(wiredRow().line.text, QString());
}

TEST_F(OverviewTest, SaysWhetherItIsInSight)
{
    const auto changes = count(overview, &Overview::inSightChanged);
    EXPECT_FALSE(overview.isInSight());
    overview.setInSight(true);
    overview.setInSight(true);
    EXPECT_TRUE(overview.isInSight());
    EXPECT_EQ(*changes, 1);
}

} // namespace
} // namespace quillon::test
