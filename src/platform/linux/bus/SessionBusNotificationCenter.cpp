// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/bus/SessionBusNotificationCenter.h"

#include "base/Log.h"
#include "contract/Interfaces.h"

#include <QDBusMessage>

#include <utility>
#include <vector>

namespace quillon {

namespace distributed = contract::distributed;

SessionBusNotificationCenter::SessionBusNotificationCenter(QDBusConnection bus)
    : m_bus(std::move(bus))
{
    const bool listening = m_bus.connect(QString(), QLatin1String(distributed::path),
        QLatin1String(distributed::interface), QLatin1String(distributed::posted.name),
        QLatin1String(distributed::posted.signature), this, SLOT(received(QString, QString)));
    if (!listening) {
        qCWarning(logPlatform, "Broadcasts of the session cannot be heard");
    }
}

SessionBusNotificationCenter::~SessionBusNotificationCenter() = default;

void SessionBusNotificationCenter::post(const QString &name, const QString &object)
{
    QDBusMessage signal = QDBusMessage::createSignal(QLatin1String(distributed::path),
        QLatin1String(distributed::interface), QLatin1String(distributed::posted.name));
    signal << name << object;
    if (!m_bus.send(signal)) {
        qCWarning(logPlatform, "Broadcast %ls was not sent", qUtf16Printable(name));
    }
}

SessionBusNotificationCenter::Token SessionBusNotificationCenter::addObserver(
    const QString &name, const QString &object, std::function<void()> observer)
{
    m_observers.emplace(m_nextToken, Entry{name, object, std::move(observer)});
    return m_nextToken++;
}

void SessionBusNotificationCenter::removeObserver(Token token)
{
    m_observers.erase(token);
}

void SessionBusNotificationCenter::received(const QString &name, const QString &object)
{
    std::vector<Token> interested;
    for (const auto &[token, entry] : m_observers) {
        if (entry.name == name && entry.object == object) {
            interested.push_back(token);
        }
    }
    for (const Token token : interested) {
        // An observer may have removed a later one.
        if (const auto found = m_observers.find(token); found != m_observers.end()) {
            const auto observer = found->second.observer;
            observer();
        }
    }
}

} // namespace quillon
