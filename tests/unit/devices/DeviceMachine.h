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
class DeviceMachine : public ::testing::Test
{
protected:
    explicit DeviceMachine(const QString &machine = QStringLiteral("desk"))
        : host(machine)
    {
    }

    void store(const QVariantMap &devices) { settings.set(keys::deviceDict, devices); }
    void storeRecord(const QString &device, const QVariantMap &record)
    {
        QVariantMap devices = table.devices();
        devices[device] = record;
        store(devices);
    }
    QString recorded(const QString &device, const QString &key) const
    {
        return table.record(device).value(key).toString();
    }
    void select(const QString &device)
    {
        QVariantMap selection = table.record(device);
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
