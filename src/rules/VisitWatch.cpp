// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "rules/VisitWatch.h"

#include "devices/DeviceTable.h"
#include "platform/NetworkHost.h"
#include "platform/Scheduler.h"
#include "rules/RuleOutcome.h"

#include <utility>

namespace quillon {

namespace {

using namespace std::chrono_literals;

/// A radio that is back on its network within this time has never left it: access points of one
/// network hand it over, and a scan takes it away for a moment.
constexpr std::chrono::milliseconds sameNetworkTime = 10s;
/// By how much the wall clock runs ahead in what is taken for a sleep.
constexpr std::chrono::milliseconds suspensionTime = 1min;

std::chrono::milliseconds clockAhead(const Scheduler &scheduler)
{
    return std::chrono::milliseconds(scheduler.now().toMSecsSinceEpoch()) - scheduler.monotonic();
}

} // namespace

VisitWatch::VisitWatch(Visits &visits, const DeviceTable &devices, const Scheduler &scheduler)
    : m_visits(visits)
    , m_devices(devices)
    , m_scheduler(scheduler)
    , m_clockAhead(clockAhead(scheduler))
{
}

// Under another rule, or on another network, what was carried out before is over.
void VisitWatch::followNetwork(
    const QString &device, const RuleOutcome &outcome, const Visits::Act &act)
{
    const QDateTime now = m_scheduler.now();
    m_visits.sawAddress(device, outcome.address);
    if (m_visits.isCarriedOut(device, act)) {
        if (outcome.linkIsUp) {
            m_visits.sawOnNetwork(device, now);
        }
    } else if (!outcome.isWifi) {
        m_visits.sawOffNetwork(device, now);
    } else if (outcome.linkIsUp && !outcome.ssid.isEmpty() &&
               outcome.ssid != m_visits.ssid(device)) {
        m_visits.sawElsewhere(device);
    } else if (!outcome.ssid.isEmpty() || !outcome.linkIsUp) {
        m_visits.sawOffNetwork(device, now, sameNetworkTime);
    }
    // A link that is up on no network at all was not read well.
}

void VisitWatch::followVisits()
{
    noteSuspension();
    const QStringList devices = m_visits.devices();
    for (const QString &device : devices) {
        followDevice(device);
    }
}

void VisitWatch::followDevice(const QString &device)
{
    // A table that could not be read, or a device that is no port for now, is not "taken away".
    if (!m_devices.isPresent(device)) {
        const InterfaceInfo info = m_devices.getInfoForDevice(device);
        if (info.macAddress.isEmpty() && !info.readFailed) {
            m_visits.sawGone(device);
            return;
        }
    }
    const DeviceRecord record = m_devices.record(device);
    const QDateTime now = m_scheduler.now();
    if (!record.isUp()) {
        const bool isKnown = !record.status.value_or(QString()).isEmpty();
        if (isKnown) {
            m_visits.sawOffNetwork(device, now, record.isWifi() ? sameNetworkTime : 0ms);
        }
    } else if (record.isWifi()) {
        // Which network it is on is seen when its rules are evaluated.
        m_visits.sawLinkUp(device, now);
    } else {
        m_visits.sawOnNetwork(device, now);
    }
}

// Where the end of a sleep is not told. A clock that is set looks the same, hence the time.
void VisitWatch::noteSuspension()
{
    const std::chrono::milliseconds before = std::exchange(m_clockAhead, clockAhead(m_scheduler));
    if (std::chrono::abs(m_clockAhead - before) > suspensionTime) {
        machineSlept();
    }
}

void VisitWatch::machineSlept()
{
    const QStringList devices = m_visits.devices();
    for (const QString &device : devices) {
        if (!m_devices.isDeviceWifi(device)) {
            m_visits.sawGone(device);
        }
    }
}

} // namespace quillon
