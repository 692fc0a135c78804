// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <sys/types.h>
#include <utility>
#include <vector>

namespace quillon {

/// A descriptor that closes itself.
class Descriptor
{
public:
    Descriptor() = default;
    explicit Descriptor(int number)
        : m_number{number}
    {
    }
    Descriptor(Descriptor &&other) noexcept
        : m_number{std::exchange(other.m_number, -1)}
    {
    }
    Descriptor &operator=(Descriptor &&other) noexcept
    {
        std::swap(m_number, other.m_number);
        return *this;
    }
    ~Descriptor();

    int number() const { return m_number; }
    bool isOpen() const { return m_number >= 0; }

private:
    int m_number = -1;
};

/// A folder that nobody but its owner can have prepared: from the root down every part is a folder
/// (no symbolic link), belongs to `owner`, and is writable by him alone. What is done through its
/// descriptor happens there, whatever is renamed meanwhile.
struct GuardedFolder
{
    Descriptor descriptor;
    /// What kept it from being opened; empty on success.
    std::string problem;
    /// The problem is only that it is not there.
    bool isMissing = false;
};

/// Opens `path` (absolute, as seen from the folder `root`).
GuardedFolder openGuarded(const std::string &root, const std::string &path, uid_t owner);

/// The same, making what is missing (0755). Paths that were made are appended to `made`, outermost
/// first, also when it fails afterwards.
GuardedFolder makeGuarded(
    const std::string &root, const std::string &path, uid_t owner, std::vector<std::string> &made);

} // namespace quillon
