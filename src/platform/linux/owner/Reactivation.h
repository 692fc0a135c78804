// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/linux/owner/NetworkManager.h"

#include <QObject>
#include <QString>

#include <optional>

namespace quillon {

/// Has a device of NetworkManager connect anew with the profile that it had, so that it gets a
/// lease for the address that it has now. Main thread.
class Reactivation : public QObject
{
    Q_OBJECT

public:
    /// `profile` by its UUID; `activeConnection` is the one from before, by its path.
    Reactivation(NetworkManager &networkManager, QString profile, QString activeConnection);

    /// To be told what the device is like whenever that may have changed. True when it is connected
    /// anew, whoever did it.
    bool look(const NetworkManager::Device &device);

private:
    NetworkManager &m_networkManager;
    const QString m_profile;
    const QString m_before;
    int m_triesLeft;
    bool m_isAsked = false;
    bool m_hasLeft = false; ///< the connection from before has ended
};

} // namespace quillon
