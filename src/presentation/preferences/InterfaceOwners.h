// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/Shown.h"

#include <QList>
#include <QObject>
#include <QStringList>

namespace quillon {

class AddressOwners;
class DeviceTable;
class Scheduler;

/// Which program manages each interface, by asking for one after the other while somebody looks.
/// Main thread.
class InterfaceOwners : public QObject
{
    Q_OBJECT

public:
    struct Row
    {
        QString device;
        QString owner; ///< in the user's language; "" while it is asked for

        bool operator==(const Row &) const = default;
    };
    struct State
    {
        QList<Row> rows;

        bool operator==(const State &) const = default;
    };

    InterfaceOwners(const DeviceTable &devices, AddressOwners &owners, Scheduler &scheduler);

    const State &state() const { return m_state.get(); }

    /// Whether anybody looks. Asks anew each time that somebody begins to.
    void setShown(bool isShown);
    /// The interfaces were read again.
    void interfacesWereRead();

Q_SIGNALS:
    /// Something in state() changed.
    void changed();

private:
    void askAll();
    void askNext(int round);
    void take(int round, const QString &device, const QString &owner);

    const DeviceTable &m_devices;
    AddressOwners &m_owners;
    Scheduler &m_scheduler;
    bool m_isShown = false;
    int m_round = 0; ///< of questions; answers to an earlier one do not count
    QStringList m_waiting;
    Shown<State> m_state{[this] { Q_EMIT changed(); }};
};

} // namespace quillon
