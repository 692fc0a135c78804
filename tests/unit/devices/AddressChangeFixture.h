// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "DeviceFixture.h"
#include "base/NotificationNames.h"
#include "devices/AddressChanger.h"
#include "devices/CurrentInterface.h"
#include "devices/RandomAddress.h"
#include "fakes/FakeAddressOwners.h"
#include "fakes/FakeHelper.h"
#include "fakes/FakeNotifier.h"
#include "fakes/FakeRandomSource.h"
#include "helperlink/XPCMethods.h"
#include "platform/NotificationCenter.h"

#include <memory>

namespace quillon::test {

/// The whole road of a change, with a helper that keeps its addresses on the machine. en1, the
/// Wi-Fi device, is selected.
class AddressChangeFixture : public DeviceFixture
{
protected:
    AddressChangeFixture()
    {
        table.updateNetWorkInterfaces();
        select(en1);
        // The program asserts its main thread: the first connection is made on it.
        changer = std::make_unique<AddressChanger>(AddressChanger::Collaborators{settings,
            scheduler, notifications, notifier, xpc, owners, table, current, randomAddress});
        QObject::connect(changer.get(), &AddressChanger::addressChanged,
            [this](const QString &device, const QString &requested) {
                order << QStringLiteral("history %1 %2").arg(device, requested);
                messagesBeforeHistory = notifier.messages().size();
                historyOnMainThread = scheduler.isMainThread();
            });
        notifications.addObserver(
            notifications::addressUpdated, [this](const NotificationCenter::Notification &posted) {
                order << QStringLiteral("posted ") +
                             posted.userInfo.value(QStringLiteral("device")).toString();
                EXPECT_EQ(posted.userInfo.size(), 1);
            });
        QObject::connect(&current, &CurrentInterface::currentInterfaceUpdated,
            [this](const QString &device) { order << QStringLiteral("updated ") + device; });
        QObject::connect(&current, &CurrentInterface::hexValuesUpdated,
            [this] { order << QStringLiteral("hex values"); });
        settings.clearJournal();
        host.clearJournal();
    }

    void change(const QString &device, const QString &address)
    {
        changer->updateMacAddressWithAddress(device, address);
        scheduler.runPending();
    }
    QList<FakeNotifier::Message> told(const char *title, const char *body)
    {
        return {{QString::fromUtf8(title), QString::fromUtf8(body)}};
    }

    const QString en0 = QStringLiteral("en0");
    const QString en1 = QStringLiteral("en1");
    const QString wanted = QStringLiteral("02:AA:BB:CC:DD:01");
    NotificationCenter notifications;
    FakeNotifier notifier;
    FakeHelper helper{scheduler, host};
    FakeAddressOwners owners{scheduler};
    XPCMethods xpc{helper, scheduler, notifications};
    FakeRandomSource random;
    RandomAddress randomAddress{random, table};
    CurrentInterface current{settings, scheduler, table};
    std::unique_ptr<AddressChanger> changer;
    QStringList order;
    qsizetype messagesBeforeHistory = 0;
    bool historyOnMainThread = true;
};

} // namespace quillon::test
