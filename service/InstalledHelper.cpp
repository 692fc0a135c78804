// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "service/InstalledHelper.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <unistd.h>
#include <utility>

namespace quillon::service {

namespace {

bool exists(const std::string &path)
{
    return access(path.c_str(), F_OK) == 0;
}

bool isSame(const std::string &one, const std::string &other)
{
    std::ifstream a{one, std::ios::binary};
    std::ifstream b{other, std::ios::binary};
    if (!a || !b) {
        return true;
    }
    using Bytes = std::istreambuf_iterator<char>;
    return std::equal(Bytes{a}, Bytes{}, Bytes{b}, Bytes{});
}

} // namespace

InstalledHelper::InstalledHelper(Paths paths)
    : m_paths(std::move(paths))
{
}

bool InstalledHelper::isCurrent() const
{
    if (exists(m_paths.packaged) && exists(m_paths.packagedUnit)) {
        return !exists(m_paths.installed);
    }
    return isSame(m_paths.seed, m_paths.installed);
}

} // namespace quillon::service
