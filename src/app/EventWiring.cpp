// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/EventWiring.h"

#include "base/NotificationNames.h"
#include "base/SettingsKeys.h"
#include "devices/AddressChanger.h"
#include "devices/CurrentInterface.h"
#include "devices/DeviceTable.h"
#include "helperlink/XPCMethods.h"
#include "platform/NetworkChangeSource.h"
#include "presentation/menu/StatusMenuModel.h"
#include "presentation/preferences/AdvancedPreferencesModel.h"
#include "presentation/window/MainWindowModel.h"
#include "presentation/window/Presence.h"

#include <QPointer>

#include <utility>

namespace quillon {

namespace {

constexpr std::chrono::milliseconds terminateLoginHelperDelay{1000};

} // namespace

EventWiring::EventWiring(const Platform &platform, const Components &components)
    : m_platform(platform)
    , m_with(components)
{
}

EventWiring::~EventWiring()
{
    Q_EMIT cloudObserversStopped();
    for (const auto token : m_notificationTokens) {
        m_platform.notifications.removeObserver(token);
    }
    for (const auto token : m_distributedTokens) {
        m_platform.distributedNotifications.removeObserver(token);
    }
    for (const auto token : m_settingsTokens) {
        m_platform.settings.removeObserver(token);
    }
}

void EventWiring::connectComponents()
{
    connectHelperStatus();
    connectCurrentInterface();
    connectAddressChange();
    connectMenu();
}

void EventWiring::connectHelperStatus()
{
    XPCMethods &helper = m_with.helper;
    MainWindowModel &window = m_with.mainWindow;

    const auto onStatus = [&](auto reaction) {
        connect(&helper, &XPCMethods::helperStatusRead, this, reaction);
    };
    onStatus([&window](bool installed) { window.setHelperInstalled(installed); });
    onStatus([&window] { window.readMeReset(); });
    onStatus([this] { Q_EMIT ruleEvaluationDue(); });
    onStatus([&window] { window.resetInfoButtons(); });
    onStatus([this] { m_with.currentInterface.updateHexValues(); });
    onStatus([this] { m_with.devices.updateNetWorkInterfaces(); });
    onStatus([&window] { window.renewHexFormatter(); });
    onStatus([&window] { window.populateSelectionButton(); });

    const auto onInstall = [&](auto reaction) {
        connect(&helper, &XPCMethods::helperInstalledFromMainWindow, this, reaction);
    };
    onInstall([&window] { window.hideReadMe(); });
    onInstall([&window] { window.resetInfoButtons(); });
    onInstall([this] { m_with.currentInterface.updateHexValues(); });
    onInstall([this] { m_with.devices.updateNetWorkInterfaces(); });
    onInstall([&window] { window.renewHexFormatter(); });
    onInstall([&window] { window.populateSelectionButton(); });
    onInstall([this] { m_with.presence.openWindow(); });

    connect(&helper, &XPCMethods::helperInstallationStarted, this,
        [&window] { window.setInstalling(true); });
    connect(&helper, &XPCMethods::helperInstallationEnded, this,
        [&window] { window.setInstalling(false); });

    connect(&m_with.advancedPreferences, &AdvancedPreferencesModel::appKeyWanted, this,
        [this] { m_with.presence.openWindow(); });
}

void EventWiring::connectCurrentInterface()
{
    CurrentInterface &current = m_with.currentInterface;
    MainWindowModel &window = m_with.mainWindow;

    connect(&current, &CurrentInterface::interfaceSelected, this,
        [&window] { window.populateSelectionButton(); });
    connect(
        &current, &CurrentInterface::interfaceSelected, this, &EventWiring::vendorSelectionStale);

    connect(&current, &CurrentInterface::rebuildStarted, this, &EventWiring::countdownLabelStale);

    const auto onUpdate = [&](auto reaction) {
        connect(&current, &CurrentInterface::currentInterfaceUpdated, this, reaction);
    };
    onUpdate(
        [&window](const QString &, const QString &address) { window.showPlaceholder(address); });
    onUpdate(
        [this](const QString &, const QString &address) { Q_EMIT currentVendorStale(address); });
    onUpdate([&window] { window.checkUpdateButton(); });
    onUpdate([this](const QString &device) { Q_EMIT vendorFieldStale(device); });
    onUpdate([this](const QString &device) { Q_EMIT ruleStatusStale(device); });
    onUpdate([this] { m_with.statusMenu.menuNeedsUpdate(); });

    connect(&current, &CurrentInterface::hexValuesUpdated, this,
        [&window] { window.populateHexField(); });
}

void EventWiring::connectAddressChange()
{
    connect(&m_with.addressChanger, &AddressChanger::restoreRequested, this,
        &EventWiring::hardwarePopoverClosed);
    // Direct: the history is written between the user's message and the broadcast, on their thread.
    connect(&m_with.addressChanger, &AddressChanger::addressChanged, this,
        &EventWiring::historyRecordDue, Qt::DirectConnection);
}

void EventWiring::connectMenu()
{
    StatusMenuModel &menu = m_with.statusMenu;
    AddressChanger &changer = m_with.addressChanger;

    connect(&menu, &StatusMenuModel::rebuildStarted, this,
        [this] { m_with.mainWindow.populateSelectionButton(); });
    connect(
        &menu, &StatusMenuModel::openWindowChosen, this, [this] { m_with.presence.openWindow(); });
    connect(
        &menu, &StatusMenuModel::quitChosen, this, [this] { m_with.presence.quitFromSysMenu(); });
    connect(&menu, &StatusMenuModel::interfaceChosen, this,
        [this](const QString &title) { m_with.currentInterface.changeInterface(title); });
    connect(
        &menu, &StatusMenuModel::randomizeChosen, this, [this, &changer](const MenuItem &sender) {
            changer.randomizeAddress(sender, m_with.randomAddress);
        });
    connect(&menu, &StatusMenuModel::restoreChosen, this,
        [&changer](const MenuItem &sender) { changer.restoreDefaultAddress(sender); });
}

void EventWiring::setupNotifications()
{
    observeSettings();
    observeBroadcasts();
    // The source outlives this.
    m_platform.networkChanges.start([self = QPointer(this)] {
        if (auto *const that = self.data()) {
            that->m_platform.notifications.post(notifications::networkChanged);
        }
    });
    // A login item that started us has done its work.
    postTerminateLoginHelper();
}

void EventWiring::observeSettings()
{
    observe(keys::lowerCaseHEX, [this] { m_with.currentInterface.updateHexValues(); });
    observe(keys::currentInterfaceDict, [this] { m_with.mainWindow.populateHexField(); });
    observe(keys::loginStart, [this] {
        Q_EMIT loginStartChanged();
        m_platform.scheduler.onMainAfter(terminateLoginHelperDelay, [self = QPointer(this)] {
            if (auto *const that = self.data()) {
                that->postTerminateLoginHelper();
            }
        });
    });
    observe(keys::showInMenu, [this] { m_with.presence.updateMenu(); });
    observe(keys::hideDock, [this] { m_with.presence.updateDock(); });
    observe(keys::showKeyEnabled, [this] { Q_EMIT showKeyChanged(); });
    observe(keys::randomKeyEnabled, [this] { Q_EMIT randomKeyChanged(); });
    observe(keys::updateKeyEnabled, [] {});
    observe(keys::savedAddresses, [this] { Q_EMIT savedAddressesChanged(); });
    observe(keys::shouldUpdateExternalIP, [this] { Q_EMIT externalAddressWanted(); });
    observe(keys::iCloudSync, [this] { Q_EMIT cloudSyncSwitched(); });
}

void EventWiring::observeBroadcasts()
{
    observe(notifications::cloudContainerChanged,
        [this](const auto &) { Q_EMIT cloudContainerChanged(); });
    observe(notifications::networkChanged, [this](const auto &) {
        Q_EMIT networkChanged();
        m_with.statusMenu.menuNeedsUpdate();
    });
    observe(notifications::addressUpdated, [this](const auto &) {
        m_platform.scheduler.onMain([self = QPointer(this)] {
            if (auto *const that = self.data()) {
                that->m_with.statusMenu.menuNeedsUpdate();
            }
        });
    });
    observe(notifications::helperStatusChanged, [this](const auto &) {
        m_with.advancedPreferences.checkButtonStatus();
        m_with.statusMenu.menuNeedsUpdate();
    });
    observe(notifications::closeVendorViewPopover,
        [this](const auto &) { Q_EMIT vendorViewPopoverClosed(); });
    observe(notifications::toggleCheckbox,
        [this](const auto &toggled) { Q_EMIT ruleToggled(toggled.userInfo); });

    m_distributedTokens.push_back(m_platform.distributedNotifications.addObserver(
        notifications::helperUpdated, notifications::helperUpdatedObject,
        [this] { m_with.helper.updateHelperInstalledStatus(); }));
}

void EventWiring::observe(const QString &key, std::function<void()> reaction)
{
    m_settingsTokens.push_back(m_platform.settings.addObserver(
        key, [this, reaction = std::move(reaction)](const SettingsStore::Change &change) {
            reaction();
            Q_EMIT observedSettingChanged(change.key);
        }));
}

void EventWiring::observe(
    const QString &name, std::function<void(const NotificationCenter::Notification &)> reaction)
{
    m_notificationTokens.push_back(m_platform.notifications.addObserver(name, std::move(reaction)));
}

void EventWiring::postTerminateLoginHelper()
{
    m_platform.distributedNotifications.post(
        notifications::terminateLoginHelper, notifications::applicationObject);
}

} // namespace quillon
