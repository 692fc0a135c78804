// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/NotificationNames.h"
#include "base/SettingsKeys.h"
#include "devices/AddressChanger.h"
#include "devices/CurrentInterface.h"
#include "devices/DeviceTable.h"
#include "devices/RandomAddress.h"
#include "fakes/FakeAddressOwners.h"
#include "fakes/FakeHelper.h"
#include "fakes/FakeInterfaceAddresses.h"
#include "fakes/FakeNetworkHost.h"
#include "fakes/FakeNotifier.h"
#include "fakes/FakeRandomSource.h"
#include "fakes/FakeScheduler.h"
#include "fakes/FakeSettingsStore.h"
#include "fakes/QtPrinting.h"
#include "helperlink/XPCMethods.h"
#include "platform/NotificationCenter.h"
#include "rules/CountdownTimers.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>

namespace quillon::test {

/// Gives what was put into it, then other bytes every time.
class CountingRandomSource : public FakeRandomSource
{
public:
    QByteArray bytes(int count) override
    {
        ++made;
        const QByteArray given = FakeRandomSource::bytes(count);
        const bool isSpent = given.count('\0') == count;
        return isSpent ? QByteArray::number(made).rightJustified(count, '0') : given;
    }

    int made = 0; ///< random addresses asked for
};

/// Two interfaces whose rules say how long a countdown takes, and a helper that
/// changes nothing, so that each asked for change is another one.
class CountdownFixture : public ::testing::Test
{
protected:
    CountdownFixture()
    {
        table.updateNetWorkInterfaces();
        ruleSays(en0, 2);
        helper.mood = FakeHelper::Mood::Lying;
        QObject::connect(timers.get(), &CountdownTimers::ticked,
            [this](const QString &device, const QString &text, bool isPaused) {
                ++ticks;
                shown = device + QStringLiteral(": ") + text;
                shownAsPaused = isPaused;
            });
        QObject::connect(timers.get(), &CountdownTimers::stopped, [this] { ++hidden; });
        QObject::connect(
            timers.get(), &CountdownTimers::pauseOrResumeRequested, [this] { ++reset; });
    }

    void ruleSays(const QString &device, const QVariant &minutes)
    {
        QVariantMap devices = settings.getDictionary(keys::deviceDict);
        QVariantMap record = devices.value(device).toMap();
        QVariantMap rule{{QStringLiteral("vendor"), QStringLiteral("Maker (A1B2C3)")}};
        if (minutes.isValid()) {
            rule[QStringLiteral("timerMinutes")] = minutes;
        }
        record[record::rule] = rule;
        devices[device] = record;
        settings.set(keys::deviceDict, devices);
    }
    /// The clock and the main loop run on, second by second.
    void pass(std::chrono::milliseconds time) { scheduler.advance(time); }
    QVariantMap timer(const QString &device) const
    {
        return timers->timers().value(device).toMap();
    }
    QString display(const QString &device) const
    {
        const QVariantMap label = timer(device).value(QStringLiteral("label")).toMap();
        return label.value(QStringLiteral("display")).toString();
    }
    /// What the helper was asked, in order: device, blank, address.
    QStringList changes() const
    {
        QStringList asked;
        for (const FakeHelper::Change &change : helper.changes()) {
            asked << change.device + QLatin1Char(' ') + change.address;
        }
        return asked;
    }
    int told(const QString &title) const
    {
        return static_cast<int>(std::ranges::count(notifier.messages(), title,
            [](const FakeNotifier::Message &one) { return one.title; }));
    }
    int started() const { return told(QStringLiteral("Quillon Timer started")); }
    int warnings() const { return told(QStringLiteral("Quillon")); }

    const QString en0 = QStringLiteral("en0");
    const QString en1 = QStringLiteral("en1");
    FakeScheduler scheduler;
    FakeSettingsStore settings{scheduler};
    FakeNetworkHost host{QStringLiteral("desk")};
    FakeInterfaceAddresses addresses{host};
    DeviceTable table{settings, host, addresses};
    NotificationCenter notifications;
    FakeNotifier notifier;
    CountingRandomSource random;
    RandomAddress randomAddress{random, table};
    FakeHelper helper{scheduler, host};
    FakeAddressOwners owners{scheduler};
    XPCMethods xpc{helper, scheduler, notifications};
    CurrentInterface current{settings, scheduler, table};
    AddressChanger changer{
        {settings, scheduler, notifications, notifier, xpc, owners, table, current, randomAddress}};
    std::unique_ptr<CountdownTimers> timers = std::make_unique<CountdownTimers>(
        CountdownTimers::Collaborators{scheduler, notifications, notifier, table, changer});
    int ticks = 0;
    int hidden = 0;
    int reset = 0;
    QString shown;
    bool shownAsPaused = false;
};

} // namespace quillon::test
