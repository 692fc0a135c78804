// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/linux/owner/DeviceWatch.h"

#include <QObject>

namespace quillon {

/// Has NetworkManager take back an interface that it was asked to let go of and nobody will ask for
/// any more. Main thread.
class TakingBack : public QObject
{
    Q_OBJECT

public:
    /// `end` is called once, within a minute or so.
    TakingBack(NetworkManager &networkManager, Scheduler &scheduler, const QString &device,
        DeviceWatch::End end);

private:
    NetworkManager &m_networkManager;
    DeviceWatch m_watch;
};

} // namespace quillon
