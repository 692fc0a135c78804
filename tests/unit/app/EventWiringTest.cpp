// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/EventWiring.h"

#include "unit/app/ProgramOnFakes.h"

#include <QRegularExpression>
#include <QUndoStack>

#include <algorithm>

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

TEST_F(EventWiringTest, AnAddressThatSomebodyElseReplacedIsAsked)
{
    machine.settings.setBool(keys::driftAlarm, true);
    const QString device = machine.host.interfaces().constFirst().device;
    features().devices.addressChanger.updateMacAddressWithAddress(device, u"02:00:5e:00:53:01"_s);
    machine.scheduler.advance(1s);
    machine.networkChanges.networkChanges();
    machine.scheduler.advance(1s);
    const auto questions = [this] {
        return std::ranges::count_if(machine.userNotifications.onScreen,
            [](const UserNotificationRequest &shown) { return !shown.actions.isEmpty(); });
    };
    EXPECT_EQ(questions(), 0) << "it was this program's doing";

    machine.host.giveAddress(device, u"02:00:5e:00:53:99"_s);
    machine.sleep.resume();
    machine.scheduler.advance(1s);
    EXPECT_EQ(questions(), 1);

    features().devices.addressChanger.updateMacAddressWithAddress(device, u"02:00:5e:00:53:01"_s);
    machine.scheduler.advance(1s);
    EXPECT_EQ(questions(), 0);
}

TEST_F(EventWiringTest, WhatTheStartReadIsNoNewsOfTheFirstNetworkChange)
{
    program.reset();
    machine.host.at(enp2s0).active = false;
    run();
    QStringList evaluated;
    machine.notifications.addObserver(notifications::updateOverview,
        [&](const auto &posted) { evaluated << posted.userInfo.keys(); });
    machine.networkChanges.networkChanges();
    EXPECT_TRUE(evaluated.isEmpty());
}

