// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/QuillonAppDelegate.h"
#include "base/NotificationNames.h"
#include "base/SettingsKeys.h"
#include "fakes/FakePlatform.h"

#include <gmock/gmock.h>

namespace quillon::test {
namespace {

using namespace std::chrono_literals;
using ::testing::ElementsAre;

class EventWiringTest : public ::testing::Test
{
protected:
    EventWiringTest()
    {
        machine.settings.registerDefaults(
            {{keys::displayNotifications, true}, {keys::showInMenu, true}});
        delegate.emplace(machine.platform());
        delegate->launch().awakeFromNib();
        delegate->launch().applicationWillFinishLaunching();
        delegate->launch().applicationDidFinishLaunching();
        machine.scheduler.advance(2s);
        machine.host.clearJournal();
        machine.helper.clearJournal();
        machine.distributed.posted.clear();
    }

    const MainWindowModel::State &window() const { return delegate->mainWindow().state(); }

    QVariantMap tableWithoutAddressOf(const QString &device) const
    {
        QVariantMap table = machine.settings.getDictionary(keys::deviceDict);
        QVariantMap changed = table.value(device).toMap();
        changed.remove(record::current);
        table[device] = changed;
        return table;
    }

    template <typename Signal>
    void count(Signal signal, int &counter)
    {
        QObject::connect(&delegate->wiring(), signal, [&counter] { ++counter; });
    }

