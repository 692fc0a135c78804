// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "helper/RunningProgram.h"

#include <array>
#include <cerrno>
#include <climits>
#include <sys/stat.h>
#include <unistd.h>

namespace quillon {

RunningProgram::RunningProgram(const std::string &link)
{
    std::array<char, PATH_MAX> path{};
    const auto length = readlink(link.c_str(), path.data(), path.size());
    struct stat status{};
    if (length > 0 && stat(link.c_str(), &status) == 0) {
        m_path.assign(path.data(), static_cast<std::size_t>(length));
        m_device = status.st_dev;
        m_file = status.st_ino;
    }
}

bool RunningProgram::isReplaced() const
{
    if (m_path.empty()) {
        return false;
    }
    struct stat status{};
    if (stat(m_path.c_str(), &status) != 0) {
        return errno == ENOENT || errno == ENOTDIR;
    }
    return status.st_dev != m_device || status.st_ino != m_file;
}

} // namespace quillon
