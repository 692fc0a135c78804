// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/NotificationCenter.h"
#include "platform/Platform.h"
#include "platform/linux/GetrandomSource.h"
#include "platform/linux/RealtimeAlarm.h"
#include "platform/linux/bus/BusRunningApplications.h"
#include "platform/linux/bus/DBusHelperLink.h"
#include "platform/linux/bus/FreedesktopNotifications.h"
#include "platform/linux/bus/LogindSleep.h"
#include "platform/linux/bus/PowerProfiles.h"
#include "platform/linux/bus/SessionBusNotificationCenter.h"
#include "platform/linux/desktop/AutostartLoginItem.h"
#include "platform/linux/desktop/DesktopHotKeys.h"
#include "platform/linux/desktop/DesktopLinkOpener.h"
#include "platform/linux/desktop/DesktopSoftwareCenter.h"
#include "platform/linux/desktop/DesktopSystemSettings.h"
#include "platform/linux/desktop/KeyringSecretStore.h"
#include "platform/linux/exposure/LinuxExposureSource.h"
#include "platform/linux/netlink/GetifaddrsAddresses.h"
#include "platform/linux/netlink/NetlinkChangeSource.h"
#include "platform/linux/netlink/NetlinkHost.h"
#include "platform/linux/netlink/RouteReachability.h"
#include "platform/linux/owner/LinuxAddressOwners.h"
#include "platform/linux/owner/PortalReachability.h"
#include "platform/linux/owner/TakeBackGuard.h"
#include "platform/linux/wifi/Nl80211LocationAuthorization.h"
#include "platform/linux/wifi/Nl80211WiFiClient.h"
#include "platform/linux/wifi/RfkillRadioSwitch.h"
#include "platform/qt/QtScheduler.h"
#include "platform/qt/cloud/QtCloudProvider.h"
#include "platform/qt/settings/PlistSettingsStore.h"
#include "platform/qt/web/NetworkHttpClient.h"
#include "ui/widgets/MessageAlerts.h"

namespace quillon {

class Notifier;

/// The Linux desktop behind the seams: owns one implementation of each, made from the ground up and
/// destroyed in the opposite order. Main thread, after the QApplication.
class DesktopPlatform
{
public:
    DesktopPlatform();

    Platform platform();
    /// Who tells the user that the settings cannot be read or written; until then nobody does.
    void setNotifier(Notifier *notifier) { m_notifier = notifier; }
    /// Background work ends before the components that it uses, and nobody is left to be told.
    void shutDown();

private:
    void tellOfSettings(const SettingsProblem &problem) const;

    Notifier *m_notifier = nullptr;
    QtScheduler m_scheduler{RealtimeAlarm::make};
    PlistSettingsStore m_settings;
    PlistSettingsStore m_groupSettings;
    NotificationCenter m_notifications;
    SessionBusNotificationCenter m_distributedNotifications;
    FreedesktopNotifications m_userNotifications;
    MessageAlerts m_alerts;
    NetlinkHost m_network;
    GetifaddrsAddresses m_interfaceAddresses;
    LinuxAddressOwners m_addressOwners;
    LinuxExposureSource m_exposure{m_scheduler};
    NetlinkChangeSource m_networkChanges;
    RouteReachability m_route;
    PortalReachability m_reachability{m_route, m_scheduler};
    LogindSleep m_sleep;
    Nl80211WiFiClient m_wifi;
    RfkillRadioSwitch m_radioSwitch;
    Nl80211LocationAuthorization m_location;
    DesktopSystemSettings m_systemSettings;
    DesktopSoftwareCenter m_softwareCenter;
    DesktopHotKeys m_hotKeys;
    AutostartLoginItem m_loginItem;
    DesktopLinkOpener m_links;
    NetworkHttpClient m_http;
    GetrandomSource m_random;
    DBusHelperLink m_helperLink;
    BusRunningApplications m_runningApplications;
    QtCloudProvider m_cloud{m_scheduler};
    KeyringSecretStore m_secrets{QDBusConnection::sessionBus(), m_scheduler};
    PowerProfiles m_powerSaving;
};

} // namespace quillon
