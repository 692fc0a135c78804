// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "helper/FolderRecord.h"

#include "helper/WholeFile.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <set>
#include <sys/stat.h>
#include <unistd.h>

namespace quillon {

namespace {

constexpr char journalName[] = ".quillon4-folders";
constexpr char journalAside[] = ".quillon4-folders.new";
constexpr mode_t journalMode = 0644;
constexpr std::size_t longestRecord = 4096;

/// `folder` and the folders above it, innermost first, without the root.
std::vector<std::string> upwards(std::string folder)
{
    std::vector<std::string> folders;
    while (!folder.empty()) {
        folders.push_back(folder);
        folder.resize(folder.rfind('/'));
    }
    return folders;
}

bool contains(const std::vector<std::string> &list, const std::string &text)
{
    return std::find(list.begin(), list.end(), text) != list.end();
}

} // namespace

FolderRecord::FolderRecord(const FolderGuard &guard, const InstallationLayout &layout)
    : m_guard{guard}
    , m_layout{layout}
{
}

std::string FolderRecord::readFile(const std::string &folder, const std::string &name) const
{
    const auto place = openGuarded(m_guard, folder);
    if (!place.problem.empty()) {
        return {};
    }
    const Descriptor file{
        openat(place.descriptor.number(), name.c_str(), O_RDONLY | O_NOFOLLOW | O_CLOEXEC)};
    std::string text(longestRecord, '\0');
    const auto size = file.isOpen() ? read(file.number(), text.data(), text.size()) : 0;
    text.resize(static_cast<std::size_t>(std::max<ssize_t>(size, 0)));
    return text;
}

std::vector<std::string> FolderRecord::folders() const
{
    const auto &home = m_layout.files.front().folder;
    auto text = readFile(home, m_layout.folderRecord);
    for (const auto &folder : upwards(home)) {
        text += readFile(folder, journalName);
    }
    text += readFile({}, journalName);

    // Only folders on the way to our files can be ours.
    std::set<std::string> folders;
    for (const auto &file : m_layout.files) {
        for (const auto &path : upwards(file.folder)) {
            if (text.find('\n' + path + '\n') != std::string::npos) {
                folders.insert(path);
            }
        }
    }
    return {folders.begin(), folders.end()};
}

std::vector<std::string> FolderRecord::missingFolders() const
{
    std::set<std::string> missing;
    for (const auto &file : m_layout.files) {
        for (const auto &path : upwards(file.folder)) {
            struct stat status{};
            if (lstat((m_guard.root + path).c_str(), &status) != 0 && errno == ENOENT) {
                missing.insert(path);
            }
        }
    }
    return {missing.begin(), missing.end()};
}

std::string FolderRecord::text(const std::vector<std::string> &folders)
{
    std::string text = "# Folders that the installation made.\n";
    for (const auto &path : std::set<std::string>{folders.begin(), folders.end()}) {
        text += path + '\n';
    }
    return text;
}

std::string FolderRecord::journalFolder(const std::vector<std::string> &folders) const
{
    for (const auto &path : upwards(m_layout.files.front().folder)) {
        if (!contains(folders, path)) {
            return path;
        }
    }
    return {};
}

bool FolderRecord::hasJournal() const
{
    const auto &home = m_layout.files.front().folder;
    const auto onTheWay = upwards(home);
    return std::any_of(onTheWay.begin(), onTheWay.end(), [this](const auto &folder) {
        return !readFile(folder, journalName).empty();
    }) || !readFile({}, journalName).empty();
}

std::string FolderRecord::beginJournal(const std::vector<std::string> &folders) const
{
    const auto path = journalFolder(folders);
    const auto folder = openGuarded(m_guard, path);
    if (!folder.problem.empty()) {
        return folder.problem;
    }
    const int number = folder.descriptor.number();
    const auto failed = [&] {
        const auto problem = path + '/' + journalAside + ": " + std::strerror(errno);
        unlinkat(number, journalAside, 0);
        return problem;
    };
    unlinkat(number, journalAside, 0);
    const Descriptor file{openat(
        number, journalAside, O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, journalMode)};
    const auto content = text(folders);
    if (!file.isOpen() || !writeWhole(file.number(), content.data(), content.size()) ||
        fsync(file.number()) != 0 || renameat(number, journalAside, number, journalName) != 0) {
        return failed();
    }
    fsync(number);
    return {};
}

void FolderRecord::endJournal() const
{
    auto places = upwards(m_layout.files.front().folder);
    places.emplace_back();
    for (const auto &path : places) {
        const auto folder = openGuarded(m_guard, path);
        if (folder.problem.empty()) {
            unlinkat(folder.descriptor.number(), journalAside, 0);
            unlinkat(folder.descriptor.number(), journalName, 0);
        }
    }
}

} // namespace quillon
