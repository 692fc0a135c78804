// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/Shown.h"
#include "platform/Scheduler.h"

#include <QHash>
#include <QList>
#include <QObject>

#include <chrono>

namespace quillon {

class CurrentInterface;
class DeviceTable;
class ExposureSource;
struct ExposureFacts;

/// What the network of the selected interface knows it by beside its address. Read anew when
/// somebody begins to look, and when something happens to the interface meanwhile; nothing is done
/// while nobody looks. Main thread.
class TracesModel : public QObject
{
    Q_OBJECT

public:
    struct Row
    {
        QString label;
        QString value;
        QString hint; ///< what becomes of it, and what can be done; "" for nothing to say

        bool operator==(const Row &) const = default;
    };
    struct State
    {
        QString title;
        QString line; ///< in place of rows: that it is being read, or that there is nothing
        QList<Row> rows;

        bool operator==(const State &) const = default;
    };

    TracesModel(ExposureSource &source, Scheduler &scheduler, const CurrentInterface &current,
        const DeviceTable &devices);

    const State &state() const { return m_state.get(); }

    void setShown(bool isShown);
    /// Of the selection, or of what is known of the selected interface.
    void interfaceWasUpdated();
    /// Of any interface: what it has from before is what it kept.
    void addressChangeBegan(const QString &device);
    void addressChangeEnded(const QString &device, bool isInPlace);

Q_SIGNALS:
    /// Something in state() changed.
    void changed();

private:
    void read();
    void take(const QString &device, const ExposureFacts &facts);

    ExposureSource &m_source;
    Scheduler &m_scheduler;
    const CurrentInterface &m_current;
    const DeviceTable &m_devices;
    bool m_isShown = false;
    bool m_isReading = false;
    bool m_isStale = false; ///< something happened while it was read
    QString m_device;       ///< of which the rows tell
    /// In the scheduler's monotonic time, by device.
    QHash<QString, std::chrono::milliseconds> m_begun;
    QHash<QString, std::chrono::milliseconds> m_changed;
    Shown<State> m_state{[this] { Q_EMIT changed(); }};
};

} // namespace quillon
