// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <sys/types.h>

namespace quillon {

/// The file from which this process was started. The kernel keeps it as long as the process runs,
/// whatever becomes of its name.
class RunningProgram
{
public:
    /// `link`: a symbolic link to the program.
    explicit RunningProgram(const std::string &link = "/proc/self/exe");

    /// Whether its name leads to another file by now, or to none. Never true where that cannot be
    /// seen.
    bool isReplaced() const;

private:
    std::string m_path;
    dev_t m_device = 0;
    ino_t m_file = 0;
};

} // namespace quillon
