// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/LaunchSequence.h"

#include "app/EventWiring.h"
#include "app/UserNotifications.h"
#include "app/features/Features.h"
#include "base/FreedMemory.h"
#include "base/Localized.h"
#include "base/SettingsKeys.h"
#include "platform/AddressOwner.h"
#include "platform/Platform.h"
#include "platform/Scheduler.h"
#include "platform/SettingsStore.h"
#include "platform/desktop/RunningApplications.h"

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr std::chrono::milliseconds firstRuleCheckDelay{1000};
const QString loginHelperIdentifier = u"com.orvandel.Quillon4Helper"_s;

} // namespace

LaunchSequence::LaunchSequence(const Platform &platform, Features &features,
    UserNotifications &userNotifications, EventWiring &wiring)
    : m_platform(platform)
    , m_features(features)
    , m_userNotifications(userNotifications)
    , m_wiring(wiring)
{
}

void LaunchSequence::awakeFromNib()
{
    m_features.mainWindow.prepareWindow();
    m_windowPrepared = true;
    m_features.networks.wifi.updateWiFiNetwork();
    m_features.vendors.pane.showStoredTexts();
}

void LaunchSequence::applicationWillFinishLaunching()
{
    m_features.presence.hideWindow();
    m_features.vendors.count.createSupportFolderAndVendorDatabase();
    m_features.helper.authorizeHelperTool(m_windowPrepared);
    m_features.helper.updateHelperInstalledStatus();
    m_features.mainWindow.disableRandomize();
}

void LaunchSequence::applicationDidFinishLaunching()
{
    const SettingsStore &settings = m_platform.settings;
    openRecords();
    m_features.presence.updateDock();
    if (!settings.get(keys::externalIPAddress).isValid()) {
        m_features.networks.externalAddress.saveExternalIPAddress(localized("Unknown..."));
    }
    m_features.presence.showMenuBarItem(settings.getBool(keys::showInMenu));
    if (settings.getBool(keys::loginStart)) {
        m_features.preferences.loginController.initLoginController();
        m_features.preferences.loginController.updateLogin();
    }
    m_userNotifications.setupNotificationCenter();

    const bool hideOnLaunch = settings.getBool(keys::hideOnLaunch);
    m_startedFromLogin = startupCheck();
    if (!m_startedFromLogin || !hideOnLaunch) {
        m_features.presence.openWindow();
    }
    startup();
}

void LaunchSequence::openRecords()
{
    m_features.history.store.managedObjectContext();
    m_features.cloud.begin();
    m_features.rules.queries.updateNamesArray();
    m_features.rules.list.filterRulesArrayController();
}

void LaunchSequence::startup()
{
    Features &f = m_features;
    f.mainWindow.disableUpdate();
    f.rules.countdown.hideTimerLabel();

    f.hotKeys.updateShowKey();
    f.hotKeys.updateRandomKey();
    f.vendors.count.updateVendorCount();
    f.vendors.list.loadVendorField();
    f.networks.savedLists.updateQuickAddressesField();
    f.mainWindow.resetInfoButtons();

    f.devices.table.updateNetWorkInterfaces();
    f.devices.currentInterface.selectInitialDevice();
    f.devices.currentInterface.updateHexValues();
    f.vendors.choice.updateVendorField({});
    f.mainWindow.renewHexFormatter();
    f.mainWindow.populateSelectionButton();
    f.fileMenu.menuNeedsUpdate();

    m_platform.addressOwners.finishInterrupted();
    m_wiring.setupNotifications();
    f.cloud.watch.checkiCloudSync();
    f.networks.locationPermission.requestNetworkPermissions();
    f.networks.externalAddress.updateExternalIPAddress(false);
    m_platform.scheduler.onMainAfter(firstRuleCheckDelay, this, [this] { checkRules(); });
    f.statusItemAbsence.begin();
    f.updates.updater.begin();
}

void LaunchSequence::checkRules()
{
    m_features.rules.evaluation.checkDeviceForCurrentRuleAndChange(allDevices,
        m_startedFromLogin ? RuleChange::LoginAndNetworkRule : RuleChange::OncePerVisit);
    m_startedFromLogin = false;
    // Of what the start needed much is done with, and from now on the program mostly waits.
    returnFreedMemory();
}

bool LaunchSequence::applicationShouldHandleReopen()
{
    m_features.presence.openWindow();
    return true;
}

void LaunchSequence::applicationWillTerminate()
{
    m_features.networks.externalAddress.saveExternalIPAddress(localized("Unknown..."));
    m_platform.settings.flush();
    m_platform.groupSettings.flush();
}

bool LaunchSequence::startupCheck()
{
    return m_platform.runningApplications.isRunning(loginHelperIdentifier);
}

} // namespace quillon
