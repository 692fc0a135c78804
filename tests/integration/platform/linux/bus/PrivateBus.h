// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QProcess>
#include <QStringList>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace quillon::test {

/// A message bus of its own, where anybody may do anything. Gone with the object, or by stop().
class PrivateBus
{
public:
    PrivateBus()
    {
        m_daemon.setProgram(QStringLiteral("dbus-daemon"));
        m_daemon.setArguments({QStringLiteral("--session"), QStringLiteral("--nofork"),
            QStringLiteral("--nopidfile"), QStringLiteral("--print-address"),
            QStringLiteral("--address=unix:path=") + m_folder.filePath(QStringLiteral("bus"))});
        m_daemon.setStandardErrorFile(QProcess::nullDevice());
        m_daemon.start(QIODevice::ReadOnly);
        while (!m_daemon.canReadLine() && m_daemon.waitForReadyRead()) {
        }
        m_address = QString::fromUtf8(m_daemon.readLine()).trimmed();
        EXPECT_FALSE(m_address.isEmpty());
    }

    ~PrivateBus()
    {
        for (const QString &name : std::as_const(m_connections)) {
            QDBusConnection::disconnectFromBus(name);
        }
        stop();
    }
    PrivateBus(const PrivateBus &) = delete;
    PrivateBus &operator=(const PrivateBus &) = delete;

    /// Another program's connection, by its name in QtDBus: each call gives a new one.
    QString open()
    {
        static int number = 0;
        const QString name = QStringLiteral("private-%1").arg(++number);
        EXPECT_TRUE(QDBusConnection::connectToBus(m_address, name).isConnected());
        m_connections.append(name);
        return name;
    }
    QDBusConnection connect() { return QDBusConnection(open()); }

    /// That program ends. Its connection closes when nobody holds the object any more.
    void drop(const QString &name)
    {
        m_connections.removeOne(name);
        QDBusConnection::disconnectFromBus(name);
    }

    void stop()
    {
        m_daemon.kill();
        m_daemon.waitForFinished();
    }

    const QString &address() const { return m_address; }

private:
    QTemporaryDir m_folder;
    QProcess m_daemon;
    QString m_address;
    QStringList m_connections;
};

} // namespace quillon::test
