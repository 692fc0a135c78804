// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/preferences/InterfaceOwners.h"

#include "base/Localized.h"
#include "devices/DeviceTable.h"
#include "platform/AddressOwner.h"
#include "platform/Scheduler.h"

#include <QHash>
#include <QPointer>

#include <utility>

namespace quillon {

InterfaceOwners::InterfaceOwners(
    const DeviceTable &devices, AddressOwners &owners, Scheduler &scheduler)
    : m_devices(devices)
    , m_owners(owners)
    , m_scheduler(scheduler)
{
}

void InterfaceOwners::setShown(bool isShown)
{
    if (std::exchange(m_isShown, isShown) != isShown) {
        ++m_round;
        if (isShown) {
            askAll();
        }
    }
}

void InterfaceOwners::interfacesWereRead()
{
    if (m_isShown) {
        askAll();
    }
}

void InterfaceOwners::askAll()
{
    QHash<QString, QString> known;
    for (const Row &row : m_state->rows) {
        known.insert(row.device, row.owner);
    }
    QList<Row> rows;
    m_waiting.clear();
    const QStringList names = m_devices.sortedDevicesArray();
    for (const QString &device : names) {
        if (m_devices.isPresent(device)) {
            // What was known stands until the new answer comes.
            rows.append({device, known.value(device)});
            m_waiting.append(device);
        }
    }
    m_state.update([&rows](State &state) { state.rows = rows; });
    askNext(++m_round);
}

void InterfaceOwners::askNext(int round)
{
    if (m_waiting.isEmpty()) {
        return;
    }
    const QString device = m_waiting.takeFirst();
    // One question at a time, each in a turn of its own: hundreds of interfaces block nothing.
    m_owners.find(
        device, [self = QPointer(this), round, device](const std::unique_ptr<AddressOwner> &owner) {
            if (self) {
                self->take(round, device, owner ? owner->name() : QString());
            }
        });
}

void InterfaceOwners::take(int round, const QString &device, const QString &owner)
{
    if (round != m_round) {
        return;
    }
    m_state.update([&](State &state) {
        for (Row &row : state.rows) {
            if (row.device == device) {
                row.owner = owner.isEmpty() ? localized("no program that is known") : owner;
            }
        }
    });
    m_scheduler.onMain(this, [this, round] {
        if (round == m_round) {
            askNext(round);
        }
    });
}

} // namespace quillon
