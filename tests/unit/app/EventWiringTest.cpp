// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/EventWiring.h"

#include "unit/app/ProgramOnFakes.h"

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

using namespace std::chrono_literals;

const QString lowerCaseAddress = u"3c:22:fb:00:00:01"_s;
const std::pair terminateLoginItem(
    notifications::terminateLoginHelper, notifications::applicationObject);

class EventWiringTest : public ProgramOnFakes
{
protected:
    EventWiringTest()
    {
        run();
        machine.distributed.posted.clear();
    }
};

TEST_F(EventWiringTest, TheDisplayCaseChangesWhereverAnAddressIsShown)
{
    machine.settings.setBool(keys::lowerCaseHEX, true);
    machine.scheduler.runPending();
    EXPECT_EQ(window().fieldText, lowerCaseAddress);
    EXPECT_EQ(machine.settings.getDictionary(keys::currentInterfaceDict).value(record::current),
        lowerCaseAddress);
    for (const QString &title : menuTitles()) {
        EXPECT_FALSE(title.contains(u"FB"_s)) << qPrintable(title);
    }
}

TEST_F(EventWiringTest, AnotherProgramThatChangesASettingCausesTheSameReaction)
{
    machine.settings.changeFromOutside(keys::lowerCaseHEX, true);
    machine.scheduler.runPending();
    EXPECT_EQ(window().fieldText, lowerCaseAddress);
}

TEST_F(EventWiringTest, ANewCurrentInterfaceRecordRefillsTheAddressField)
{
    QVariantMap record = machine.settings.getDictionary(keys::currentInterfaceDict);
    record[record::current] = u"02:00:00:00:00:99"_s;
    machine.settings.set(keys::currentInterfaceDict, record);
    machine.scheduler.runPending();
    EXPECT_EQ(window().fieldText, u"02:00:00:00:00:99"_s);
}

TEST_F(EventWiringTest, OneSecondAfterAChangeOfStartAtLoginTheLoginItemIsToldToQuit)
{
    machine.settings.setBool(keys::loginStart, true);
    machine.scheduler.advance(999ms);
    EXPECT_TRUE(machine.distributed.posted.isEmpty());
    machine.scheduler.advance(1ms);
    ASSERT_EQ(machine.distributed.posted.size(), 1);
    EXPECT_EQ(machine.distributed.posted.first(), terminateLoginItem);
}

TEST_F(EventWiringTest, ALoginItemThatStartedTheProgramIsToldToQuit)
{
    run();
    EXPECT_TRUE(machine.distributed.posted.contains(terminateLoginItem));
}

TEST_F(EventWiringTest, TheStatusItemAndTheDockIconFollowTheirSettings)
{
    Presence &presence = features().presence;
    machine.settings.setBool(keys::showInMenu, false);
    EXPECT_FALSE(presence.isStatusItemShown());
    machine.settings.setBool(keys::showInMenu, true);
    EXPECT_TRUE(presence.isStatusItemShown());
    presence.setStatusItemAvailable(true);
    QList<bool> told;
    QObject::connect(
        &presence, &Presence::dockIconHiddenChanged, [&](bool hidden) { told << hidden; });
    machine.settings.setBool(keys::hideDock, true);
    EXPECT_EQ(told, QList<bool>{true});
}

TEST_F(EventWiringTest, OneSystemNetworkChangeIsExactlyOneBroadcast)
{
    int broadcasts = 0;
    const auto token = machine.notifications.addObserver(
        notifications::networkChanged, [&](const auto &) { ++broadcasts; });
    machine.networkChanges.networkChanges();
    EXPECT_EQ(broadcasts, 1);
    machine.notifications.removeObserver(token);
}

TEST_F(EventWiringTest, ANetworkChangeRefreshesTheSelectedInterface)
{
    machine.host.giveAddress(enp1s0, u"02:00:00:00:00:77"_s);
    machine.networkChanges.networkChanges();
    machine.scheduler.runPending();
    EXPECT_EQ(window().fieldText, u"02:00:00:00:00:77"_s);
}

TEST_F(EventWiringTest, TheMenuFollowsANetworkChangeAtOnce)
{
    machine.host.giveAddress(enp2s0, u"02:00:00:00:00:77"_s);
    machine.networkChanges.networkChanges();
    EXPECT_TRUE(menuTitles().contains(u"    Current Address · 02:00:00:00:00:77"_s));
}

TEST_F(EventWiringTest, TheMenuFollowsAChangedAddressInALaterTurn)
{
    const QString title = u"    Current Address · 02:00:00:00:00:77"_s;
    setDeviceRecord(enp2s0, record::current, u"02:00:00:00:00:77"_s);
    machine.notifications.post(notifications::addressUpdated);
    EXPECT_FALSE(menuTitles().contains(title));
    machine.scheduler.runPending();
    EXPECT_TRUE(menuTitles().contains(title));
}

TEST_F(EventWiringTest, ReturnInTheListOfManufacturersClosesIt)
{
    VendorFieldModel &field = features().vendors.field;
    field.showVendorViewPopover();
    field.tableKeyDown(VendorFieldModel::Key::Return);
    EXPECT_FALSE(field.state().popoverShown);
}

TEST_F(EventWiringTest, TheProgramEndsOnceItsRecordsAreSaved)
{
    int granted = 0;
    QObject::connect(&program->termination(), &Termination::granted, [&] {
        EXPECT_FALSE(context().hasChanges());
        ++granted;
    });
    insertRule(randomOnce(enp1s0, u"Home"_s));
    ASSERT_TRUE(context().hasChanges());
    features().presence.quit();
    EXPECT_EQ(granted, 1);
}

TEST_F(EventWiringTest, WhatWasPutOffReachesNobodyAfterTheEnd)
{
    machine.settings.setBool(keys::loginStart, true);
    machine.notifications.post(notifications::addressUpdated);
    features().mainWindow.populateHexField();
    features().advancedPreferences.load();
    program.reset();
    machine.networkChanges.networkChanges();
    machine.scheduler.advance(5s);
    EXPECT_TRUE(machine.distributed.posted.isEmpty());
}

TEST_F(EventWiringTest, AfterTheProgramsEndNothingObservesAnyMore)
{
    program.reset();
    EXPECT_FALSE(machine.distributed.hasObservers());
    EXPECT_FALSE(machine.settings.hasObservers());
    EXPECT_FALSE(machine.notifications.hasObservers());
    machine.settings.setBool(keys::lowerCaseHEX, true);
    machine.notifications.post(notifications::networkChanged);
    machine.scheduler.runPending();
}

} // namespace
} // namespace quillon::test
