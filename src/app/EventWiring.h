// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/DistributedNotificationCenter.h"
#include "platform/NotificationCenter.h"
#include "platform/Platform.h"
#include "platform/SettingsStore.h"

#include <QObject>

#include <functional>
#include <vector>

namespace quillon {

class AddressChanger;
class AdvancedPreferencesModel;
class CurrentInterface;
class DeviceTable;
class MainWindowModel;
class Presence;
class RandomAddress;
class StatusMenuModel;
class XPCMethods;

/// Which fact leads to which reaction, in which order. Connections only: what a reaction does is
/// its component's. A row that belongs to a feature is a signal,
/// which the feature's room connects to.
class EventWiring : public QObject
{
    Q_OBJECT

public:
    struct Components
    {
        XPCMethods &helper;
        DeviceTable &devices;
        CurrentInterface &currentInterface;
        RandomAddress &randomAddress;
        AddressChanger &addressChanger;
        MainWindowModel &mainWindow;
        StatusMenuModel &statusMenu;
        AdvancedPreferencesModel &advancedPreferences;
        Presence &presence;
    };

    EventWiring(const Platform &platform, const Components &components);
    ~EventWiring() override;

    /// What components say to each other. Once, before the launch.
    void connectComponents();
    /// The event sources: settings, broadcasts, the system. Once, from startup.
    void setupNotifications();

Q_SIGNALS:
    // Observed settings.
    void loginStartChanged();
    void showKeyChanged();
    void randomKeyChanged();
    void savedAddressesChanged();
    void externalAddressWanted();
    void cloudSyncSwitched();
    /// After the reactions to every observed key.
    void observedSettingChanged(const QString &key);
    // Broadcasts.
    void cloudContainerChanged();
    void networkChanged();
    void vendorViewPopoverClosed();
    void ruleToggled(const QVariantMap &userInfo);
    // Follow-ups of a new current interface, in this order around checkUpdateButton.
    void countdownLabelStale();
    void currentVendorStale(const QString &address);
    void vendorFieldStale(const QString &device);
    void ruleStatusStale(const QString &device);
    /// A device was selected: its vendor choice is to be shown.
    void vendorSelectionStale(const QString &device);
    /// The helper's status was read: rules are to be evaluated without changing anything.
    void ruleEvaluationDue();
    /// The factory-address popover is to close.
    void hardwarePopoverClosed();
    /// An address was changed: it belongs into the history.
    void historyRecordDue(const QString &device, const QString &address);
    /// The wiring ends: what observes the cloud account is to stop.
    void cloudObserversStopped();

private:
    void connectHelperStatus();
    void connectCurrentInterface();
    void connectMenu();
    void connectAddressChange();
    void observeSettings();
    void observeBroadcasts();
    void observe(const QString &key, std::function<void()> reaction);
    void observe(const QString &name,
        std::function<void(const NotificationCenter::Notification &)> reaction);
    void postTerminateLoginHelper();

    Platform m_platform;
    Components m_with;
    std::vector<SettingsStore::Token> m_settingsTokens;
    std::vector<NotificationCenter::Token> m_notificationTokens;
    std::vector<DistributedNotificationCenter::Token> m_distributedTokens;
};

} // namespace quillon
