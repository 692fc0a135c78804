// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/NotificationNames.h"
#include "base/SettingsKeys.h"
#include "devices/DeviceTable.h"
#include "devices/RandomAddress.h"
#include "fakes/FakeInterfaceAddresses.h"
#include "fakes/FakeNetworkHost.h"
#include "fakes/FakeNotifier.h"
#include "fakes/FakeRandomSource.h"
#include "fakes/FakeScheduler.h"
#include "fakes/FakeSettingsStore.h"
#include "fakes/QtPrinting.h"
#include "platform/NotificationCenter.h"
#include "rules/CountdownTimers.h"

#include <gtest/gtest.h>

#include <memory>

namespace quillon::test {

inline void PrintTo(const FakeNotifier::Message &message, std::ostream *out)
{
    PrintTo(message.title, out);
    PrintTo(message.body, out);
}

/// Two interfaces whose rules say how long a countdown takes, and a list of the changes that
/// countdowns asked for.
class CountdownMachine : public ::testing::Test
{
protected:
    CountdownMachine()
    {
        table.updateNetWorkInterfaces();
        ruleSays(en0, 2);
        QObject::connect(timers.get(), &CountdownTimers::ticked,
            [this](const QString &device, const QString &text, bool isPaused) {
                ++ticks;
                shown = device + QStringLiteral(": ") + text;
                shownAsPaused = isPaused;
            });
        QObject::connect(timers.get(), &CountdownTimers::timerLabelStale, [this] { ++hidden; });
        QObject::connect(timers.get(), &CountdownTimers::timerButtonsStale, [this] { ++reset; });
    }

    void ruleSays(const QString &device, const QVariant &minutes)
    {
        QVariantMap devices = table.devices();
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
    int started() const
    {
        int count = 0;
        for (const FakeNotifier::Message &message : notifier.messages()) {
            count += message.title == QStringLiteral("Quillon Timer started");
        }
        return count;
    }
    int warnings() const { return static_cast<int>(notifier.messages().size()) - started(); }

    const QString en0 = QStringLiteral("en0");
    const QString en1 = QStringLiteral("en1");
    FakeScheduler scheduler;
    FakeSettingsStore settings{scheduler};
    FakeNetworkHost host{QStringLiteral("desk")};
    FakeInterfaceAddresses addresses{host};
    DeviceTable table{settings, host, addresses};
    NotificationCenter notifications;
    FakeNotifier notifier;
    FakeRandomSource random;
    QStringList changes;
    RandomAddress randomAddress{
        random, table, [this](const QString &device, const QString &address) {
            changes << device + QLatin1Char(' ') + address;
        }};
    std::unique_ptr<CountdownTimers> timers = std::make_unique<CountdownTimers>(
        CountdownTimers::Collaborators{scheduler, notifications, notifier, table, randomAddress});
    int ticks = 0;
    int hidden = 0;
    int reset = 0;
    QString shown;
    bool shownAsPaused = false;
};

} // namespace quillon::test
