// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/owner/NetworkManager.h"

#include "base/Log.h"
#include "platform/linux/bus/BusCall.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusServiceWatcher>
#include <QDBusVariant>
#include <QVariantMap>

#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

using namespace std::chrono_literals;

// It answers at once or hangs.
constexpr auto answerLimit = 5s;
// It asks polkit first, which may have to be started, and about one thing after the other.
constexpr auto decisionLimit = 25s;
constexpr auto lastCallLimit = 2s;

const QString service = u"org.freedesktop.NetworkManager"_s;
const QString path = u"/org/freedesktop/NetworkManager"_s;
const QString deviceInterface = u"org.freedesktop.NetworkManager.Device"_s;
const QString settingsPath = u"/org/freedesktop/NetworkManager/Settings"_s;
const QString settingsInterface = u"org.freedesktop.NetworkManager.Settings"_s;
const QString activeInterface = u"org.freedesktop.NetworkManager.Connection.Active"_s;
const QString propertiesInterface = u"org.freedesktop.DBus.Properties"_s;
const QString controlPermission = u"org.freedesktop.NetworkManager.network-control"_s;
const QString unknownProfile =
    u"org.freedesktop.NetworkManager.Settings.InvalidConnection"_s; // an error
const QString noObject = u"/"_s;
constexpr uint wifiDevice = 2;      // NM_DEVICE_TYPE_WIFI
constexpr uint externalFlag = 0x80; // NM_ACTIVATION_STATE_FLAG_EXTERNAL

// Where it is not started it owns nothing, and is not started for our sake.
QDBusMessage callTo(const QString &object, const QString &interface, const QString &method,
    const QVariantList &arguments = {})
{
    auto call = QDBusMessage::createMethodCall(service, object, interface, method);
    call.setArguments(arguments);
    call.setAutoStartService(false);
    return call;
}

bool isAnswer(const QDBusMessage &message)
{
    if (message.type() == QDBusMessage::ReplyMessage) {
        return true;
    }
    qCDebug(logPlatform, "NetworkManager: %ls", qUtf16Printable(message.errorMessage()));
    return false;
}

QString objectIn(const QVariant &value)
{
    const QString object = value.value<QDBusObjectPath>().path();
    return object == noObject ? QString() : object;
}

NetworkManager::Device deviceIn(const QString &devicePath, const QVariantMap &properties)
{
    return {.path = devicePath,
        .isManaged = properties.value(u"Managed"_s).toBool(),
        .isWiFi = properties.value(u"DeviceType"_s).toUInt() == wifiDevice,
        .state = properties.value(u"State"_s).toUInt(),
        .activeConnection = objectIn(properties.value(u"ActiveConnection"_s))};
}

} // namespace

NetworkManager::NetworkManager(QDBusConnection bus)
    : m_bus(std::move(bus))
    , m_watcher(
          new QDBusServiceWatcher(service, m_bus, QDBusServiceWatcher::WatchForOwnerChange, this))
{
    connect(
        m_watcher, &QDBusServiceWatcher::serviceOwnerChanged, this, &NetworkManager::ownerChanged);
    connect(m_watcher, &QDBusServiceWatcher::serviceOwnerChanged, this, &NetworkManager::changed);
    connect(m_watcher, &QDBusServiceWatcher::serviceOwnerChanged, this,
        &NetworkManager::forgetPermission);
    m_bus.connect(service, path, service, u"CheckPermissions"_s, this, SLOT(forgetPermission()));
    m_bus.connect(service, QString(), deviceInterface, u"StateChanged"_s, this, SIGNAL(changed()));
}

void NetworkManager::findDevice(const QString &name, QObject *context, const FoundDevice &reply)
{
    const auto onPath = [this, context, reply](const QDBusMessage &answer) {
        const QString devicePath =
            isAnswer(answer) ? objectIn(answer.arguments().value(0)) : QString();
        if (devicePath.isEmpty()) {
            reply(std::nullopt);
            return;
        }
        const auto onProperties = [reply, devicePath](const QDBusMessage &properties) {
            if (!isAnswer(properties)) {
                reply(std::nullopt);
                return;
            }
            reply(deviceIn(devicePath, qdbus_cast<QVariantMap>(properties.arguments().value(0))));
        };
        callBus(m_bus, context,
            callTo(devicePath, propertiesInterface, u"GetAll"_s, {deviceInterface}), answerLimit,
            onProperties);
    };
    callBus(m_bus, context, callTo(path, service, u"GetDeviceByIpIface"_s, {name}), answerLimit,
        onPath);
}