TEST_F(EventWiringTest, AnInterfaceThatIsPluggedInLaterIsSelectedWhileNoneIs)
{
    program.reset();
    machine.settings.set(keys::currentInterfaceDict, QVariantMap());
    machine.settings.set(keys::deviceDict, QVariantMap());
    for (const QString &device : {enp1s0, enp2s0}) {
        machine.host.unplug(device);
    }
    run();
    EXPECT_EQ(window().selectedDevice, QString());
    EXPECT_FALSE(window().randomizeEnabled);
    EXPECT_FALSE(window().updateEnabled);
    EXPECT_FALSE(window().restoreEnabled);
    for (const QString &why :
        {window().whyNoRandomize, window().whyNoUpdate, window().whyNoRestore}) {
        EXPECT_TRUE(why.startsWith(u"No interface is selected"_s)) << qPrintable(why);
    }
    EXPECT_FALSE(features().vendors.field.state().enabled);
    EXPECT_TRUE(
        features().vendors.field.state().whyDisabled.startsWith(u"No interface is selected"_s));

    machine.host.plug({u"Ethernet"_s, enp2s0, {}, QString(), {}});
    machine.networkChanges.networkChanges();
    machine.scheduler.runPending();
    EXPECT_EQ(window().selectedDevice, QString()) << "it has no address yet";

    machine.host.plug({u"USB Ethernet"_s, u"enp9s0"_s, {}, u"3c:22:fb:00:00:09"_s, {}});
    machine.networkChanges.networkChanges();
    machine.scheduler.runPending();
    EXPECT_EQ(window().selectedDevice, u"enp9s0"_s);
    EXPECT_EQ(window().fieldText, u"3C:22:FB:00:00:09"_s);
    EXPECT_TRUE(window().randomizeEnabled);
    EXPECT_EQ(window().whyNoRandomize, QString());
    EXPECT_TRUE(features().vendors.field.state().enabled);
    EXPECT_EQ(features().vendors.field.state().whyDisabled, QString());
    EXPECT_TRUE(std::ranges::any_of(features().statusMenu.entries(),
        [](const MenuEntry &entry) { return entry.checked && entry.title.endsWith(u"enp9s0"_s); }));
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

TEST_F(EventWiringTest, AClosedMenuHasTheItemsOfACountdownBeforeItIsOpened)
{
    CountdownTimers &timers = features().rules.timers;
    features().presence.setWindowInSight(false);
    features().devices.table.update(
        enp1s0, [](DeviceRecord &record) { record.rule = QVariantMap{{u"timerMinutes"_s, 30}}; });
    const auto timerItems = [this] {
        machine.scheduler.runPending();
        return menuTitles().filter(QRegularExpression(u"Timer|\\.\\.\\."_s));
    };
    const QString countdown = u"    ...changing MAC Address in 00:29:59"_s;
    timers.startCountDownTimer(enp1s0);
    EXPECT_EQ(timerItems(), (QStringList{countdown, u"    Pause Timer"_s}));
    timers.pauseCountdownTimer(enp1s0);
    EXPECT_EQ(timerItems().value(1), u"    Resume Timer"_s);
    timers.resumeCountdownTimer(enp1s0);
    EXPECT_EQ(timerItems().value(1), u"    Pause Timer"_s);
    {
        const QObject listener;
        QObject::connect(&features().statusMenu, &StatusMenuModel::changed, &listener, [this] {
            EXPECT_TRUE(menuTitles().contains(u"    Pause Timer"_s)) << "another start takes it";
        });
        timers.startCountDownTimer(enp1s0);
        EXPECT_EQ(timerItems(), (QStringList{countdown, u"    Pause Timer"_s}));
    }
    timers.stopCountdownTimer(enp1s0);
    EXPECT_EQ(timerItems(), QStringList());
}

TEST_F(EventWiringTest, ACountdownThatEndsWhileTheMenuIsOpenLeavesItWithTheClosing)
{
    CountdownTimers &timers = features().rules.timers;
    features().devices.table.update(
        enp1s0, [](DeviceRecord &record) { record.rule = QVariantMap{{u"timerMinutes"_s, 30}}; });
    timers.startCountDownTimer(enp1s0);
    features().statusMenu.menuWillOpen();
    const QStringList open = menuTitles();
    ASSERT_TRUE(open.contains(u"    Pause Timer"_s));
    timers.stopCountdownTimer(enp1s0);
    machine.scheduler.advance(2s);
    EXPECT_EQ(menuTitles(), open) << "nothing moves under the pointer";
    features().statusMenu.menuDidClose();
    EXPECT_FALSE(menuTitles().contains(u"    Pause Timer"_s));
}

TEST_F(EventWiringTest, TheStartAtLoginFollowsItsSetting)
{
    machine.settings.setBool(keys::loginStart, true);
    EXPECT_EQ(machine.loginItem.current, LoginItem::Entry::Ours);
    machine.settings.set(keys::loginStart, u"yes"_s);
    EXPECT_EQ(machine.loginItem.current, LoginItem::Entry::None);
}

TEST_F(EventWiringTest, ABroadcastFromTheCloudRefreshesTheGeneralPreferences)
{
    int refreshed = 0;
    QObject::connect(&features().preferences.general,
        &GeneralPreferencesViewController::viewRefreshed, [&refreshed] { ++refreshed; });
    machine.notifications.post(notifications::icloudUpdated);
    machine.scheduler.runPending();
    EXPECT_EQ(refreshed, 1);
}

TEST_F(EventWiringTest, TheHotKeysFollowTheirSettings)
{
    FakeHotKeys &desktop = machine.hotKeys;
    machine.settings.set(keys::showKeyCombo, u"Ctrl+Alt+Q"_s);
    machine.settings.setBool(keys::showKeyEnabled, true);
    machine.settings.setBool(keys::randomKeyEnabled, true);
    machine.settings.set(keys::randomKeyCombo, u"Meta+R"_s);
    machine.scheduler.runPending();
    EXPECT_EQ(features().hotKeys.showKeyState(), GlobalHotKeys::State::Bound);
    int opened = 0;
    QObject::connect(&features().presence, &Presence::windowOpened, [&] { ++opened; });
    desktop.press(u"Ctrl+Alt+Q"_s);
    EXPECT_EQ(opened, 1);
    desktop.press(u"Meta+R"_s);
    machine.scheduler.advance(1s);
    EXPECT_TRUE(isChanged(enp1s0));
    EXPECT_FALSE(isChanged(enp2s0));

    machine.settings.set(keys::showKeyCombo, u"F9"_s);
    machine.settings.setBool(keys::randomKeyEnabled, false);
    machine.scheduler.runPending();
    desktop.press(u"Ctrl+Alt+Q"_s);
    EXPECT_EQ(opened, 1);
    desktop.press(u"F9"_s);
    EXPECT_EQ(opened, 2);
    EXPECT_EQ(desktop.bound.size(), 1);
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
    features().preferences.advanced.load();
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

TEST_F(EventWiringTest, TheSavedAddressesOfferedFollowTheirSetting)
{
    const auto offered = [this] { return features().networks.savedLists.state().quickAddresses; };
    ASSERT_TRUE(offered().isEmpty());
    machine.settings.set(keys::savedAddresses,
        QVariantMap{{u"02:00:00:00:00:AA"_s, QVariantMap{{savedentry::name, u"Mine"_s}}}});
    machine.scheduler.runPending();
    EXPECT_FALSE(offered().isEmpty());
}

TEST_F(EventWiringTest, ANetworkThatIsSavedByHandIsShownByItsNameAtOnce)
{
    WiFiInterface wifi;
    wifi.ssid = u"Harbor"_s;
    wifi.bssid = u"a4:2b:b0:11:22:33"_s;
    machine.wifi.interface = wifi;
    features().networks.wifi.updateWiFiNetwork();
    const auto shownName = [this] {
        return machine.settings.getDictionary(keys::currentWiFiDict).value(wifirecord::name);
    };
    ASSERT_EQ(shownName(), wifi.ssid);
    NewSavedEntryModel &form = features().networks.newSavedNetwork;
    form.editName(u"Harbor hall"_s);
    form.editAddress(wifi.bssid.toUpper());
    ASSERT_TRUE(form.add());
    EXPECT_EQ(shownName(), u"Harbor hall"_s);
}

TEST_F(EventWiringTest, ANetworkFromTheHistoryIsShownByItsNameUntilItIsTakenBack)
{
    WiFiInterface wifi;
    wifi.ssid = u"Harbor"_s;
    wifi.bssid = u"a4:2b:b0:11:22:33"_s;
    machine.wifi.interface = wifi;
    const ManagedObjectPtr past = context().insertNewObject(model::Connection);
    fill(*past, {{model::connection::bssid, wifi.bssid}, {model::connection::ssid, u"Old hall"_s}});
    const auto shownName = [this] {
        return machine.settings.getDictionary(keys::currentWiFiDict).value(wifirecord::name);
    };
    features().history.import.import();
    machine.scheduler.runPending();
    EXPECT_EQ(shownName(), u"Old hall"_s);
    features().history.import.undo();
    EXPECT_EQ(shownName(), wifi.ssid);
}

TEST_F(EventWiringTest, TheExternalAddressIsAskedForWhenThatIsSwitchedOn)
{
    const qsizetype before = machine.http.requests().size();
    machine.settings.setBool(keys::shouldUpdateExternalIP, true);
    EXPECT_EQ(machine.http.requests().size(), before + 1);
}

TEST_F(EventWiringTest, TheRecordsFollowTheSwitchOfTheCloud)
{
    int replaced = 0;
    QObject::connect(
        &features().history.store, &RecordStore::managedObjectContextReplaced, [&] { ++replaced; });
    machine.settings.setBool(keys::iCloudSync, true);
    EXPECT_EQ(replaced, 1);
}

TEST_F(EventWiringTest, ASwitchedRuleIsUndoneAndRedoneAndWhatIsInForceFollows)
{
    const ManagedObjectPtr rule = insertRule(randomOnce(enp1s0, u"Any network"_s));
    machine.scheduler.runPending();
    context().undoManager().clear();
    const auto isOn = [&] { return rule->value(model::rule::enabled).toBool(); };
    const auto status = [this] { return features().rules.status.state().image; };
    features().rules.switches.updateEnabledWithID(false, rule->uriRepresentation());
    machine.scheduler.runPending();
    ASSERT_FALSE(isOn());
    const QString off = status();
    EditMenuModel &edit = features().editMenu;
    ASSERT_TRUE(edit.state().undoEnabled);
    EXPECT_FALSE(edit.state().redoEnabled);
    EXPECT_FALSE(edit.state().saveEnabled) << "the switch saves";

    edit.undo();
    machine.scheduler.runPending();
    EXPECT_TRUE(isOn());
    EXPECT_NE(status(), off) << "it is in force again";
    EXPECT_TRUE(edit.state().redoEnabled);
    EXPECT_TRUE(edit.state().saveEnabled);
    edit.save();
    machine.scheduler.runPending();
    EXPECT_FALSE(context().hasChanges());
    EXPECT_FALSE(edit.state().saveEnabled);

    edit.redo();
    machine.scheduler.runPending();
    EXPECT_FALSE(isOn());
    EXPECT_EQ(status(), off);
}

} // namespace
} // namespace quillon::test
