// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/bus/PowerProfiles.h"

#include "platform/linux/bus/BusCall.h"

#include <QDBusVariant>

#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

const QString service = u"org.freedesktop.UPower.PowerProfiles"_s;
const QString path = u"/org/freedesktop/UPower/PowerProfiles"_s;
const QString properties = u"org.freedesktop.DBus.Properties"_s;
const QString activeProfile = u"ActiveProfile"_s;
constexpr auto patience = 10s;

} // namespace

PowerProfiles::PowerProfiles(QDBusConnection bus)
    : m_bus(std::move(bus))
{
}

void PowerProfiles::watch(std::function<void()> changed)
{
    m_changed = std::move(changed);
    m_bus.connect(service, path, properties, u"PropertiesChanged"_s, this,
        SLOT(propertiesChanged(QString, QVariantMap, QStringList)));
    const QString bus = u"org.freedesktop.DBus"_s;
    m_bus.connect(bus, u"/org/freedesktop/DBus"_s, bus, u"NameOwnerChanged"_s, {service}, {}, this,
        SLOT(ownerChanged(QString, QString, QString)));
    ask();
}

void PowerProfiles::ask()
{
    QDBusMessage question = QDBusMessage::createMethodCall(service, path, properties, u"Get"_s);
    question << service << activeProfile;
    question.setAutoStartService(false);
    callBus(m_bus, this, question, patience, [this](const QDBusMessage &answer) {
        const QVariantList values = answer.arguments();
        const bool isValue = answer.type() == QDBusMessage::ReplyMessage && !values.isEmpty() &&
                             values.first().canConvert<QDBusVariant>();
        setProfile(isValue ? values.first().value<QDBusVariant>().variant().toString() : QString());
    });
}

void PowerProfiles::propertiesChanged(
    const QString &interface, const QVariantMap &changed, const QStringList &invalidated)
{
    if (interface != service) {
        return;
    }
    if (changed.contains(activeProfile)) {
        setProfile(changed.value(activeProfile).toString());
    } else if (invalidated.contains(activeProfile)) {
        ask();
    }
}

void PowerProfiles::ownerChanged(const QString &, const QString &, const QString &after)
{
    if (after.isEmpty()) {
        setProfile({});
    } else {
        ask();
    }
}

void PowerProfiles::setProfile(const QString &profile)
{
    const bool isOn = profile == "power-saver"_L1;
    if (std::exchange(m_isOn, isOn) != isOn) {
        m_changed();
    }
}

} // namespace quillon
