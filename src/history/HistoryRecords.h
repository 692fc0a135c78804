// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "store/graph/ManagedObject.h"

#include <memory>

namespace quillon {

class DeviceTable;
class RecordStore;
class Scheduler;
class SettingsStore;

/// The history: every change of an address that was made, as records of the entity "Connection".
/// There is no limit to their number; only the user deletes them.
class HistoryRecords
{
public:
    HistoryRecords(RecordStore &records, const DeviceTable &devices, const SettingsStore &settings,
        Scheduler &scheduler);

    /// Records that `device` was given `address`, with the network of the last Wi-Fi refresh when
    /// its port is Wi-Fi, and saves at once. A record that cannot be saved is logged and waits for
    /// the next save. Any thread: on another than the main one the facts are taken at once and the
    /// record is made in a later turn of the main loop.
    void addHistoryItemForDeviceWithNewAddress(const QString &device, const QString &address);

    /// Asks for the entity "History", which no store has: logs that, and answers nothing. Lists of
    /// the history fetch Connection::fetchRequest(). Main thread.
    ManagedObjectList managedHistoryArray();

private:
    struct Fact;
    Fact factNow(const QString &device, const QString &address) const;
    void record(const Fact &fact);

    RecordStore &m_records;
    const DeviceTable &m_devices;
    const SettingsStore &m_settings;
    Scheduler &m_scheduler;
    std::shared_ptr<const bool> m_life; ///< expires with this, on the main thread
};

} // namespace quillon
