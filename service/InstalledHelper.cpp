// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "service/InstalledHelper.h"

#include <cstring>
#include <fstream>
#include <unistd.h>
#include <utility>
#include <vector>

namespace quillon::service {

namespace {

constexpr std::streamsize pieceSize = 65536;

bool exists(const std::string &path)
{
    return access(path.c_str(), F_OK) == 0;
}

// Asked before each operation of the helper: read in large pieces.
bool isSame(const std::string &one, const std::string &other)
{
    std::ifstream a{one, std::ios::binary};
    std::ifstream b{other, std::ios::binary};
    if (!a || !b) {
        return true;
    }
    std::vector<char> pieceOfA(pieceSize);
    std::vector<char> pieceOfB(pieceSize);
    do {
        a.read(pieceOfA.data(), pieceSize);
        b.read(pieceOfB.data(), pieceSize);
        if (a.gcount() != b.gcount() || std::memcmp(pieceOfA.data(), pieceOfB.data(),
                                            static_cast<std::size_t>(a.gcount())) != 0) {
            return false;
        }
    } while (a && b);
    return true;
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
