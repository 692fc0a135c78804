// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/desktop/PortalAppearance.h"

#include "platform/linux/bus/BusCall.h"

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
const QString contrast = u"contrast"_s;
const QString reducedMotion = u"reduced-motion"_s;
const QString gnomeInterface = u"org.gnome.desktop.interface"_s;
const QString enableAnimations = u"enable-animations"_s;

// The portal may have to be started first.
constexpr auto answerLimit = 25s;

// The portal's numbers.
constexpr uint preferDark = 1;
constexpr uint preferLight = 2;
constexpr uint higherContrast = 1;
constexpr uint lessMotion = 1;

/// Read wraps a value once more than the signal does; nobody wraps it more often.
QVariant unwrapped(QVariant value)
{
    for (int layer = 0; layer < 2 && value.typeId() == qMetaTypeId<QDBusVariant>(); ++layer) {
        value = value.value<QDBusVariant>().variant();
    }
    return value;
}

/// None where it is of another type: what a broken portal says is not guessed at.
std::optional<uint> number(const QVariant &value)
{
    return value.typeId() == QMetaType::UInt ? std::optional(value.toUInt()) : std::nullopt;
}

std::optional<ColorScheme> schemeOf(const QVariant &value)
{
    const auto preference = number(value);
    return preference == preferDark    ? std::optional(ColorScheme::Dark)
           : preference == preferLight ? std::optional(ColorScheme::Light)
                                       : std::nullopt;
}

} // namespace

PortalAppearance::PortalAppearance(const QDBusConnection &bus)
    : m_bus(bus)
{
}

void PortalAppearance::watch(std::function<void(const Appearance &)> observer)
{
    m_observer = std::move(observer);
    m_bus.connect(
        service, path, interface, u"SettingChanged"_s, this, SLOT(settingChanged(QDBusMessage)));
    read(appearance, colorScheme);
    read(appearance, contrast);
    read(appearance, reducedMotion);
    read(gnomeInterface, enableAnimations);
}

void PortalAppearance::read(const QString &group, const QString &key)
{
    QDBusMessage call = QDBusMessage::createMethodCall(service, path, interface, u"Read"_s);
    call.setArguments({group, key});
    callBus(m_bus, this, call, answerLimit, [this, group, key](const QDBusMessage &answer) {
        if (answer.type() == QDBusMessage::ReplyMessage) {
            take(group, key, answer.arguments().value(0));
        }
    });
}

void PortalAppearance::settingChanged(const QDBusMessage &message)
{
    const QVariantList arguments = message.arguments();
    take(arguments.value(0).toString(), arguments.value(1).toString(), arguments.value(2));
}

void PortalAppearance::take(const QString &group, const QString &key, const QVariant &wrapped)
{
    const QVariant value = unwrapped(wrapped);
    Appearance now = m_appearance;
    if (group == appearance && key == colorScheme) {
        now.scheme = schemeOf(value);
    } else if (group == appearance && key == contrast) {
        now.isHighContrast = number(value) == higherContrast;
    } else if (group == appearance && key == reducedMotion) {
        m_isMotionReduced = number(value) == lessMotion;
    } else if (group == gnomeInterface && key == enableAnimations) {
        m_areAnimationsOff = value.typeId() == QMetaType::Bool && !value.toBool();
    }
    now.isStill = m_isMotionReduced || m_areAnimationsOff;
    if (now != m_appearance) {
        m_appearance = now;
        m_observer(now);
    }
}

} // namespace quillon
