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
constexpr uint portal = 2; // NM_CONNECTIVITY_PORTAL

const QString service = u"org.freedesktop.NetworkManager"_s;
const QString path = u"/org/freedesktop/NetworkManager"_s;
const QString properties = u"org.freedesktop.DBus.Properties"_s;
const QString connectivity = u"Connectivity"_s;

} // namespace

PortalReachability::PortalReachability(Reachability &network, QDBusConnection bus)
    : m_network(network)
    , m_bus(std::move(bus))
    , m_watcher(
          new QDBusServiceWatcher(service, m_bus, QDBusServiceWatcher::WatchForOwnerChange, this))
{
    connect(m_watcher, &QDBusServiceWatcher::serviceOwnerChanged, this, &PortalReachability::ask);
    m_bus.connect(service, path, properties, u"PropertiesChanged"_s, this,
        SLOT(propertiesChanged(QString, QVariantMap)));
    ask();
}

bool PortalReachability::isReachable()
{
    return !m_isPortal && m_network.isReachable();
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
        // An error has a text as its first argument, which is no variant: no portal is known of.
        if (question == m_question) {
            note(answer.arguments().value(0).value<QDBusVariant>().variant().toUInt());
        }
    });
}

void PortalReachability::note(uint connectivity)
{
    const bool isPortal = connectivity == portal;
    if (std::exchange(m_isPortal, isPortal) != isPortal && m_changed) {
        m_changed();
    }
}

} // namespace quillon
