// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/CommandRunner.h"

#include <QList>

#include <mutex>
#include <sys/types.h>

namespace quillon {

/// posix_spawn(3) of /bin/sh. The command's standard input is a pipe that is already at its end.
/// Safe from every thread; blocks the calling one.
class ShellCommandRunner : public CommandRunner
{
public:
    ShellCommandRunner() = default;
    ~ShellCommandRunner() override;

    QString run(const QString &command) override;

private:
    void reapLater(pid_t child);

    std::mutex m_mutex;
    QList<pid_t> m_unreaped; ///< shells whose output ended before they did
};

} // namespace quillon
