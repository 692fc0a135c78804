// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "helper/GuardedFolder.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <grp.h>
#include <sstream>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace quillon {

namespace {

constexpr int folderFlags = O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC;
constexpr mode_t folderMode = 0755;

bool isAtOrBelow(const std::string &path, const std::string &folder)
{
    return !folder.empty() && (path + '/').compare(0, folder.size() + 1, folder + '/') == 0;
}

std::string nameOf(gid_t group)
{
    const auto *const entry = getgrgid(group);
    return entry == nullptr ? std::to_string(group) : std::string{entry->gr_name};
}

/// With a list of further users and groups the group's bits only bound what those may do.
bool hasAccessList(int descriptor)
{
    return fgetxattr(descriptor, "system.posix_acl_access", nullptr, 0) >= 0 ||
           (errno != ENODATA && errno != ENOTSUP);
}

std::string problemOf(int descriptor, const std::string &path, const FolderGuard &guard)
{
    struct stat status{};
    if (fstat(descriptor, &status) != 0) {
        return path + ": " + std::strerror(errno);
    }
    if (status.st_uid != guard.owner) {
        return path + " belongs to another user; refusing to put anything there";
    }
    if ((status.st_mode & S_IWOTH) != 0) {
        return path + " is writable by other users; refusing to put anything there";
    }
    const bool isShared =
        guard.sharedGroup == status.st_gid && isAtOrBelow(path, guard.sharedFolder);
    if ((status.st_mode & S_IWGRP) != 0 && !isShared) {
        return path + " is writable by other users (the group " + nameOf(status.st_gid) +
               "); refusing to put anything there";
    }
    if ((status.st_mode & S_IWGRP) != 0 && hasAccessList(descriptor)) {
        return path + " may be writable by other users (it has an access control list); refusing "
                      "to put anything there";
    }
    return {};
}

std::vector<std::string> partsOf(const std::string &path)
{
    std::vector<std::string> parts;
    std::istringstream stream{path};
    for (std::string part; std::getline(stream, part, '/');) {
        if (!part.empty()) {
            parts.push_back(part);
        }
    }
    return parts;
}

std::string openingProblem(const std::string &path, int error)
{
    if (error == ENOTDIR || error == ELOOP) {
        return path + " is not a folder (symbolic links are not followed)";
    }
    return path + ": " + std::strerror(error);
}

bool make(int parent, const std::string &name, const FolderGuard &guard)
{
    if (mkdirat(parent, name.c_str(), folderMode) != 0) {
        return false;
    }
    const Descriptor folder{openat(parent, name.c_str(), folderFlags)};
    // A parent with the set-group-id bit has handed it to its own group. When this fails, it is
    // still a folder that was made, and its group may not write there.
    static_cast<void>(fchown(folder.number(), guard.owner, guard.group) == 0);
    // The umask may have narrowed it, and others must be able to look inside.
    fchmod(folder.number(), folderMode);
    fsync(parent);
    return true;
}

GuardedFolder walk(
    const FolderGuard &guard, const std::string &path, std::vector<std::string> *made)
{
    GuardedFolder folder;
    folder.descriptor = Descriptor{open(guard.root.c_str(), folderFlags)};
    std::string walked;
    const auto parts = partsOf(path);
    for (auto part = parts.begin();; ++part) {
        if (!folder.descriptor.isOpen()) {
            folder.isMissing = errno == ENOENT;
            folder.problem = openingProblem(walked.empty() ? "/" : walked, errno);
            return folder;
        }
        folder.problem =
            problemOf(folder.descriptor.number(), walked.empty() ? "/" : walked, guard);
        if (!folder.problem.empty() || part == parts.end()) {
            return folder;
        }
        walked += '/' + *part;
        const int parent = folder.descriptor.number();
        Descriptor next{openat(parent, part->c_str(), folderFlags)};
        if (!next.isOpen() && errno == ENOENT && made != nullptr) {
            if (make(parent, *part, guard)) {
                made->push_back(walked);
            }
            next = Descriptor{openat(parent, part->c_str(), folderFlags)};
        }
        folder.descriptor = std::move(next);
    }
}

} // namespace

Descriptor::~Descriptor()
{
    if (m_number >= 0) {
        close(m_number);
    }
}

GuardedFolder openGuarded(const FolderGuard &guard, const std::string &path)
{
    return walk(guard, path, nullptr);
}

GuardedFolder makeGuarded(
    const FolderGuard &guard, const std::string &path, std::vector<std::string> &made)
{
    return walk(guard, path, &made);
}

} // namespace quillon
