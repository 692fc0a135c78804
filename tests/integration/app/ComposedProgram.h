// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/QuillonAppDelegate.h"
#include "fakes/FakeAlertPresenter.h"
#include "fakes/FakeHotKeys.h"
#include "fakes/FakeLinkOpener.h"
#include "fakes/FakeLoginItem.h"
#include "fakes/FakePowerSaving.h"
#include "fakes/FakeSecretStore.h"
#include "fakes/FakeSoftwareCenter.h"
#include "fakes/FakeSystemSettings.h"
#include "fakes/FakeUserNotificationCenter.h"
#include "fakes/FakeWiFiClient.h"
#include "integration/app/FastScheduler.h"
#include "integration/app/WatchedHelperLink.h"
#include "platform/NotificationCenter.h"
#include "platform/linux/GetrandomSource.h"
#include "platform/linux/bus/BusRunningApplications.h"
#include "platform/linux/bus/DBusHelperLink.h"
#include "platform/linux/bus/LogindSleep.h"
#include "platform/linux/bus/SessionBusNotificationCenter.h"
#include "platform/linux/exposure/LinuxExposureSource.h"
#include "platform/linux/netlink/GetifaddrsAddresses.h"
#include "platform/linux/netlink/NetlinkChangeSource.h"
#include "platform/linux/netlink/NetlinkHost.h"
#include "platform/linux/netlink/RouteReachability.h"
#include "platform/linux/owner/LinuxAddressOwners.h"
#include "platform/linux/owner/PortalReachability.h"
#include "platform/linux/wifi/Nl80211LocationAuthorization.h"
#include "platform/linux/wifi/RfkillRadioSwitch.h"
#include "platform/qt/QtScheduler.h"
#include "platform/qt/cloud/QtCloudProvider.h"
#include "platform/qt/settings/PlistSettingsStore.h"
#include "platform/qt/web/NetworkHttpClient.h"

#include <QString>

namespace quillon::test {

/// The program without windows, put together as main() does it on the real kernel, buses, helper
/// and files. Its own clock runs fast; what it stands on keeps to the real one. Messages to the
/// user are kept, not shown. Where there is no radio, the Wi-Fi joins what a test tells it to.
class ComposedProgram
{
public:
    /// `folder` holds its settings and its data, as a user's home does. `speed` is how many times
    /// faster its clock runs. `guard` is the command of TakeBackGuard. `radio`, which outlives
    /// this, is asked instead of `wifi`.
    explicit ComposedProgram(const QString &folder, int speed = 60,
        const QStringList &guard = QStringList(), WiFiClient *radio = nullptr);
    /// Ends in order.
    ~ComposedProgram();
    ComposedProgram(const ComposedProgram &) = delete;
    ComposedProgram &operator=(const ComposedProgram &) = delete;

    void launch();

    static QString recordsPath(const QString &folder);

    QuillonAppDelegate &delegate() { return *m_delegate; }
    /// By the program's clock.
    QDateTime now() const { return m_scheduler.now(); }
    /// What the program knows about a device.
    QVariantMap record(const QString &device) const;
    QVariantMap devices() const;
    /// The bodies of the messages with that title that the user has got so far.
    QStringList messages(const QString &title) const;
    QStringList messageTitles() const;

private:
    QtScheduler m_real;
    FastScheduler m_scheduler;

public:
    PlistSettingsStore settings;
    PlistSettingsStore groupSettings;
    NotificationCenter notifications;
    FakeUserNotificationCenter userNotifications{m_scheduler};
    FakeAlertPresenter alerts;
    FakeWiFiClient wifi;

private:
    RfkillRadioSwitch m_radioSwitch;
    SessionBusNotificationCenter m_distributedNotifications;
    NetlinkHost m_network;
    GetifaddrsAddresses m_interfaceAddresses;
    LinuxAddressOwners m_addressOwners;
    LinuxExposureSource m_exposure{m_real};
    NetlinkChangeSource m_networkChanges{m_real};
    RouteReachability m_route;
    PortalReachability m_reachability{m_route, m_real};
    LogindSleep m_sleep;
    Nl80211LocationAuthorization m_location{m_real};
    FakeSystemSettings m_systemSettings;
    FakeSoftwareCenter m_softwareCenter;
    FakeHotKeys m_hotKeys{m_scheduler};
    FakeLoginItem m_loginItem{m_scheduler};
    FakeLinkOpener m_links;
    NetworkHttpClient m_http;
    GetrandomSource m_random;
    DBusHelperLink m_helperLink{m_random};

public:
    WatchedHelperLink helperLink{m_helperLink, m_scheduler};

private:
    BusRunningApplications m_runningApplications;
    QtCloudProvider m_cloud{m_real};

public:
    FakeSecretStore secrets{m_scheduler};

private:
    FakePowerSaving m_powerSaving;
    std::unique_ptr<QuillonAppDelegate> m_delegate;
};

} // namespace quillon::test
