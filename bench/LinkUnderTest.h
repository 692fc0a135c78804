// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/Notifier.h"
#include "bench/TimedHost.h"
#include "contract/Interfaces.h"
#include "devices/AddressChanger.h"
#include "devices/CurrentInterface.h"
#include "devices/DeviceTable.h"
#include "devices/RandomAddress.h"
#include "helperlink/XPCMethods.h"
#include "platform/NotificationCenter.h"
#include "platform/linux/GetrandomSource.h"
#include "platform/linux/bus/DBusHelperLink.h"
#include "platform/linux/netlink/GetifaddrsAddresses.h"
#include "platform/linux/netlink/NetlinkHost.h"
#include "platform/linux/owner/LinuxAddressOwners.h"
#include "platform/qt/QtScheduler.h"
#include "platform/qt/settings/PlistSettingsStore.h"

#include <optional>

namespace quillon::bench {

/// The program's side of one address change, put together as main() does it, without windows. The
/// user is told nothing and asked nothing: neither waits for anybody.
class LinkUnderTest : private Notifier
{
public:
    /// `settings` is the path of a settings file.
    explicit LinkUnderTest(const QString &settings);

    /// Changes the address and waits until the change is announced: nanoseconds until the address
    /// was read back, and until the change was stored and announced.
    Words change(const QString &device, const QString &address);
    /// Reads all interfaces: nanoseconds, and how many were kept.
    Words ports();
    /// Reads all interfaces into the table in the settings file: nanoseconds.
    Words refresh();

    // One call each, over the bus and back: nanoseconds.
    Words connectThroughService();
    Words versionOfHelper();
    Words changeByHelper(const QString &device, const QString &address);

private:
    struct Reached
    {
        QString endpoint;
        QByteArray authorization;
    };

    void sendNotificationWithBody(const QString &title, const QString &body) override;
    void ask(const Question &) override {}
    void withdraw(const QString &) override {}
    Reached reach();
    Words callHelper(const contract::Method &method, const QVariantList &arguments);
    QDBusMessage call(const QDBusConnection &bus, const QDBusMessage &message);

    QtScheduler m_scheduler;
    PlistSettingsStore m_settings;
    NotificationCenter m_notifications;
    NetlinkHost m_kernel;
    TimedHost m_host{m_kernel};
    GetifaddrsAddresses m_addresses;
    GetrandomSource m_random;
    DBusHelperLink m_link{m_random};
    /// No interface here is owned by anybody: nothing is let go that a guard would take back.
    LinuxAddressOwners m_owners{m_scheduler, m_settings, {}};
    XPCMethods m_helper{m_link, m_scheduler, m_notifications};
    DeviceTable m_devices{m_settings, m_host, m_addresses};
    CurrentInterface m_currentInterface{m_settings, m_scheduler, m_devices};
    RandomAddress m_randomAddress{m_random, m_devices};
    AddressChanger m_changer;
    std::optional<QString> m_failure;
    bool m_announced = false;
    Reached m_reached;
};

} // namespace quillon::bench
