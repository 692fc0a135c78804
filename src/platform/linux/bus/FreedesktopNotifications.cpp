// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/bus/FreedesktopNotifications.h"

#include "contract/Names.h"
#include "platform/linux/bus/BusCall.h"

#include <QDBusServiceWatcher>
#include <QVariantMap>

#include <algorithm>
#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

using namespace std::chrono_literals;

constexpr auto serverLimit = 25s; // a server that is started on demand may take its time

const QString serverName = u"org.freedesktop.Notifications"_s;
const QString serverPath = u"/org/freedesktop/Notifications"_s;

QDBusMessage serverCall(const QString &method)
{
    return QDBusMessage::createMethodCall(serverName, serverPath, serverName, method);
}

// Only such a message stays on the screen until the user has taken it away.
constexpr uchar urgencyCritical = 2;

// Keys and labels in turn; an action's key is its number.
QStringList keysAndLabels(const QList<UserNotificationAction> &actions)
{
    QStringList words;
    for (const UserNotificationAction &action : actions) {
        words << QString::number(words.size() / 2) << action.label;
    }
    return words;
}

Error malformedAnswer()
{
    return {busErrorDomain, 0, u"The notification server's answer is malformed"_s};
}

} // namespace

FreedesktopNotifications::FreedesktopNotifications(Scheduler &scheduler, QDBusConnection bus)
    : m_scheduler(scheduler)
    , m_bus(std::move(bus))
{
    m_bus.connect(serverName, serverPath, serverName, u"NotificationClosed"_s, this,
        SLOT(closed(quint32, quint32)));
    m_bus.connect(serverName, serverPath, serverName, u"ActionInvoked"_s, this,
        SLOT(invoked(quint32, QString)));
    auto *watcher =
        new QDBusServiceWatcher(serverName, m_bus, QDBusServiceWatcher::WatchForOwnerChange, this);
    connect(watcher, &QDBusServiceWatcher::serviceOwnerChanged, this,
        &FreedesktopNotifications::serverChanged);
}

FreedesktopNotifications::~FreedesktopNotifications()
{
    for (const Scheduler::Token token : std::as_const(m_pending)) {
        m_scheduler.cancel(token);
    }
}

void FreedesktopNotifications::requestAlertAuthorization(AuthorizationReply reply)
{
    callBus(m_bus, this, serverCall(u"GetCapabilities"_s), serverLimit,
        [reply = std::move(reply)](const QDBusMessage &answer) {
            if (answer.type() == QDBusMessage::ReplyMessage) {
                reply(true, std::nullopt);
            } else {
                reply(false, busError(answer));
            }
        });
}

void FreedesktopNotifications::removePending(const QString &identifier)
{
    if (const auto found = m_pending.constFind(identifier); found != m_pending.constEnd()) {
        m_scheduler.cancel(*found);
        m_pending.erase(found);
    }
}

void FreedesktopNotifications::removeDelivered(const QString &identifier)
{
    // One whose answer is still on its way is closed when the answer finds it gone.
    const Delivered delivered = m_delivered.take(identifier);
    if (delivered.serverId != 0) {
        close(delivered.serverId);
    }
}

void FreedesktopNotifications::add(const UserNotificationRequest &request, AddReply reply)
{
    removePending(request.identifier);
    m_pending.insert(request.identifier,
        m_scheduler.onMainAfter(request.delay, [this, request, reply = std::move(reply)] {
            m_pending.remove(request.identifier);
            withCapabilities([this, request, reply](const std::optional<Error> &error) {
                if (error) {
                    reply(error);
                } else {
                    show(request, reply);
                }
            });
        }));
}

void FreedesktopNotifications::withCapabilities(CapabilityUse use)
{
    if (m_capabilities) {
        use(std::nullopt);
        return;
    }
    callBus(m_bus, this, serverCall(u"GetCapabilities"_s), serverLimit,
        [this, use = std::move(use)](const QDBusMessage &answer) {
            if (answer.type() != QDBusMessage::ReplyMessage) {
                use(busError(answer));
                return;
            }
            m_capabilities = answer.arguments().value(0).toStringList();
            use(std::nullopt);
        });
}

