// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/exposure/BusAnswers.h"

#include "platform/linux/bus/BusCall.h"

#include <QDBusArgument>

#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

using namespace std::chrono_literals;

// They answer at once or hang.
constexpr auto answerLimit = 2s;

} // namespace

BusAnswers::BusAnswers(
    QDBusConnection bus, QString service, QObject *context, std::function<void()> done)
    : m_bus(std::move(bus))
    , m_service(std::move(service))
    , m_context(context)
    , m_done(std::move(done))
{
}

BusAnswers::~BusAnswers()
{
    if (m_context) {
        m_done();
    }
}

void BusAnswers::ask(const QString &path, const QString &interface, const QString &method,
    const QVariantList &arguments, const Take &take)
{
    auto call = QDBusMessage::createMethodCall(m_service, path, interface, method);
    call.setArguments(arguments);
    call.setAutoStartService(false);
    send(call, [take](const QDBusMessage &answer) {
        if (answer.type() == QDBusMessage::ReplyMessage) {
            take(answer);
        }
    });
}

void BusAnswers::askProperties(const QString &path, const QString &interface,
    const std::function<void(const QVariantMap &properties)> &take)
{
    ask(path, u"org.freedesktop.DBus.Properties"_s, u"GetAll"_s, {interface},
        [take](const QDBusMessage &answer) {
            if (answer.signature() == "a{sv}"_L1) {
                take(qdbus_cast<QVariantMap>(answer.arguments().value(0)));
            }
        });
}

void BusAnswers::isRunning(const std::function<void(bool)> &take)
{
    send(nameHasOwner(m_service), [take](const QDBusMessage &answer) {
        if (answer.type() == QDBusMessage::ReplyMessage) {
            take(answer.arguments().value(0).toBool());
        }
    });
}

void BusAnswers::send(const QDBusMessage &call, const Take &take)
{
    callBus(m_bus, m_context, call, answerLimit,
        [self = shared_from_this(), take](const QDBusMessage &answer) { take(answer); });
}

} // namespace quillon