    FakePlatform machine;
    mutable std::optional<QuillonAppDelegate> delegate;
};

TEST_F(EventWiringTest, TheDisplayCaseChangesWhereverAnAddressIsShown)
{
    machine.settings.setBool(keys::lowerCaseHEX, true);
    machine.scheduler.runPending();
    EXPECT_EQ(window().fieldText, QStringLiteral("3c:22:fb:00:00:01"));
    EXPECT_EQ(machine.settings.getDictionary(keys::currentInterfaceDict).value(record::current),
        QStringLiteral("3c:22:fb:00:00:01"));
}

TEST_F(EventWiringTest, AnotherProgramThatChangesASettingCausesTheSameReaction)
{
    machine.settings.changeFromOutside(keys::lowerCaseHEX, true);
    machine.scheduler.runPending();
    EXPECT_EQ(window().fieldText, QStringLiteral("3c:22:fb:00:00:01"));
}

TEST_F(EventWiringTest, ANewCurrentInterfaceRecordRefillsTheAddressField)
{
    QVariantMap record = machine.settings.getDictionary(keys::currentInterfaceDict);
    record[record::current] = QStringLiteral("02:00:00:00:00:99");
    machine.settings.set(keys::currentInterfaceDict, record);
    machine.scheduler.runPending();
    EXPECT_EQ(window().fieldText, QStringLiteral("02:00:00:00:00:99"));
}

TEST_F(EventWiringTest, StartAtLoginIsFollowedAndOneSecondLaterTheLoginItemIsToldToQuit)
{
    int changed = 0;
    count(&EventWiring::loginStartChanged, changed);
    machine.settings.setBool(keys::loginStart, true);
    EXPECT_EQ(changed, 1);
    machine.scheduler.advance(999ms);
    EXPECT_TRUE(machine.distributed.posted.isEmpty());
    machine.scheduler.advance(1ms);
    EXPECT_EQ(machine.distributed.posted.size(), 1);
    EXPECT_EQ(machine.distributed.posted.first(),
        std::pair(notifications::terminateLoginHelper, notifications::applicationObject));
}

TEST_F(EventWiringTest, TheStatusItemAndTheDockIconFollowTheirSettings)
{
    machine.settings.setBool(keys::showInMenu, false);
    EXPECT_FALSE(delegate->presence().isStatusItemShown());
    machine.settings.setBool(keys::showInMenu, true);
    delegate->presence().setStatusItemAvailable(true);
    machine.settings.setBool(keys::hideDock, true);
    EXPECT_TRUE(delegate->presence().isDockIconHidden());
}

TEST_F(EventWiringTest, EachRowOfALaterRoomIsAnnounced)
{
    int show = 0, random = 0, saved = 0, external = 0, cloud = 0;
    count(&EventWiring::showKeyChanged, show);
    count(&EventWiring::randomKeyChanged, random);
    count(&EventWiring::savedAddressesChanged, saved);
    count(&EventWiring::externalAddressWanted, external);
    count(&EventWiring::cloudSyncSwitched, cloud);
    machine.settings.setBool(keys::showKeyEnabled, true);
    machine.settings.setBool(keys::randomKeyEnabled, true);
    machine.settings.set(keys::savedAddresses, QVariantMap{{QStringLiteral("x"), 1}});
    machine.settings.setBool(keys::shouldUpdateExternalIP, true);
    machine.settings.setBool(keys::iCloudSync, true);
    EXPECT_EQ((QList<int>{show, random, saved, external, cloud}), (QList<int>{1, 1, 1, 1, 1}));
}

TEST_F(EventWiringTest, EachBroadcastOfALaterRoomIsAnnounced)
{
    int cloud = 0, popover = 0;
    QString toggled;
    count(&EventWiring::cloudContainerChanged, cloud);
    count(&EventWiring::vendorViewPopoverClosed, popover);
    QObject::connect(&delegate->wiring(), &EventWiring::ruleToggled,
        [&](const QVariantMap &info) { toggled = info.value(QStringLiteral("objID")).toString(); });
    machine.notifications.post(notifications::cloudContainerChanged);
    machine.notifications.post(notifications::closeVendorViewPopover);
    machine.notifications.post(notifications::toggleCheckbox, nullptr,
        {{QStringLiteral("objID"), QStringLiteral("x-record:1")}});
    EXPECT_EQ((QList<int>{cloud, popover}), (QList<int>{1, 1}));
    EXPECT_EQ(toggled, QStringLiteral("x-record:1"));
}

TEST_F(EventWiringTest, TheFactoryAddressPopoverClosesBeforeARestoreBegins)
{
    machine.host.giveAddress(QStringLiteral("enp1s0"), QStringLiteral("02:00:00:00:00:77"));
    machine.networkChanges.networkChanges();
    machine.scheduler.runPending();
    int closed = 0;
    QObject::connect(&delegate->wiring(), &EventWiring::hardwarePopoverClosed, [&] {
        EXPECT_EQ(
            machine.host.addressOf(QStringLiteral("enp1s0")), QStringLiteral("02:00:00:00:00:77"));
        ++closed;
    });
    delegate->restoreDefaultAddress();
    EXPECT_EQ(closed, 1);
    machine.scheduler.runPending();
    EXPECT_EQ(
        machine.host.addressOf(QStringLiteral("enp1s0")), QStringLiteral("3c:22:fb:00:00:01"));
}

TEST_F(EventWiringTest, TheEndOfTheWiringStopsTheObserversOfTheCloud)
{
    int stopped = 0;
    count(&EventWiring::cloudObserversStopped, stopped);
    delegate.reset();
    EXPECT_EQ(stopped, 1);
}

TEST_F(EventWiringTest, WhatWasPutOffReachesNobodyAfterTheEnd)
{
    machine.settings.setBool(keys::loginStart, true);
    machine.notifications.post(notifications::addressUpdated);
    delegate->mainWindow().populateHexField();
    delegate->advancedPreferences().load();
    delegate.reset();
    machine.networkChanges.networkChanges();
    machine.scheduler.advance(5s);
    EXPECT_TRUE(machine.distributed.posted.isEmpty());
}

TEST_F(EventWiringTest, WithoutTheServiceTheHintIsShownAndTheFieldStaysDisabled)
{
    FakePlatform other;
    other.helper.serviceExists = false;
    QuillonAppDelegate second(other.platform());
    second.launch().awakeFromNib();
    second.launch().applicationWillFinishLaunching();
    second.launch().applicationDidFinishLaunching();
    other.scheduler.advance(2s);
    EXPECT_TRUE(second.mainWindow().state().readMeVisible);
    EXPECT_FALSE(second.mainWindow().state().fieldEnabled);
    EXPECT_FALSE(second.mainWindow().state().randomiseEnabled);
}

TEST_F(EventWiringTest, WithNotificationsSwitchedOffAChangeIsRecordedAndAnnouncedWithoutAMessage)
{
    machine.settings.setBool(keys::displayNotifications, false);
    int records = 0, broadcasts = 0;
    count(&EventWiring::historyRecordDue, records);
    const auto token = machine.notifications.addObserver(
        notifications::addressUpdated, [&](const auto &) { ++broadcasts; });
    delegate->randomizeAddress();
    machine.scheduler.advance(5s);
    machine.notifications.removeObserver(token);
    EXPECT_EQ(records, 1);
    EXPECT_EQ(broadcasts, 1);
    EXPECT_TRUE(machine.userNotifications.everShown.isEmpty());
}

TEST_F(EventWiringTest, TheStatusMenuFollowsTheSelectionAndTheDisplayCase)
{
    delegate->changeInterfacefromPopup(QStringLiteral("enp2s0"));
    machine.scheduler.runPending();
    machine.settings.setBool(keys::lowerCaseHEX, true);
    machine.scheduler.runPending();
    for (const MenuEntry &entry : delegate->statusMenu().entries()) {
        EXPECT_EQ(entry.checked, entry.title == QStringLiteral("USB Ethernet · enp2s0"));
        EXPECT_FALSE(entry.title.contains(QStringLiteral("FB"))) << qPrintable(entry.title);
    }
}

TEST_F(EventWiringTest, EveryObservedKeyIsHandedOnAfterItsReaction)
{
    QStringList seen;
    QObject::connect(&delegate->wiring(), &EventWiring::showKeyChanged,
        [&] { seen.append(QStringLiteral("reaction")); });
    QObject::connect(&delegate->wiring(), &EventWiring::observedSettingChanged,
        [&](const QString &key) { seen.append(key); });
    machine.settings.setBool(keys::showKeyEnabled, true);
    machine.settings.setBool(keys::updateKeyEnabled, true);
    machine.settings.setBool(keys::timerEnabled, true);
    EXPECT_THAT(seen,
        ElementsAre(QStringLiteral("reaction"), keys::showKeyEnabled, keys::updateKeyEnabled));
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
    machine.host.giveAddress(QStringLiteral("enp1s0"), QStringLiteral("02:00:00:00:00:77"));
    machine.networkChanges.networkChanges();
    machine.scheduler.runPending();
    EXPECT_EQ(window().fieldText, QStringLiteral("02:00:00:00:00:77"));
}

TEST_F(EventWiringTest, AnUpdatedHelperIsAskedForItsVersion)
{
    machine.helper.installed = false;
    machine.distributed.deliver(notifications::helperUpdated, notifications::helperUpdatedObject);
    machine.scheduler.runPending();
    EXPECT_TRUE(window().readMeVisible);
    EXPECT_FALSE(window().fieldEnabled);

    machine.helper.installed = true;
    machine.distributed.deliver(notifications::helperUpdated, notifications::helperUpdatedObject);
    machine.scheduler.runPending();
    EXPECT_FALSE(window().readMeVisible);
    EXPECT_TRUE(window().fieldEnabled);
}

TEST_F(EventWiringTest, HelperUpdatedOfAnotherObjectIsIgnored)
{
    machine.distributed.deliver(notifications::helperUpdated, QStringLiteral("somebody.else"));
    machine.scheduler.runPending();
    EXPECT_TRUE(machine.helper.journal().isEmpty());
}

TEST_F(EventWiringTest, TheHelpersStatusIsFollowedInItsOrder)
{
    QStringList order;
    MainWindowModel &model = delegate->mainWindow();
    QObject::connect(&model, &MainWindowModel::readMeStyleReset,
        [&] { order.append(QStringLiteral("hint style")); });
    QObject::connect(&model, &MainWindowModel::infoButtonsReset,
        [&] { order.append(QStringLiteral("buttons")); });
    QObject::connect(&delegate->wiring(), &EventWiring::ruleEvaluationDue, [&] {
        EXPECT_TRUE(model.state().readMeVisible) << "the field and the hint come first";
        order.append(QStringLiteral("rules"));
        // What the next steps have to mend, each at its place.
        machine.settings.set(keys::deviceDict, tableWithoutAddressOf(QStringLiteral("enp1s0")));
        machine.host.plug({QStringLiteral("Ethernet"), QStringLiteral("enp9s0"), {},
            QStringLiteral("3c:22:fb:00:00:09"), {}});
    });
    const auto table = machine.settings.addObserver(keys::deviceDict, [&](const auto &change) {
        const QVariantMap now = change.newValue.toMap();
        const bool mended = now.value(QStringLiteral("enp1s0")).toMap().contains(record::current);
        const bool read = now.contains(QStringLiteral("enp9s0"));
        if (mended && !order.contains(QStringLiteral("hex values"))) {
            order.append(QStringLiteral("hex values"));
        }
        if (read && !order.contains(QStringLiteral("interfaces"))) {
            order.append(QStringLiteral("interfaces"));
        }
    });
    QObject::connect(&model, &MainWindowModel::changed, [&] {
        if (model.state().devices.contains(QStringLiteral("enp9s0")) &&
            !order.contains(QStringLiteral("selection"))) {
            order.append(QStringLiteral("selection"));
        }
    });
    const auto token =
        machine.notifications.addObserver(notifications::helperStatusChanged, [&](const auto &) {
            EXPECT_TRUE(machine.host.journal().contains(QStringLiteral("ports")));
            order.append(QStringLiteral("broadcast"));
        });
    machine.helper.version = QStringLiteral("1.9");
    machine.distributed.deliver(notifications::helperUpdated, notifications::helperUpdatedObject);
    machine.scheduler.runPending();
    machine.notifications.removeObserver(token);
    machine.settings.removeObserver(table);
    EXPECT_THAT(order,
        ElementsAre(QStringLiteral("hint style"), QStringLiteral("rules"),
            QStringLiteral("buttons"), QStringLiteral("hex values"), QStringLiteral("interfaces"),
            QStringLiteral("selection"), QStringLiteral("broadcast")));
}

TEST_F(EventWiringTest, FollowUpsOfANewSelectionComeInTheirOrder)
{
    QStringList order;
    EventWiring &wiring = delegate->wiring();
    QObject::connect(&wiring, &EventWiring::vendorSelectionStale,
        [&] { order.append(QStringLiteral("vendor choice")); });
    QObject::connect(&wiring, &EventWiring::countdownLabelStale,
        [&] { order.append(QStringLiteral("countdown")); });
    QObject::connect(&wiring, &EventWiring::currentVendorStale, [&](const QString &address) {
        EXPECT_EQ(window().fieldPlaceholder, address) << "the placeholder comes first";
        EXPECT_TRUE(window().updateEnabled) << "the apply button comes after the vendor";
        order.append(QStringLiteral("vendor of ") + address);
    });
    QObject::connect(&wiring, &EventWiring::vendorFieldStale, [&] {
        EXPECT_FALSE(window().updateEnabled) << "the apply button comes before the vendor field";
        order.append(QStringLiteral("vendor field"));
    });
    QObject::connect(&wiring, &EventWiring::ruleStatusStale,
        [&](const QString &device) { order.append(QStringLiteral("rules of ") + device); });
    // Offered for the old interface, and the new one's own address.
    delegate->mainWindow().editField(QStringLiteral("3C:22:FB:00:00:02"));
    delegate->changeInterfacefromPopup(QStringLiteral("enp2s0"));
    machine.scheduler.runPending();
    EXPECT_THAT(order, ElementsAre(QStringLiteral("vendor choice"), QStringLiteral("countdown"),
                           QStringLiteral("vendor of 3C:22:FB:00:00:02"),
                           QStringLiteral("vendor field"), QStringLiteral("rules of enp2s0")));
}

TEST_F(EventWiringTest, TheRandomiseButtonChangesTheAddressAndTellsTheUser)
{
    delegate->randomizeAddress();
    machine.scheduler.advance(2s);
    EXPECT_EQ(machine.host.addressOf(QStringLiteral("enp1s0")).toUpper(),
        QStringLiteral("AA:01:02:03:04:05"));
    EXPECT_EQ(window().fieldText, QStringLiteral("AA:01:02:03:04:05"));
    EXPECT_TRUE(window().hardwareIndicatorVisible);
    EXPECT_TRUE(window().restoreEnabled);
    ASSERT_EQ(machine.userNotifications.onScreen.size(), 1);
    EXPECT_EQ(machine.userNotifications.onScreen.first().title,
        QStringLiteral("Ethernet Address Changed"));
}

TEST_F(EventWiringTest, TheHistoryIsWrittenBetweenTheMessageAndTheBroadcast)
{
    QStringList order;
    QObject::connect(&delegate->wiring(), &EventWiring::historyRecordDue,
        [&](const QString &device) { order.append(QStringLiteral("history of ") + device); });
    const auto token = machine.notifications.addObserver(notifications::addressUpdated,
        [&](const auto &) { order.append(QStringLiteral("broadcast")); });
    delegate->randomizeAddress();
    machine.scheduler.runPending();
    machine.notifications.removeObserver(token);
    EXPECT_THAT(
        order, ElementsAre(QStringLiteral("history of enp1s0"), QStringLiteral("broadcast")));
}

TEST_F(EventWiringTest, TheMenuRandomisesAnotherInterfaceAndTheSelectionStays)
{
    delegate->statusMenu().menuWillOpen();
    const auto &entries = delegate->statusMenu().entries();
    int row = 0;
    while (!entries[static_cast<size_t>(row)].title.contains(QStringLiteral("enp2s0"))) {
        ++row;
    }
    delegate->statusMenu().activate({row + 2, 0});
    machine.scheduler.runPending();
    EXPECT_EQ(machine.host.addressOf(QStringLiteral("enp2s0")).toUpper(),
        QStringLiteral("AA:01:02:03:04:05"));
    EXPECT_EQ(window().selectedDevice, QStringLiteral("enp1s0"));
}

TEST_F(EventWiringTest, TheStatusMenuFollowsAChangedAddressWithoutBeingOpened)
{
    delegate->randomizeAddress();
    machine.scheduler.runPending();
    QStringList titles;
    for (const MenuEntry &entry : delegate->statusMenu().entries()) {
        titles.append(entry.title);
    }
    EXPECT_TRUE(titles.contains(QStringLiteral("    Current Address · AA:01:02:03:04:05")));
}

TEST_F(EventWiringTest, TheInstallButtonIsBusyUntilTheInstallationHasEnded)
{
    machine.helper.installFails = true;
    delegate->installHelper();
    EXPECT_TRUE(window().installing);
    machine.scheduler.runPending();
    EXPECT_FALSE(window().installing);

    machine.helper.installFails = false;
    delegate->installHelper();
    EXPECT_TRUE(window().installing);
    machine.scheduler.runPending();
    EXPECT_FALSE(window().installing);
    EXPECT_FALSE(window().readMeVisible);
}

TEST_F(EventWiringTest, AnInstallationFromTheWindowBringsItToTheFrontOnSuccessOnly)
{
    int fronts = 0;
    QObject::connect(&delegate->presence(), &Presence::windowOpened, [&] { ++fronts; });
    machine.helper.installFails = true;
    delegate->installHelper();
    machine.scheduler.runPending();
    EXPECT_EQ(fronts, 0);

    machine.helper.installFails = false;
    machine.host.clearJournal();
    delegate->installHelper();
    machine.scheduler.runPending();
    EXPECT_EQ(fronts, 1);
    EXPECT_EQ(machine.host.journal().count(QStringLiteral("ports")), 2)
        << "once for the button, once for the helper's status";
}

} // namespace
} // namespace quillon::test
