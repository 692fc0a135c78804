// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/owner/PortalReachability.h"

#include "platform/linux/bus/BusCall.h"

#include <QDBusMessage>
#include <QDBusServiceWatcher>
#include <QDBusVariant>

#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

using namespace std::chrono_literals;

constexpr auto answerLimit = 5s;
// NMConnectivityState.
constexpr uint none = 1;
constexpr uint portal = 2;
constexpr uint limited = 3;

// From the first route of a network to what NetworkManager finds behind it: it goes through none
// and limited. Where it finds no more than that, the route counts.
constexpr auto findingLimit = 10s;

bool isFinding(uint connectivity)
{
    return connectivity == none || connectivity == limited;
}

const QString service = u"org.freedesktop.NetworkManager"_s;
const QString path = u"/org/freedesktop/NetworkManager"_s;
const QString properties = u"org.freedesktop.DBus.Properties"_s;
const QString connectivity = u"Connectivity"_s;

} // namespace

PortalReachability::PortalReachability(
    Reachability &network, Scheduler &scheduler, QDBusConnection bus)
    : m_network(network)
    , m_scheduler(scheduler)
    , m_bus(std::move(bus))
    , m_watcher(
          new QDBusServiceWatcher(service, m_bus, QDBusServiceWatcher::WatchForOwnerChange, this))
{
    connect(m_watcher, &QDBusServiceWatcher::serviceOwnerChanged, this, &PortalReachability::ask);
    m_bus.connect(service, path, properties, u"PropertiesChanged"_s, this,
        SLOT(propertiesChanged(QString, QVariantMap)));
    ask();
}

PortalReachability::~PortalReachability()
{
    endWait();
}

bool PortalReachability::isReachable()
{
    if (!m_network.isReachable()) {
        endWait();
        return false;
    }
    return isFinding(m_connectivity) ? hasWaited() : m_connectivity != portal;
}

bool PortalReachability::hasWaited()
{
    if (!m_waitsUntil) {
        m_waitsUntil = m_scheduler.monotonic() + findingLimit;
        m_waiting = m_scheduler.onMainAfter(findingLimit, this, [this] {
            if (m_changed) {
                m_changed();
            }
        });
    }
    return m_scheduler.monotonic() >= *m_waitsUntil;
}

void PortalReachability::endWait()
{
    if (std::exchange(m_waitsUntil, std::nullopt)) {
        m_scheduler.cancel(m_waiting);
    }
}

void PortalReachability::watch(std::function<void()> changed)
{
    m_network.watch(changed);
    m_changed = std::move(changed);
}

void PortalReachability::propertiesChanged(const QString &interface, const QVariantMap &changed)
{
    if (interface == service && changed.contains(connectivity)) {
        ++m_question;
        note(changed.value(connectivity).toUInt());
    }
}

void PortalReachability::ask()
{
    auto call = QDBusMessage::createMethodCall(service, path, properties, u"Get"_s);
    call.setArguments({service, connectivity});
    call.setAutoStartService(false);
    const quint64 question = ++m_question;
    callBus(m_bus, this, call, answerLimit, [this, question](const QDBusMessage &answer) {
        // An error has a text as its first argument, which is no variant: nothing is known (0).
        if (question == m_question) {
            note(answer.arguments().value(0).value<QDBusVariant>().variant().toUInt());
        }
    });
}

void PortalReachability::note(uint connectivity)
{
    const uint before = std::exchange(m_connectivity, connectivity);
    if (before == connectivity) {
        return;
    }
    if (!isFinding(before) || !isFinding(connectivity)) {
        endWait();
    }
    if (m_changed) {
        m_changed();
    }
}

} // namespace quillon
