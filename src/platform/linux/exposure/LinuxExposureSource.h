// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/ExposureSource.h"
#include "platform/Scheduler.h"
#include "platform/linux/exposure/LocalNames.h"
#include "platform/linux/exposure/NetworkManagerSettings.h"
#include "platform/linux/exposure/SettingsFiles.h"
#include "platform/linux/owner/BusOwners.h"

#include <QDBusConnection>
#include <QObject>

namespace quillon {

/// The kernel, the files that an ordinary user may read, and those on the system bus who tell an
/// ordinary user.
class LinuxExposureSource : public QObject, public ExposureSource
{
    Q_OBJECT

public:
    /// `root` is "" but for tests, where the files are below it; `bus` is the system's.
    explicit LinuxExposureSource(Scheduler &scheduler,
        const QDBusConnection &bus = QDBusConnection::systemBus(), QString root = {});

    void read(const QString &device, Reply reply) override;

private:
    /// What is put together for one question.
    struct Reading;

    void readOwner(const std::shared_ptr<Reading> &reading);
    void readOther(const std::shared_ptr<Reading> &reading);
    void readNames(const std::shared_ptr<Reading> &reading);

    Scheduler &m_scheduler;
    QDBusConnection m_bus;
    const QString m_root;
    BusOwners m_owners;
};

} // namespace quillon
