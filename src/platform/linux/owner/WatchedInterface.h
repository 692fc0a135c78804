// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/AddressOwner.h"
#include "platform/linux/owner/InterfaceTraces.h"
#include "platform/linux/owner/KernelWatch.h"

#include <QObject>

#include <optional>

namespace quillon {

/// An interface whose owner is not asked for anything: systemd-networkd and iwd follow the kernel
/// by themselves, dhclient does not, and none of them takes a word from an ordinary user. What
/// comes of the change is seen in the kernel; what is missing when the time is over is told.
class WatchedInterface : public QObject, public AddressOwner
{
    Q_OBJECT

public:
    /// `owner` is its name for the user, "" when nobody is known.
    WatchedInterface(Scheduler &scheduler, QString device, QString owner);

    QString name() const override;
    void prepare(Prepared prepared) override;
    void settle(bool isChanged, Settled settled) override;

private:
    bool hasSettled();

    Scheduler &m_scheduler;
    const QString m_device;
    const QString m_owner;
    KernelWatch m_watch;
    std::optional<InterfaceTraces> m_before;
    Outcomes m_lacking;
};

} // namespace quillon
