// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/LaunchSequence.h"

#include "app/EventWiring.h"
#include "app/UserNotifications.h"
#include "base/Localized.h"
#include "base/SettingsKeys.h"
#include "devices/CurrentInterface.h"
#include "devices/DeviceTable.h"
#include "helperlink/XPCMethods.h"
#include "networks/ExternalIPAddress.h"
#include "platform/RunningApplications.h"
#include "platform/SettingsStore.h"
#include "presentation/window/MainWindowModel.h"
#include "presentation/window/Presence.h"

#include <QPointer>

namespace quillon {

namespace {

constexpr std::chrono::milliseconds firstRuleCheckDelay{1000};
const QString loginHelperIdentifier = QStringLiteral("com.orvandel.Quillon4Helper");

} // namespace

LaunchSequence::LaunchSequence(const Collaborators &collaborators)
    : m_with(collaborators)
{
}

void LaunchSequence::awakeFromNib()
{
    m_with.mainWindow.prepareWindow();
    m_windowPrepared = true;
    Q_EMIT mainWindowPrepared();
}

void LaunchSequence::applicationWillFinishLaunching()
{
    m_with.presence.hideWindow();
    Q_EMIT vendorDatabaseDue();
    m_with.helper.authorizeHelperTool(m_windowPrepared);
    m_with.helper.updateHelperInstalledStatus();
    m_with.mainWindow.disableRandomise();
}

void LaunchSequence::applicationDidFinishLaunching()
{
    Q_EMIT recordStoreDue();
    m_with.presence.updateDock();
    if (!m_with.settings.get(keys::externalIPAddress).isValid()) {
        m_with.externalAddress.saveExternalIPAddress(localized("Unknown..."));
    }
    m_with.presence.showMenuBarItem(m_with.settings.getBool(keys::showInMenu));
    if (m_with.settings.getBool(keys::loginStart)) {
        Q_EMIT loginItemDue();
    }
    m_with.userNotifications.setupNotificationCenter();

    const bool hideOnLaunch = m_with.settings.getBool(keys::hideOnLaunch);
    if (startupCheck()) {
        m_startedFromLogin = true;
        if (hideOnLaunch) {
            startup();
            return;
        }
    }
    m_with.presence.openWindow();
    startup();
}

void LaunchSequence::startup()
{
    m_with.mainWindow.disableUpdate();
    Q_EMIT countdownLabelDue();

    Q_EMIT hotKeysDue();
    Q_EMIT vendorCountDue();
    Q_EMIT quickAddressesDue();
    m_with.mainWindow.resetInfoButtons();

    m_with.devices.updateNetWorkInterfaces();
    m_with.currentInterface.selectInitialDevice();
    m_with.currentInterface.updateHexValues();
    Q_EMIT vendorFieldDue();
    m_with.mainWindow.renewHexFormatter();
    m_with.mainWindow.populateSelectionButton();

    m_with.wiring.setupNotifications();
    Q_EMIT cloudCheckDue();
    Q_EMIT locationPermissionDue();
    Q_EMIT externalAddressDue();

    m_with.scheduler.onMainAfter(firstRuleCheckDelay, [self = QPointer(this)] {
        if (auto *const that = self.data()) {
            Q_EMIT that->firstRuleCheckDue();
            that->m_startedFromLogin = false;
        }
    });
}

bool LaunchSequence::applicationShouldHandleReopen()
{
    m_with.presence.openWindow();
    return true;
}

void LaunchSequence::applicationWillTerminate()
{
    m_with.externalAddress.saveExternalIPAddress(localized("Unknown..."));
    m_with.settings.flush();
}

bool LaunchSequence::startupCheck()
{
    return m_with.runningApplications.isRunning(loginHelperIdentifier);
}

} // namespace quillon
