// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

namespace quillon {

class NetworkChange;
struct Platform;

/// Makes of each event that the system tells of, which may be about several interfaces, one network
/// change for each interface that has changed: a broadcast "networkChanged" with its device, or one
/// with "" when none has. Where the interfaces could not be read they are read again a few times.
/// Main thread.
class NetworkEvents : public QObject
{
    Q_OBJECT

public:
    NetworkEvents(const Platform &platform, NetworkChange &networkChange);

    /// From now on. Called once; this may end before the system's sources do.
    void begin();

Q_SIGNALS:
    /// The machine is back from a sleep; the interfaces have not been read yet.
    void machineSlept();
    /// The interfaces were read for an event, and nobody knows of it yet.
    void interfacesRead();
    /// Every network change of an event has been dealt with.
    void eventEnded();

private:
    void dealWithEvent();
    void readInterfacesAgain();

    const Platform &m_platform;
    NetworkChange &m_networkChange;
    int m_failedReadings = 0; ///< of the interfaces, since the system told of something
    bool m_isReadingAgain = false;
};

} // namespace quillon
