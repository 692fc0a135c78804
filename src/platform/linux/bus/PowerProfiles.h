// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/PowerSaving.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QObject>
#include <QVariantMap>

namespace quillon {

/// The profile "power-saver" of the service on the system bus that desktops let their users choose
/// with (org.freedesktop.UPower.PowerProfiles). A computer without it saves no battery. The service
/// is not started for this. Main thread.
class PowerProfiles : public QObject, public PowerSaving
{
    Q_OBJECT

public:
    explicit PowerProfiles(QDBusConnection bus = QDBusConnection::systemBus());

    bool isOn() const override { return m_isOn; }
    void watch(std::function<void()> changed) override;

private Q_SLOTS:
    void propertiesChanged(
        const QString &interface, const QVariantMap &changed, const QStringList &invalidated);
    void ownerChanged(const QString &name, const QString &before, const QString &after);

private:
    void ask();
    void setProfile(const QString &profile);

    QDBusConnection m_bus;
    std::function<void()> m_changed;
    bool m_isOn = false;
};

} // namespace quillon
