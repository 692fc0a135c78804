// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/networks/TracesModel.h"

#include "base/Localized.h"
#include "devices/CurrentInterface.h"
#include "devices/DeviceTable.h"
#include "exposure/Traces.h"
#include "presentation/networks/TraceTexts.h"

#include <QPointer>

#include <utility>

namespace quillon {

TracesModel::TracesModel(ExposureSource &source, Scheduler &scheduler,
    const CurrentInterface &current, const DeviceTable &devices)
    : m_source(source)
    , m_scheduler(scheduler)
    , m_current(current)
    , m_devices(devices)
{
}

void TracesModel::setShown(bool isShown)
{
    if (std::exchange(m_isShown, isShown) != isShown && isShown) {
        read();
    }
}

void TracesModel::interfaceWasUpdated()
{
    if (m_isShown) {
        read();
    }
}

void TracesModel::addressChangeBegan(const QString &device)
{
    m_begun.insert(device, m_scheduler.monotonic());
}

void TracesModel::addressChangeEnded(const QString &device, bool isInPlace)
{
    const auto begun = m_begun.constFind(device);
    if (isInPlace && begun != m_begun.constEnd()) {
        m_changed.insert(device, *begun);
    }
    m_begun.remove(device);
    interfaceWasUpdated();
}

void TracesModel::read()
{
    m_isStale = m_isReading;
    if (m_isReading) {
        return;
    }
    const QString device = m_current.device();
    m_state.update([&](State &state) {
        state.title = device.isEmpty()
                          ? localized("What the network still sees")
                          : filled(localized("What the network of %@ still sees"), {device});
        if (device != m_device) {
            // What was known of another interface is not this one's.
            state.rows.clear();
        }
        state.line = device.isEmpty()       ? localized("No interface is selected.")
                     : state.rows.isEmpty() ? localized("Looking…")
                                            : state.line;
    });
    m_device = device;
    if (device.isEmpty()) {
        return;
    }
    m_isReading = true;
    m_source.read(device, [self = QPointer(this), device](const ExposureFacts &facts) {
        if (self) {
            self->take(device, facts);
        }
    });
}

void TracesModel::take(const QString &device, const ExposureFacts &facts)
{
    m_isReading = false;
    if (std::exchange(m_isStale, false) || device != m_current.device()) {
        interfaceWasUpdated();
        return;
    }
    const DeviceRecord record = m_devices.record(device);
    const LinkAddresses link{.inUse = linkOctets(record.current.value_or(QString())),
        .hardware = linkOctets(record.hardware.value_or(QString()))};
    std::optional<std::chrono::seconds> sinceChange;
    if (const auto change = m_changed.constFind(device); change != m_changed.constEnd()) {
        sinceChange =
            std::chrono::duration_cast<std::chrono::seconds>(m_scheduler.monotonic() - *change);
    }
    const QDateTime now = m_scheduler.now();
    QList<Row> rows;
    const auto traces = tracesOf(device, facts, link, sinceChange);
    for (const Trace &trace : traces) {
        rows.append({traceLabel(trace.kind), traceValue(trace), traceHint(trace, now)});
    }
    m_state.update([&](State &state) {
        state.rows = rows;
        state.line = rows.isEmpty()
                         ? localized("Nothing but the address is known to tell who this is.")
                         : QString();
    });
}

} // namespace quillon
