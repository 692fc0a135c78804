// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/bus/BusPeer.h"

#include "base/Log.h"

#include <QDBusError>
#include <QDBusServiceWatcher>

#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

using namespace std::chrono_literals;

constexpr auto busLimit = 5s;

const QString localPath = u"/org/freedesktop/DBus/Local"_s;
const QString localInterface = u"org.freedesktop.DBus.Local"_s;

} // namespace

std::shared_ptr<BusPeer> BusPeer::make(QDBusConnection bus, Address address)
{
    // The last reference may be dropped inside one of its own handlers, or on another thread.
    return {new BusPeer(std::move(bus), std::move(address)),
        [](BusPeer *peer) { peer->deleteLater(); }};
}

BusPeer::BusPeer(QDBusConnection bus, Address address)
    : m_bus(std::move(bus))
    , m_address(std::move(address))
{
}

BusPeer::~BusPeer() = default;

void BusPeer::setInvalidationHandler(std::function<void()> handler)
{
    m_invalidationHandler = std::move(handler);
}

void BusPeer::resume()
{
    if (m_state != State::Made) {
        return;
    }
    if (m_address.name.isEmpty()) {
        // Its calls fail as those of any connection that is not open.
        QMetaObject::invokeMethod(
            this, [self = shared_from_this()] { self->invalidate(u"No such peer"_s); },
            Qt::QueuedConnection);
        return;
    }
    m_state = State::Resumed;
    watch();
    // A well-known name is started on demand; a unique one that is gone never comes back.
    if (m_address.name.startsWith(u':')) {
        askWhetherThere();
    }
}

void BusPeer::watch()
{
    auto *watcher = new QDBusServiceWatcher(
        m_address.name, m_bus, QDBusServiceWatcher::WatchForOwnerChange, this);
    connect(watcher, &QDBusServiceWatcher::serviceOwnerChanged, this,
        [this](const QString &, const QString &oldOwner) {
            if (!oldOwner.isEmpty()) {
                invalidate(u"The program left the bus"_s);
            }
        });
    m_bus.connect(QString(), localPath, localInterface, u"Disconnected"_s, this, SLOT(busLost()));
}

void BusPeer::askWhetherThere()
{
    const QDBusMessage question = nameHasOwner(m_address.name);
    callBus(m_bus, this, question, busLimit, [this](const QDBusMessage &answer) {
        if (answer.type() != QDBusMessage::ReplyMessage || !answer.arguments().value(0).toBool()) {
            invalidate(u"The program is not on the bus"_s);
        }
    });
}

void BusPeer::call(const QString &method, const QVariantList &arguments,
    std::chrono::milliseconds limit, BusReply reply)
{
    const quint64 number = ++m_lastNumber;
    m_pending[number] = std::move(reply);
    const auto self = shared_from_this();
    if (m_state != State::Resumed) {
        const auto error =
            QDBusMessage::createError(QDBusError::Disconnected, u"The connection is not open"_s);
        QMetaObject::invokeMethod(
            this, [self, number, error] { self->finish(number, error); }, Qt::QueuedConnection);
        return;
    }
    QDBusMessage message =
        QDBusMessage::createMethodCall(m_address.name, m_address.path, m_address.interface, method);
    message.setArguments(arguments);
    callBus(m_bus, this, message, limit,
        [self, number](const QDBusMessage &answer) { self->finish(number, answer); });
}

void BusPeer::finish(quint64 number, const QDBusMessage &answer)
{
    // Absent when the invalidation ended it already.
    if (const BusReply reply = m_pending.take(number)) {
        reply(answer);
    }
}

void BusPeer::busLost()
{
    invalidate(u"The message bus is gone"_s);
}

void BusPeer::invalidate(const QString &why)
{
    // Nobody holds it any more between its last reference and its deletion in a later turn.
    const auto self = weak_from_this().lock();
    if (!self || m_state == State::Invalidated) {
        return;
    }
    m_state = State::Invalidated;
    qCDebug(logPlatform, "%ls: %ls", qUtf16Printable(m_address.name), qUtf16Printable(why));
    const auto error = QDBusMessage::createError(QDBusError::Disconnected, why);
    const QList<quint64> pending = m_pending.keys();
    for (const quint64 number : pending) {
        finish(number, error);
    }
    if (const auto handler = std::exchange(m_invalidationHandler, nullptr)) {
        handler();
    }
}

} // namespace quillon
