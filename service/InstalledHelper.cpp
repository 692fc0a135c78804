// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "service/InstalledHelper.h"

#include <cstring>
#include <ctime>
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

// A kernel tells the time of a change in steps of some milliseconds: within one of them a file may
// change again unseen.
bool isSettled(const timespec &changed)
{
    constexpr time_t longestStep = 2; // seconds, of some file systems
    return time(nullptr) - changed.tv_sec > longestStep;
}

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

bool InstalledHelper::State::operator==(const State &other) const
{
    return device == other.device && file == other.file && size == other.size &&
           changed.tv_sec == other.changed.tv_sec && changed.tv_nsec == other.changed.tv_nsec;
}

std::optional<InstalledHelper::State> InstalledHelper::stateOf(const std::string &path)
{
    struct stat status{};
    if (stat(path.c_str(), &status) != 0) {
        return std::nullopt;
    }
    return State{status.st_dev, status.st_ino, status.st_size, status.st_ctim};
}

bool InstalledHelper::isCurrent()
{
    if (exists(m_paths.packaged) && exists(m_paths.packagedUnit)) {
        return !exists(m_paths.installed);
    }
    // Asked before each operation of the helper, and the files are large.
    const auto seed = stateOf(m_paths.seed);
    const auto installed = stateOf(m_paths.installed);
    if (!seed || !installed) {
        return true;
    }
    const States states{*seed, *installed};
    if (m_compared == states) {
        return true;
    }
    m_compared.reset();
    const bool same = isSame(m_paths.seed, m_paths.installed);
    if (same && isSettled(seed->changed) && isSettled(installed->changed)) {
        m_compared = states;
    }
    return same;
}

} // namespace quillon::service
