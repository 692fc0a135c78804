// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/SettingsKeys.h"
#include "devices/DeviceTable.h"
#include "fakes/FakeInterfaceAddresses.h"
#include "fakes/FakeNetworkHost.h"
#include "fakes/FakeScheduler.h"
#include "fakes/FakeSettingsStore.h"
#include "fakes/QtPrinting.h"

#include <gtest/gtest.h>

namespace quillon::test {

/// A machine, the settings, and the device table between them.
class DeviceFixture : public ::testing::Test
{
protected:
    explicit DeviceFixture(const QString &machine = QStringLiteral("desk"))
        : host(machine)
    {
    }

    QVariantMap storedTable() const { return settings.getDictionary(keys::deviceDict); }
    QVariantMap storedRecord(const QString &device) const
    {
        return storedTable().value(device).toMap();
    }
    QVariantMap storedSelection() const
    {
        return settings.getDictionary(keys::currentInterfaceDict);
    }
    void store(const QVariantMap &devices) { settings.set(keys::deviceDict, devices); }
    void storeRecord(const QString &device, const QVariantMap &record)
    {
        QVariantMap devices = storedTable();
        devices[device] = record;
        store(devices);
    }
    QString recorded(const QString &device, const QString &key) const
    {
        return storedRecord(device).value(key).toString();
    }
    void select(const QString &device)
    {
        QVariantMap selection = storedRecord(device);
        selection[record::device] = device;
        settings.set(keys::currentInterfaceDict, selection);
    }

    FakeScheduler scheduler;
    FakeSettingsStore settings{scheduler};
    FakeNetworkHost host;
    FakeInterfaceAddresses addresses{host};
    DeviceTable table{settings, host, addresses};
};

} // namespace quillon::test
