// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/desktop/TrayHostWatch.h"

#include "platform/linux/bus/BusCall.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusServiceWatcher>
#include <QDBusVariant>

#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

using namespace std::chrono_literals;

// A watcher that says nothing for so long has no tray to show us in. At login it may be slow.
constexpr auto answerLimit = 25s;

const QString service = u"org.kde.StatusNotifierWatcher"_s;
const QString path = u"/StatusNotifierWatcher"_s;
const QString interface = u"org.kde.StatusNotifierWatcher"_s;

} // namespace

TrayHostWatch::TrayHostWatch()
    : m_watcher(new QDBusServiceWatcher(this))
{
}

void TrayHostWatch::watch(std::function<void(bool available)> observer)
{
    m_observer = std::move(observer);
    QDBusConnection bus = QDBusConnection::sessionBus();
    m_watcher->setConnection(bus);
    m_watcher->setWatchMode(QDBusServiceWatcher::WatchForOwnerChange);
    connect(m_watcher, &QDBusServiceWatcher::serviceOwnerChanged, this, &TrayHostWatch::ask);
    m_watcher->addWatchedService(service);
    for (const char *change : {"StatusNotifierHostRegistered", "StatusNotifierHostUnregistered"}) {
        bus.connect(service, path, interface, QLatin1String(change), this, SLOT(ask()));
    }
    ask();
}

void TrayHostWatch::ask()
{
    QDBusMessage call = QDBusMessage::createMethodCall(
        service, path, u"org.freedesktop.DBus.Properties"_s, u"Get"_s);
    call.setArguments({interface, u"IsStatusNotifierHostRegistered"_s});
    // The question alone must not start a tray that the user does not have.
    call.setAutoStartService(false);
    const quint64 question = ++m_question;
    const auto onAnswer = [this, question](const QDBusMessage &answer) {
        // An answer that a newer question has overtaken says nothing about now.
        if (question == m_question) {
            // An error has a text as its first argument, which is no variant.
            report(answer.arguments().value(0).value<QDBusVariant>().variant().toBool());
        }
    };
    callBus(QDBusConnection::sessionBus(), this, call, answerLimit, onAnswer);
}

void TrayHostWatch::report(bool available)
{
    if (m_known && available == m_available) {
        return;
    }
    m_known = true;
    m_available = available;
    m_observer(available);
}

} // namespace quillon
