// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace quillon {

/// Runs shell commands. Only for texts that this program wrote itself.
class CommandRunner
{
public:
    virtual ~CommandRunner() = default;

    /// "/bin/sh" "-c" `command` with its standard input and output as pipes; blocks until its
    /// standard output ends and returns that as UTF-8. The exit status is not looked at, and there
    /// is no time limit. Empty when the shell could not be started.
    virtual QString run(const QString &command) = 0;
};

} // namespace quillon
