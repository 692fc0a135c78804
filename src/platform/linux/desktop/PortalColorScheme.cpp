// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/desktop/PortalColorScheme.h"

#include "platform/linux/bus/BusCall.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>

#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

using namespace std::chrono_literals;

const QString service = u"org.freedesktop.portal.Desktop"_s;
const QString path = u"/org/freedesktop/portal/desktop"_s;
const QString interface = u"org.freedesktop.portal.Settings"_s;
const QString appearance = u"org.freedesktop.appearance"_s;
const QString colorScheme = u"color-scheme"_s;

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
    bus.connect(
        service, path, interface, u"SettingChanged"_s, this, SLOT(settingChanged(QDBusMessage)));

    QDBusMessage call = QDBusMessage::createMethodCall(service, path, interface, u"Read"_s);
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
