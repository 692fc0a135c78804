// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDBusConnection>
#include <QObject>

#include <functional>

namespace quillon {

/// Keeps the program to one process per session: whoever owns its name on the session bus is the
/// program, and offers org.freedesktop.Application (Desktop Entry Specification, "D-Bus
/// Activation") so that a second start brings it up. Main thread, after the application object
/// exists.
class SessionInstance : public QObject
{
    Q_OBJECT

public:
    enum class Claim
    {
        Owned,          ///< this process is the program
        AlreadyRunning, ///< another one is: call activateOther(), then end
        NoSession,      ///< there is no session bus; go on, alone
    };

    explicit SessionInstance(QDBusConnection bus = QDBusConnection::sessionBus());
    ~SessionInstance() override;

    /// Blocks for the two messages to the bus. Called once, before any window.
    Claim claim();
    /// Asks the running program to come to the front. `done` tells, in a later turn of the main
    /// loop and after at most ten seconds, whether it answered.
    void activateOther(std::function<void(bool reached)> done);

Q_SIGNALS:
    /// Another start, or the desktop, asked for the program's window. `token` is what the desktop
    /// gave for it, so that the window may take the focus: an activation token (XDG activation) or
    /// a startup id (Startup Notification Protocol); empty when it gave none. A window that asks
    /// for the focus during the emission has the token's right to it.
    void activated(const QString &token);

private:
    QDBusConnection m_bus;
};

} // namespace quillon
