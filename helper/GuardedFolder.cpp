// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "helper/GuardedFolder.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sstream>
#include <sys/stat.h>
#include <unistd.h>

namespace quillon {

namespace {

constexpr int folderFlags = O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC;
constexpr mode_t folderMode = 0755;

std::string problemOf(int descriptor, const std::string &path, uid_t owner)
{
    struct stat status{};
    if (fstat(descriptor, &status) != 0) {
        return path + ": " + std::strerror(errno);
    }
    if (status.st_uid != owner) {
        return path + " belongs to another user; refusing to put anything there";
    }
    if ((status.st_mode & (S_IWGRP | S_IWOTH)) != 0) {
        return path + " is writable by other users; refusing to put anything there";
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

bool make(int parent, const std::string &name)
{
    if (mkdirat(parent, name.c_str(), folderMode) != 0) {
        return false;
    }
    // The umask may have narrowed it, and others must be able to look inside.
    const Descriptor folder{openat(parent, name.c_str(), folderFlags)};
    fchmod(folder.number(), folderMode);
    fsync(parent);
    return true;
}

GuardedFolder walk(
    const std::string &root, const std::string &path, uid_t owner, std::vector<std::string> *made)
{
    GuardedFolder folder;
    folder.descriptor = Descriptor{open(root.c_str(), folderFlags)};
    std::string walked;
    const auto parts = partsOf(path);
    for (auto part = parts.begin();; ++part) {
        if (!folder.descriptor.isOpen()) {
            folder.isMissing = errno == ENOENT;
            folder.problem = openingProblem(walked.empty() ? "/" : walked, errno);
            return folder;
        }
        folder.problem =
            problemOf(folder.descriptor.number(), walked.empty() ? "/" : walked, owner);
        if (!folder.problem.empty() || part == parts.end()) {
            return folder;
        }
        walked += '/' + *part;
        const int parent = folder.descriptor.number();
        Descriptor next{openat(parent, part->c_str(), folderFlags)};
        if (!next.isOpen() && errno == ENOENT && made != nullptr) {
            if (make(parent, *part)) {
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

GuardedFolder openGuarded(const std::string &root, const std::string &path, uid_t owner)
{
    return walk(root, path, owner, nullptr);
}

GuardedFolder makeGuarded(
    const std::string &root, const std::string &path, uid_t owner, std::vector<std::string> &made)
{
    return walk(root, path, owner, &made);
}

} // namespace quillon
