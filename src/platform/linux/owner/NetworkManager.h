// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDBusConnection>
#include <QObject>
#include <QString>

#include <functional>
#include <optional>

class QDBusMessage;
class QDBusServiceWatcher;

namespace quillon {

/// What NetworkManager (its D-Bus interface, 1.42 and later) knows of a device, and what it may be
/// asked to do with one. No profile is written and no secret read. Replies come once, in a
/// later turn, unless their context has gone before. Main thread.
class NetworkManager : public QObject
{
    Q_OBJECT

public:
    /// Of NMDeviceState.
    enum State : uint
    {
        Unmanaged = 10,
        Disconnected = 30,
        Activated = 100,
        Failed = 120,
    };
    struct Device
    {
        QString path;
        bool isManaged = false;
        bool isWiFi = false;
        uint state = 0;
        QString activeConnection; ///< its path, "" when there is none
        // Of the active connection, known by findDeviceWithProfile() only.
        /// The UUID of its profile, "" when there is none: a path would be another profile's after
        /// a restart of NetworkManager.
        QString profile = {};
        /// NetworkManager has made that profile up for an interface that somebody else connected,
        /// and leaves the interface alone.
        bool isExternal = false;
    };
    using FoundDevice = std::function<void(const std::optional<Device> &)>;

    explicit NetworkManager(QDBusConnection bus);

    /// None when it does not run, or knows no such device.
    void findDevice(const QString &name, QObject *context, const FoundDevice &reply);
    void findDeviceWithProfile(const QString &name, QObject *context, const FoundDevice &reply);
    /// Whether it lets this session control networks without a prompt. What it said last holds
    /// until it says that this may have changed: it asks polkit about some twenty things to know.
    void askPermission(QObject *context, const std::function<void(bool isGranted)> &reply);
    void setManaged(const QString &devicePath, bool isManaged, QObject *context,
        const std::function<void(bool isDone)> &reply);
    /// The same without waiting for the loop, for the end of the program; for seconds at most.
    void setManagedNow(const QString &devicePath);
    /// Ends the device's connection, with its IP addresses.
    void disconnectDevice(
        const QString &devicePath, QObject *context, const std::function<void(bool isDone)> &reply);
    /// With the profile of that UUID, or, where there is none any more, with the one that
    /// NetworkManager itself takes for the device.
    void activate(const QString &profile, const QString &devicePath, QObject *context,
        const std::function<void(bool isBegun)> &reply);

Q_SIGNALS:
    /// A device has another state, or NetworkManager has come or gone.
    void changed();
    /// It has come or gone; before changed().
    void ownerChanged();

private Q_SLOTS:
    void forgetPermission();

private:
    QDBusMessage managedCall(const QString &devicePath, bool isManaged) const;
    void activateByPath(const QString &profilePath, const QString &devicePath, QObject *context,
        const std::function<void(bool isBegun)> &reply);

    QDBusConnection m_bus;
    QDBusServiceWatcher *m_watcher;
    std::optional<bool> m_mayControl;
    int m_permissionChanges = 0;
};

} // namespace quillon
