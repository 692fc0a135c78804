// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/exposure/NetworkManagerReading.h"

#include "platform/linux/exposure/BusAnswers.h"

#include <QDBusArgument>
#include <QDBusObjectPath>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

const QString service = u"org.freedesktop.NetworkManager"_s;
const QString path = u"/org/freedesktop/NetworkManager"_s;
const QString noObject = u"/"_s;
constexpr uint withoutFlags = 0;
constexpr uint externalFlag = 0x80; // NM_ACTIVATION_STATE_FLAG_EXTERNAL

struct Reading
{
    bool isManaged = false;
    bool isExternal = false; ///< somebody else connected it: the connection is made up
    ConnectionInForce connection;
};

/// A path, or "" for none.
QString objectIn(const QVariantMap &properties, const QString &name)
{
    const QString object = properties.value(name).value<QDBusObjectPath>().path();
    return object == noObject ? QString() : object;
}

void askLease(BusAnswers &bus, const QString &object, const QString &family, QVariantMap &lease,
    const std::shared_ptr<Reading> &reading)
{
    if (object.isEmpty()) {
        return;
    }
    bus.askProperties(object, service + u".DHCP"_s + family + u"Config"_s,
        [&lease, reading](const QVariantMap &properties) {
            const QVariant options = properties.value(u"Options"_s);
            if (options.userType() == qMetaTypeId<QDBusArgument>() &&
                options.value<QDBusArgument>().currentSignature() == "a{sv}"_L1) {
                lease = qdbus_cast<QVariantMap>(options);
            }
        });
}

void askWhetherExternal(
    BusAnswers &bus, const QString &active, const std::shared_ptr<Reading> &reading)
{
    if (!active.isEmpty()) {
        bus.askProperties(
            active, service + u".Connection.Active"_s, [reading](const QVariantMap &properties) {
                const uint flags = properties.value(u"StateFlags"_s).toUInt();
                reading->isExternal = (flags & externalFlag) != 0;
            });
    }
}

void askDevice(BusAnswers &bus, const QString &device, const std::shared_ptr<Reading> &reading)
{
    const QString interface = service + u".Device"_s;
    bus.askProperties(device, interface, [&bus, reading](const QVariantMap &properties) {
        reading->isManaged = properties.value(u"Managed"_s).toBool();
        askWhetherExternal(bus, objectIn(properties, u"ActiveConnection"_s), reading);
        askLease(bus, objectIn(properties, u"Dhcp4Config"_s), u"4"_s, reading->connection.ipv4Lease,
            reading);
        askLease(bus, objectIn(properties, u"Dhcp6Config"_s), u"6"_s, reading->connection.ipv6Lease,
            reading);
    });
    bus.ask(device, interface, u"GetAppliedConnection"_s, {withoutFlags},
        [reading](const QDBusMessage &answer) {
            const QVariant settings = answer.arguments().value(0);
            if (answer.signature().startsWith("a{sa{sv}}"_L1)) {
                reading->connection.settings = qdbus_cast<QMap<QString, QVariantMap>>(settings);
            }
        });
}

} // namespace

void readConnection(const QDBusConnection &bus, const QString &device, QObject *context,
    const std::function<void(const std::optional<ConnectionInForce> &connection)> &reply)
{
    const auto reading = std::make_shared<Reading>();
    const auto asked = std::make_shared<BusAnswers>(bus, service, context, [reading, reply] {
        const bool isOwner = reading->isManaged && !reading->isExternal;
        reply(isOwner ? std::optional(reading->connection) : std::nullopt);
    });
    asked->ask(path, service, u"GetDeviceByIpIface"_s, {device},
        [&asked = *asked, reading](const QDBusMessage &answer) {
            askDevice(asked, answer.arguments().value(0).value<QDBusObjectPath>().path(), reading);
        });
    asked->askProperties(
        path + u"/Settings"_s, service + u".Settings"_s, [reading](const QVariantMap &properties) {
            reading->connection.hostName = properties.value(u"Hostname"_s).toString();
        });
}

} // namespace quillon
