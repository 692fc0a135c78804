// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/desktop/PortalColorScheme.h"

#include "platform/linux/bus/BusCall.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>

#include <utility>

namespace quillon {

namespace {

using namespace std::chrono_literals;

const QString service = QStringLiteral("org.freedesktop.portal.Desktop");
const QString path = QStringLiteral("/org/freedesktop/portal/desktop");
const QString interface = QStringLiteral("org.freedesktop.portal.Settings");
const QString appearance = QStringLiteral("org.freedesktop.appearance");
const QString colorScheme = QStringLiteral("color-scheme");

// The portal may have to be started first.
constexpr auto answerLimit = 25s;

// The portal's numbers.
constexpr uint preferDark = 1;
constexpr uint preferLight = 2;

} // namespace

void PortalColorScheme::watch(std::function<void(ColorScheme)> observer)
{
    m_observer = std::move(observer);
    QDBusConnection bus = QDBusConnection::sessionBus();
    bus.connect(service, path, interface, QStringLiteral("SettingChanged"), this,
        SLOT(settingChanged(QDBusMessage)));

    QDBusMessage call =
        QDBusMessage::createMethodCall(service, path, interface, QStringLiteral("Read"));
    call.setArguments({appearance, colorScheme});
    callBus(bus, this, call, answerLimit, [this](const QDBusMessage &answer) {
        if (answer.type() == QDBusMessage::ReplyMessage) {
            report(answer.arguments().value(0));
        }
    });
}

void PortalColorScheme::settingChanged(const QDBusMessage &message)
{
    const QVariantList arguments = message.arguments();
    if (arguments.value(0) == appearance && arguments.value(1) == colorScheme) {
        report(arguments.value(2));
    }
}

void PortalColorScheme::report(const QVariant &value)
{
    // Read wraps the value once more than the signal does.
    QVariant plain = value;
    while (plain.canConvert<QDBusVariant>()) {
        plain = plain.value<QDBusVariant>().variant();
    }
    const uint preference = plain.toUInt();
    if (preference == preferDark) {
        m_observer(ColorScheme::Dark);
    } else if (preference == preferLight) {
        m_observer(ColorScheme::Light);
    }
}

} // namespace quillon
