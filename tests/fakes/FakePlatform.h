// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/Platform.h"
#include "fakes/FakeDistributedNotificationCenter.h"
#include "fakes/FakeHelper.h"
#include "fakes/FakeInterfaceAddresses.h"
#include "fakes/FakeNetworkChangeSource.h"
#include "fakes/FakeNetworkHost.h"
#include "fakes/FakeRandomSource.h"
#include "fakes/FakeRunningApplications.h"
#include "fakes/FakeScheduler.h"
#include "fakes/FakeSettingsStore.h"
#include "fakes/FakeUserNotificationCenter.h"
#include "platform/NotificationCenter.h"

namespace quillon::test {

/// A whole machine of fakes for the program to run on: two wired interfaces and a helper in place.
struct FakePlatform
{
    FakePlatform()
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
        return {scheduler, settings, groupSettings, notifications, distributed, userNotifications,
            host, addresses, networkChanges, helper, random, runningApplications};
    }

    FakeScheduler scheduler;
    FakeSettingsStore settings{scheduler};
    FakeSettingsStore groupSettings{scheduler};
    NotificationCenter notifications;
    FakeDistributedNotificationCenter distributed{scheduler};
    FakeUserNotificationCenter userNotifications{scheduler};
    FakeNetworkHost host;
    FakeInterfaceAddresses addresses{host};
    FakeNetworkChangeSource networkChanges;
    FakeHelper helper{scheduler, host};
    FakeRandomSource random;
    FakeRunningApplications runningApplications;
};

} // namespace quillon::test