void NetworkManager::findDeviceWithProfile(
    const QString &name, QObject *context, const FoundDevice &reply)
{
    findDevice(name, context, [this, context, reply](const std::optional<Device> &found) {
        if (!found || found->activeConnection.isEmpty()) {
            reply(found);
            return;
        }
        const auto onProperties = [reply, device = *found](const QDBusMessage &answer) {
            const auto properties = isAnswer(answer)
                                        ? qdbus_cast<QVariantMap>(answer.arguments().value(0))
                                        : QVariantMap();
            Device complete = device;
            complete.profile = properties.value(u"Uuid"_s).toString();
            complete.isExternal = (properties.value(u"StateFlags"_s).toUInt() & externalFlag) != 0;
            reply(complete);
        };
        callBus(m_bus, context,
            callTo(found->activeConnection, propertiesInterface, u"GetAll"_s, {activeInterface}),
            answerLimit, onProperties);
    });
}

void NetworkManager::askPermission(
    QObject *context, const std::function<void(bool isGranted)> &reply)
{
    if (m_mayControl) {
        QMetaObject::invokeMethod(
            context, [reply, isGranted = *m_mayControl] { reply(isGranted); },
            Qt::QueuedConnection);
        return;
    }
    const auto onAnswer = [this, reply, asked = m_permissionChanges](const QDBusMessage &answer) {
        if (!isAnswer(answer)) {
            reply(false);
            return;
        }
        const bool isGranted = qdbus_cast<QMap<QString, QString>>(answer.arguments().value(0))
                                   .value(controlPermission) == "yes"_L1;
        if (asked == m_permissionChanges) {
            m_mayControl = isGranted;
        }
        reply(isGranted);
    };
    callBus(m_bus, context, callTo(path, service, u"GetPermissions"_s), decisionLimit, onAnswer);
}

void NetworkManager::forgetPermission()
{
    m_mayControl.reset();
    ++m_permissionChanges;
}

QDBusMessage NetworkManager::managedCall(const QString &devicePath, bool isManaged) const
{
    return callTo(devicePath, propertiesInterface, u"Set"_s,
        {deviceInterface, u"Managed"_s, QVariant::fromValue(QDBusVariant(isManaged))});
}

void NetworkManager::setManaged(const QString &devicePath, bool isManaged, QObject *context,
    const std::function<void(bool isDone)> &reply)
{
    callBus(m_bus, context, managedCall(devicePath, isManaged), decisionLimit,
        [reply](const QDBusMessage &answer) { reply(isAnswer(answer)); });
}

void NetworkManager::setManagedNow(const QString &devicePath)
{
    const auto limit = static_cast<int>(std::chrono::milliseconds(lastCallLimit).count());
    isAnswer(m_bus.call(managedCall(devicePath, true), QDBus::Block, limit));
}

void NetworkManager::disconnectDevice(
    const QString &devicePath, QObject *context, const std::function<void(bool isDone)> &reply)
{
    callBus(m_bus, context, callTo(devicePath, deviceInterface, u"Disconnect"_s), decisionLimit,
        [reply](const QDBusMessage &answer) { reply(isAnswer(answer)); });
}

void NetworkManager::activate(const QString &profile, const QString &devicePath, QObject *context,
    const std::function<void(bool isBegun)> &reply)
{
    const auto onPath = [this, devicePath, context, reply](const QDBusMessage &answer) {
        if (isAnswer(answer)) {
            activateByPath(objectIn(answer.arguments().value(0)), devicePath, context, reply);
        } else if (answer.errorName() == unknownProfile) {
            activateByPath(QString(), devicePath, context, reply);
        } else {
            reply(false);
        }
    };
    callBus(m_bus, context,
        callTo(settingsPath, settingsInterface, u"GetConnectionByUuid"_s, {profile}), answerLimit,
        onPath);
}

void NetworkManager::activateByPath(const QString &profilePath, const QString &devicePath,
    QObject *context, const std::function<void(bool isBegun)> &reply)
{
    const QString profile = profilePath.isEmpty() ? noObject : profilePath;
    callBus(m_bus, context,
        callTo(path, service, u"ActivateConnection"_s,
            {QVariant::fromValue(QDBusObjectPath(profile)),
                QVariant::fromValue(QDBusObjectPath(devicePath)),
                QVariant::fromValue(QDBusObjectPath(noObject))}),
        decisionLimit, [reply](const QDBusMessage &answer) { reply(isAnswer(answer)); });
}

} // namespace quillon