void FreedesktopNotifications::show(const UserNotificationRequest &request, const AddReply &reply)
{
    const quint64 number = ++m_lastNumber;
    Delivered &delivered = m_delivered[request.identifier];
    const quint32 replaces = delivered.serverId;
    delivered = {number, replaces};
    callBus(m_bus, this, notifyCall(request, replaces), serverLimit,
        [this, request, number, reply](
            const QDBusMessage &answer) { shown(request, number, answer, reply); });
}

QDBusMessage FreedesktopNotifications::notifyCall(
    const UserNotificationRequest &request, quint32 replaces) const
{
    const bool hasMarkup = m_capabilities && m_capabilities->contains(u"body-markup"_s);
    const bool hasActions = m_capabilities && m_capabilities->contains(u"actions"_s);
    QVariantMap hints{{u"desktop-entry"_s, QString::fromLatin1(contract::applicationName)}};
    if (request.defaultSound) {
        hints.insert(u"sound-name"_s, u"message-new-instant"_s);
    } else {
        hints.insert(u"suppress-sound"_s, true);
    }
    const int serversOwnTime = -1;
    if (!request.actions.isEmpty()) {
        hints.insert(u"urgency"_s, QVariant::fromValue(urgencyCritical));
    }
    QDBusMessage call = serverCall(u"Notify"_s);
    call << u"Quillon"_s << replaces << QString::fromLatin1(contract::applicationName)
         << request.title << (hasMarkup ? request.body.toHtmlEscaped() : request.body)
         << (hasActions ? keysAndLabels(request.actions) : QStringList()) << hints
         << serversOwnTime;
    return call;
}

void FreedesktopNotifications::shown(const UserNotificationRequest &request, quint64 number,
    const QDBusMessage &answer, const AddReply &reply)
{
    const auto current = m_delivered.find(request.identifier);
    const bool isCurrent = current != m_delivered.end() && current->number == number;
    if (answer.type() != QDBusMessage::ReplyMessage || answer.signature() != "u"_L1) {
        if (isCurrent) {
            m_delivered.erase(current);
        }
        reply(answer.type() == QDBusMessage::ErrorMessage ? busError(answer) : malformedAnswer());
        return;
    }
    const quint32 serverId = answer.arguments().constFirst().toUInt();
    if (isCurrent) {
        current->serverId = serverId;
        current->actions = request.actions;
    } else if (current == m_delivered.end() || current->serverId != serverId) {
        // It was removed, or replaced by a newer one, while the server was still answering.
        close(serverId);
    }
    reply(std::nullopt);
}

void FreedesktopNotifications::close(quint32 serverId)
{
    QDBusMessage call = serverCall(u"CloseNotification"_s);
    call.setAutoStartService(false);
    call << serverId;
    m_bus.send(call);
}

void FreedesktopNotifications::serverChanged()
{
    m_capabilities.reset();
    // The new server numbers its messages anew: an old number would close a stranger's. A message
    // that is on its way keeps its place, for it may be what starts the server.
    for (Delivered &delivered : m_delivered) {
        delivered.serverId = 0;
    }
}

void FreedesktopNotifications::closed(quint32 serverId, quint32)
{
    if (serverId == 0) {
        return;
    }
    m_delivered.removeIf(
        [serverId](const auto &delivered) { return delivered.value().serverId == serverId; });
}

void FreedesktopNotifications::invoked(quint32 serverId, const QString &actionKey)
{
    const auto found = std::ranges::find(m_delivered, serverId, &Delivered::serverId);
    bool isNumber = false;
    const int number = actionKey.toInt(&isNumber);
    if (serverId == 0 || found == m_delivered.end() || !isNumber || number < 0 ||
        number >= found->actions.size()) {
        return;
    }
    const auto chosen = found->actions.at(number).chosen;
    m_delivered.erase(found);
    // Not every server takes away what was answered.
    close(serverId);
    chosen();
}

} // namespace quillon
