// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/bus/BusCall.h"

#include "contract/Interfaces.h"

#include <QDBusError>
#include <QDBusPendingCall>
#include <QDBusPendingCallWatcher>

#include <algorithm>
#include <iterator>
#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr int longestLogMessage = 1000;

const contract::ErrorName *contractError(const QString &name)
{
    const auto *found = std::ranges::find_if(contract::allErrors,
        [&](const contract::ErrorName &error) { return name == QLatin1String(error.name); });
    return found == std::end(contract::allErrors) ? nullptr : found;
}

} // namespace

void callBus(const QDBusConnection &bus, QObject *context, const QDBusMessage &call,
    std::chrono::milliseconds limit, BusReply reply)
{
    if (!bus.isConnected()) {
        // Without a bus there is no pending call that could answer later.
        const auto error = QDBusMessage::createError(QDBusError::Disconnected, u"No message bus"_s);
        QMetaObject::invokeMethod(
            context, [reply = std::move(reply), error] { reply(error); }, Qt::QueuedConnection);
        return;
    }
    auto *watcher =
        new QDBusPendingCallWatcher(bus.asyncCall(call, static_cast<int>(limit.count())), context);
    QObject::connect(watcher, &QDBusPendingCallWatcher::finished, context,
        [reply = std::move(reply)](QDBusPendingCallWatcher *finished) {
            finished->deleteLater();
            reply(finished->reply());
        });
}

QDBusMessage nameHasOwner(const QString &name)
{
    const QString bus = u"org.freedesktop.DBus"_s;
    QDBusMessage question =
        QDBusMessage::createMethodCall(bus, u"/org/freedesktop/DBus"_s, bus, u"NameHasOwner"_s);
    question << name;
    return question;
}

Error busError(const QDBusMessage &message)
{
    const auto *known = contractError(message.errorName());
    return {message.errorName(), known ? known->code : 0,
        message.errorMessage().left(longestLogMessage)};
}

bool isContractError(const QDBusMessage &message)
{
    return message.type() == QDBusMessage::ErrorMessage && contractError(message.errorName());
}

} // namespace quillon
