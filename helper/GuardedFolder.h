// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
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

/// Where folders are looked at, and whom they may belong to.
struct FolderGuard
{
    /// Paths are seen from this folder.
    std::string root;
    uid_t owner = 0;
    gid_t group = 0;
    /// At `sharedFolder` and below it this group may write as well; none: nobody but `owner`.
    std::string sharedFolder;
    std::optional<gid_t> sharedGroup;
};

/// A folder that nobody but its owner can have prepared: from the root down every part is a folder
/// (no symbolic link), belongs to the guard's owner, and is writable by him alone, or by whom the
/// guard names. What is done through its descriptor happens there, whatever is renamed meanwhile.
struct GuardedFolder
{
    Descriptor descriptor;
    /// What kept it from being opened; empty on success.
    std::string problem;
    /// The problem is only that it is not there.
    bool isMissing = false;
};

/// Opens `path`, which is absolute.
GuardedFolder openGuarded(const FolderGuard &guard, const std::string &path);

/// The same, making what is missing (0755, of the guard's owner and group). Paths that were made
/// are appended to `made`, outermost first, also when it fails afterwards.
GuardedFolder makeGuarded(
    const FolderGuard &guard, const std::string &path, std::vector<std::string> &made);

} // namespace quillon
