// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/SystemSleep.h"

#include <QDBusConnection>
#include <QObject>

namespace quillon {

/// What logind, or whoever stands in for it, tells on the system bus before the machine goes to
/// sleep and when it is back (org.freedesktop.login1.Manager.PrepareForSleep). Without it nothing
/// is told. Main thread.
class LogindSleep : public QObject, public SystemSleep
{
    Q_OBJECT

public:
    explicit LogindSleep(QDBusConnection bus = QDBusConnection::systemBus());

    void watch(std::function<void()> resumed) override;

private Q_SLOTS:
    void prepareForSleep(bool begins);

private:
    QDBusConnection m_bus;
    std::function<void()> m_resumed;
};

} // namespace quillon
