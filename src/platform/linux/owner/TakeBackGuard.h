// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QProcess>
#include <QString>
#include <QStringList>

#include <optional>

namespace quillon {

class Scheduler;

/// Another process that looks after an interface while its owner was asked to let go of it: should
/// this one die, it has the owner take the interface back. Main thread.
class TakeBackGuard
{
public:
    /// `command` and the name of the interface run a program whose main() asks guardedDevice().
    /// Without a command, or when it cannot be started, nobody guards.
    TakeBackGuard(const QStringList &command, const QString &device);
    /// The guard ends by itself; nobody waits for it.
    ~TakeBackGuard();
    TakeBackGuard(const TakeBackGuard &) = delete;
    TakeBackGuard &operator=(const TakeBackGuard &) = delete;

    /// Runs the program that runs now.
    static QStringList ownCommand();
    /// The interface to guard when the program was started as a guard.
    static std::optional<QString> guardedDevice(int argc, char **argv);
    /// The guard's life, and its exit code: waits for the end of its standard input. Needs no more
    /// than an application object, and no display.
    static int standGuard(const QString &device, Scheduler &scheduler);

private:
    QProcess *m_process = nullptr;
};

} // namespace quillon
