// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "integration/platform/linux/bus/PrivateBus.h"

#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QStringList>

#include <chrono>
#include <functional>

namespace quillon::test {

/// A program that answers like NetworkManager about one interface, "wlan0" or "eth0". What it
/// cannot show is how the real one gets along with the kernel.
class MadeUpNetworkManager : public QDBusVirtualObject
{
public:
    enum class Kind : uint
    {
        Ethernet = 1,
        WiFi = 2,
    };

    MadeUpNetworkManager(PrivateBus &bus, Kind kind);

    QString introspect(const QString &) const override { return {}; }
    bool handleMessage(const QDBusMessage &call, const QDBusConnection &) override;

    /// Ends, and comes back as another process that has numbered everything anew and goes by what
    /// it wrote down: a device that was let go stays so.
    void restart();
    void end();

    // What it is like.
    bool isManaged = true;
    bool isConnected = true;
    bool isExternal = false; ///< connected by somebody else, which it only looks at
    QString permission = QStringLiteral("yes");
    std::chrono::milliseconds thinking{0}; ///< before it tells who may do what
    bool isBlocked = false;                ///< the radio: it is managed, and no more
    bool letsGo = true;                    ///< else it says so and keeps the device
    bool connects = true;                  ///< else an activation never gets anywhere
    bool answers = true;                   ///< else it hangs
    int refusals = 0;                      ///< so many activations are refused first
    bool knowsProfile = true;              ///< else it was in memory only and is gone
    /// Called before it does what it was asked.
    std::function<void(const QString &what)> whenAsked = [](const QString &) {};

    /// "managed false", "managed true", "activate PROFILE", "disconnect", in order.
    const QStringList &journal() const { return m_journal; }
    QString name() const;
    /// By its path, which a restart changes.
    QString profile() const;
    int permissionQuestions() const { return m_permissionQuestions; }
    /// It has heard from polkit that somebody may have other rights now.
    void changePermission(const QString &now);

private:
    void begin();
    void send(const QString &object, const QString &interface, const QString &signal,
        const QVariantList &arguments = {});
    void note(const QString &what);
    QString devicePath() const;
    uint state() const;
    QVariant answerTo(const QDBusMessage &call);
    QVariant propertyAnswer(const QDBusMessage &call);
    void setManaged(bool managed);
    bool activate(const QDBusMessage &call);
    void tellState();

    PrivateBus &m_bus;
    const Kind m_kind;
    QString m_connection;
    QStringList m_journal;
    int m_life = 0;
    int m_activation = 1;
    int m_permissionQuestions = 0;
};

} // namespace quillon::test
