// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "fakes/FakeAddressOwners.h"
#include "fakes/FakeAlertPresenter.h"
#include "fakes/FakeCloudProvider.h"
#include "fakes/FakeDistributedNotificationCenter.h"
#include "fakes/FakeExposureSource.h"
#include "fakes/FakeHelper.h"
#include "fakes/FakeHotKeys.h"
#include "fakes/FakeHttpClient.h"
#include "fakes/FakeInterfaceAddresses.h"
#include "fakes/FakeLinkOpener.h"
#include "fakes/FakeLocationAuthorization.h"
#include "fakes/FakeLoginItem.h"
#include "fakes/FakeNetworkChangeSource.h"
#include "fakes/FakeNetworkHost.h"
#include "fakes/FakePowerSaving.h"
#include "fakes/FakeRadioSwitch.h"
#include "fakes/FakeRandomSource.h"
#include "fakes/FakeReachability.h"
#include "fakes/FakeRunningApplications.h"
#include "fakes/FakeScheduler.h"
#include "fakes/FakeSecretStore.h"
#include "fakes/FakeSettingsStore.h"
#include "fakes/FakeSoftwareCenter.h"
#include "fakes/FakeSystemSettings.h"
#include "fakes/FakeSystemSleep.h"
#include "fakes/FakeUserNotificationCenter.h"
#include "fakes/FakeWiFiClient.h"
#include "platform/NotificationCenter.h"
#include "platform/Platform.h"

#include <QTemporaryDir>

namespace quillon::test {

/// A whole machine of fakes for the program to run on: two wired interfaces, a Wi-Fi client without
/// an interface, a helper in place. The user's data are a folder of their own.
struct FakePlatform
{
    /// `shared` is a cloud account that other machines reach, too.
    explicit FakePlatform(FakeCloudAccount *shared = nullptr)
        : cloud(scheduler, shared)
    {
        host.plug({QStringLiteral("Ethernet"), QStringLiteral("enp1s0"),
            QStringLiteral("3c:22:fb:00:00:01"), QStringLiteral("3c:22:fb:00:00:01"),
            {QStringLiteral("192.0.2.10")}});
        host.plug({QStringLiteral("USB Ethernet"), QStringLiteral("enp2s0"),
            QStringLiteral("3c:22:fb:00:00:02"), QStringLiteral("3c:22:fb:00:00:02"), {}});
        random.put(QByteArray::fromHex("ab0102030405"));
    }

    Platform platform()
    {
        return {
            .scheduler = scheduler,
            .settings = settings,
            .groupSettings = groupSettings,
            .notifications = notifications,
            .distributedNotifications = distributed,
            .userNotifications = userNotifications,
            .alerts = alerts,
            .network = host,
            .interfaceAddresses = addresses,
            .addressOwners = owners,
            .exposure = exposure,
            .networkChanges = networkChanges,
            .reachability = reachability,
            .sleep = sleep,
            .wifi = wifi,
            .radioSwitch = radioSwitch,
            .location = location,
            .systemSettings = systemSettings,
            .softwareCenter = softwareCenter,
            .hotKeys = hotKeys,
            .loginItem = loginItem,
            .links = links,
            .http = http,
            .helperLink = helper,
            .random = random,
            .runningApplications = runningApplications,
            .cloud = cloud,
            .secrets = secrets,
            .powerSaving = powerSaving,
            .places = {.supportFolder = data.path(),
                .shippedVendorDatabase = {},
                .externalAddressService = QUrl(QStringLiteral("https://address.example")),
                .vendorRegistry = QUrl(QStringLiteral("https://registry.example/oui/oui.csv")),
                .licenseFile = {},
                .version = QStringLiteral("4.0.0"),
                .updateFeed = updateFeed,
                .updateKey = updateKey},
        };
    }

    QTemporaryDir data;
    // Nobody tells of new versions.
    QUrl updateFeed;
    QByteArray updateKey;
    FakeScheduler scheduler;
    FakeSettingsStore settings{scheduler};
    FakeSettingsStore groupSettings{scheduler};
    NotificationCenter notifications;
    FakeDistributedNotificationCenter distributed{scheduler};
    FakeUserNotificationCenter userNotifications{scheduler};
    FakeAlertPresenter alerts;
    FakeNetworkHost host;
    FakeInterfaceAddresses addresses{host};
    FakeAddressOwners owners{scheduler};
    FakeExposureSource exposure{scheduler};
    FakeNetworkChangeSource networkChanges;
    FakeReachability reachability;
    FakeSystemSleep sleep;
    FakeWiFiClient wifi;
    FakeRadioSwitch radioSwitch;
    FakeLocationAuthorization location;
    FakeSystemSettings systemSettings;
    FakeSoftwareCenter softwareCenter;
    FakeHotKeys hotKeys{scheduler};
    FakeLoginItem loginItem{scheduler};
    FakeLinkOpener links;
    FakeHttpClient http{scheduler};
    FakeHelper helper{scheduler, host};
    FakeRandomSource random;
    FakeRunningApplications runningApplications;
    FakeCloudProvider cloud;
    FakeSecretStore secrets{scheduler};
    FakePowerSaving powerSaving;
};

} // namespace quillon::test
