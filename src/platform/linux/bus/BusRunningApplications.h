// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/desktop/RunningApplications.h"

#include <QDBusConnection>

namespace quillon {

/// Our programs own a session bus name that is their identifier for as long as they run.
class BusRunningApplications : public RunningApplications
{
public:
    explicit BusRunningApplications(QDBusConnection bus = QDBusConnection::sessionBus());

    bool isRunning(const QString &identifier) override;

private:
    QDBusConnection m_bus;
};

} // namespace quillon
