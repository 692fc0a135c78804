// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/features/DeviceFeature.h"
#include "base/SettingsKeys.h"
#include "fakes/FakeNotifier.h"
#include "fakes/FakePlatform.h"
#include "fakes/QtPrinting.h"
#include "helperlink/XPCMethods.h"
#include "presence/Presence.h"
#include "rules/CountdownTimers.h"

#include <gmock/gmock.h>

namespace quillon::test {

/// A machine with a wired interface, which is selected, and a Wi-Fi interface without a link, and
/// what models of interfaces act upon. The helper is in place and its status read. Nothing follows
/// from anything here: who tells a model of a fact is the test.
class DeviceModelsFixture : public ::testing::Test
{
protected:
    DeviceModelsFixture()
    {
        host.unplug(QStringLiteral("enp2s0"));
        host.plug({QStringLiteral("Wi-Fi"), wifi, QStringLiteral("3c:22:fb:00:00:02"),
            QStringLiteral("3c:22:fb:00:00:02"), {}, false});
        devices.updateNetWorkInterfaces();
        current.updateCurrentInterfaceDict(wired);
        readHelperStatus();
    }

    void readHelperStatus()
    {
        helper.updateHelperInstalledStatus();
        scheduler.runPending();
    }
    /// A rule that gives `device` a new address every two minutes, and its countdown.
    void startCountdown(const QString &device)
    {
        devices.update(device, [](DeviceRecord &record) {
            record.rule = QVariantMap{{QStringLiteral("timerMinutes"), 2}};
        });
        timers.startCountDownTimer(device);
    }
    QString addressOf(const QString &device) const { return host.addressOf(device).toUpper(); }

    const QString wired = QStringLiteral("enp1s0");
    const QString wifi = QStringLiteral("wlp2s0");
    FakePlatform machine;
    FakeScheduler &scheduler = machine.scheduler;
    FakeSettingsStore &settings = machine.settings;
    NotificationCenter &notifications = machine.notifications;
    FakeNetworkHost &host = machine.host;
    FakeNotifier notifier;
    XPCMethods helper{machine.helper, scheduler, notifications};
    DeviceFeature feature{machine.platform(), notifier, helper};
    DeviceTable &devices = feature.table;
    CurrentInterface &current = feature.currentInterface;
    AddressChanger &changer = feature.addressChanger;
    Presence presence{settings};
    CountdownTimers timers{{scheduler, notifications, notifier, devices, changer}};
};

} // namespace quillon::test
