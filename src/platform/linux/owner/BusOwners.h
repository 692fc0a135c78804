// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDBusConnection>
#include <QObject>
#include <QString>

#include <functional>

class QDBusMessage;

namespace quillon {

/// Finds out over the bus which program has an interface, of those that take no word from an
/// ordinary user. Nothing is started for that. Main thread.
class BusOwners
{
public:
    /// The name for the user: "iwd", "wpa_supplicant", "systemd-networkd"; "" for none of them.
    using Reply = std::function<void(const QString &name)>;

    explicit BusOwners(QDBusConnection bus);

    /// `reply` is called once, within seconds, in a later turn, unless `context` has gone before.
    /// A radio may have two: then it is the one that joins the networks.
    void find(const QString &device, bool isRadio, QObject *context, const Reply &reply);

private:
    using Answer = std::function<void(bool isYes)>;

    void ask(const QDBusMessage &question, QObject *context,
        const std::function<void(const QDBusMessage &)> &reply);
    void isRunning(const QString &service, QObject *context, const Answer &answer);
    void hasWpaSupplicant(const QString &device, QObject *context, const Answer &answer);
    void hasNetworkd(const QString &device, QObject *context, const Answer &answer);

    QDBusConnection m_bus;
};

} // namespace quillon
