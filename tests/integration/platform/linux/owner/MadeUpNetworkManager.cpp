// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "MadeUpNetworkManager.h"

#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QDBusVariant>
#include <QMap>
#include <QTimer>

namespace quillon::test {

using namespace Qt::StringLiterals;

namespace {

const QString service = u"org.freedesktop.NetworkManager"_s;
const QString root = u"/org/freedesktop/NetworkManager"_s;

const QString uuid = u"3d3ef0d3-0833-37fe-b8e0-ace7910f45bd"_s;

QVariant object(const QString &path)
{
    return QVariant::fromValue(QDBusObjectPath(path));
}

} // namespace

MadeUpNetworkManager::MadeUpNetworkManager(PrivateBus &bus, Kind kind)
    : m_bus(bus)
    , m_kind(kind)
{
    qDBusRegisterMetaType<QMap<QString, QString>>();
    begin();
}

void MadeUpNetworkManager::begin()
{
    ++m_life;
    m_connection = m_bus.open();
    QDBusConnection connection(m_connection);
    EXPECT_TRUE(connection.registerVirtualObject(root, this, QDBusConnection::SubPath));
    EXPECT_TRUE(connection.registerService(service));
}

void MadeUpNetworkManager::end()
{
    QDBusConnection(m_connection).unregisterObject(root, QDBusConnection::UnregisterTree);
    m_bus.drop(m_connection);
}

void MadeUpNetworkManager::restart()
{
    end();
    m_activation = 1;
    begin();
}

QString MadeUpNetworkManager::name() const
{
    return m_kind == Kind::WiFi ? u"wlan0"_s : u"eth0"_s;
}

QString MadeUpNetworkManager::devicePath() const
{
    return root + u"/Devices/%1"_s.arg(m_life);
}

QString MadeUpNetworkManager::profile() const
{
    return root + u"/Settings/%1"_s.arg(10 - m_life);
}

void MadeUpNetworkManager::changePermission(const QString &now)
{
    permission = now;
    send(root, service, u"CheckPermissions"_s);
}

uint MadeUpNetworkManager::state() const
{
    if (!isManaged) {
        return 10;
    }
    if (isBlocked) {
        return 20;
    }
    return isConnected ? 100 : 30;
}

void MadeUpNetworkManager::note(const QString &what)
{
    whenAsked(what);
    m_journal.append(what);
}

bool MadeUpNetworkManager::handleMessage(const QDBusMessage &call, const QDBusConnection &)
{
    if (!answers) {
        return true;
    }
    if (call.member() == "GetPermissions"_L1 && thinking.count() > 0) {
        QTimer::singleShot(thinking, this,
            [this, call] { QDBusConnection(m_connection).send(call.createReply(answerTo(call))); });
        return true;
    }
    if (call.member() == "GetConnectionByUuid"_L1 &&
        (!knowsProfile || call.arguments().value(0) != uuid)) {
        QDBusConnection(m_connection)
            .send(call.createErrorReply(
                service + u".Settings.InvalidConnection"_s, u"No connection with the UUID"_s));
        return true;
    }
    const QVariant answer = answerTo(call);
    if (!answer.isValid()) {
        QDBusConnection(m_connection).send(call.createErrorReply(service + u".Refused"_s, u"No"_s));
    } else {
        QDBusConnection(m_connection).send(call.createReply(answer));
    }
    return true;
}

QVariant MadeUpNetworkManager::answerTo(const QDBusMessage &call)
{
    if (call.member() == "GetDeviceByIpIface"_L1) {
        return call.arguments().value(0) == name() ? object(devicePath()) : QVariant();
    }
    if (call.member() == "GetConnectionByUuid"_L1) {
        return object(profile());
    }
    if (call.member() == "GetPermissions"_L1) {
        ++m_permissionQuestions;
        return QVariant::fromValue(QMap<QString, QString>{
            {u"org.freedesktop.NetworkManager.network-control"_s, permission},
            {u"org.freedesktop.NetworkManager.reload"_s, u"auth"_s}});
    }
    if (call.member() == "ActivateConnection"_L1) {
        return activate(call) ? object(root + u"/ActiveConnection/%1"_s.arg(m_activation))
                              : QVariant();
    }
    if (call.member() == "Disconnect"_L1) {
        note(u"disconnect"_s);
        isConnected = false;
        tellState();
        return true;
    }
    return propertyAnswer(call);
}

QVariant MadeUpNetworkManager::propertyAnswer(const QDBusMessage &call)
{
    if (call.path().startsWith(root + u"/ActiveConnection/"_s)) {
        return QVariantMap{{u"Uuid"_s, uuid}, {u"StateFlags"_s, isExternal ? 0xccU : 0x4cU}};
    }
    if (call.path() != devicePath()) {
        return {};
    }
    if (call.member() == "Set"_L1) {
        setManaged(call.arguments().value(2).value<QDBusVariant>().variant().toBool());
        return true;
    }
    const QString active = root + u"/ActiveConnection/%1"_s.arg(m_activation);
    return QVariantMap{{u"Managed"_s, isManaged}, {u"State"_s, state()},
        {u"DeviceType"_s, static_cast<uint>(m_kind)},
        {u"ActiveConnection"_s, object(state() == 100 ? active : u"/"_s)}};
}

void MadeUpNetworkManager::setManaged(bool managed)
{
    note(managed ? u"managed true"_s : u"managed false"_s);
    if (managed || letsGo) {
        isManaged = managed;
        isConnected = false;
    }
    tellState();
}

bool MadeUpNetworkManager::activate(const QDBusMessage &call)
{
    if (refusals > 0) {
        --refusals;
        return false;
    }
    note(u"activate "_s + call.arguments().value(0).value<QDBusObjectPath>().path());
    EXPECT_EQ(call.arguments().value(1).value<QDBusObjectPath>().path(), devicePath());
    ++m_activation;
    isConnected = connects;
    tellState();
    return true;
}

void MadeUpNetworkManager::tellState()
{
    send(devicePath(), service + u".Device"_s, u"StateChanged"_s, {state(), 0U, 0U});
}

void MadeUpNetworkManager::send(const QString &object, const QString &interface,
    const QString &signal, const QVariantList &arguments)
{
    auto message = QDBusMessage::createSignal(object, interface, signal);
    message.setArguments(arguments);
    QDBusConnection(m_connection).send(message);
}

} // namespace quillon::test
