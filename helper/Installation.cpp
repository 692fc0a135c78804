// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "helper/Installation.h"

#include "helper/WholeFile.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <set>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace quillon {

namespace {

// None of the readers of these folders takes a name with this ending for one of its files.
constexpr char asideSuffix[] = ".new";
constexpr std::size_t longestRecord = 4096;

std::string failure(const std::string &path)
{
    return path + ": " + std::strerror(errno);
}

/// `folder` and the folders above it, innermost first.
std::vector<std::string> upwards(std::string folder)
{
    std::vector<std::string> folders;
    while (!folder.empty()) {
        folders.push_back(folder);
        folder.resize(folder.rfind('/'));
    }
    return folders;
}

} // namespace

/// What to do when an installation fails halfway, last thing first.
class Installation::Undo
{
public:
    Undo() = default;
    Undo(const Undo &) = delete;
    Undo &operator=(const Undo &) = delete;
    ~Undo()
    {
        for (auto step = m_steps.rbegin(); step != m_steps.rend(); ++step) {
            (*step)();
        }
    }
    void add(std::function<void()> step) { m_steps.push_back(std::move(step)); }
    void forget() { m_steps.clear(); }

private:
    std::vector<std::function<void()>> m_steps;
};

/// A file and its folder, open.
struct Installation::Place
{
    InstalledFile file;
    Descriptor folder;

    std::string path() const { return file.folder + '/' + file.name; }
    std::string aside() const { return file.name + asideSuffix; }
};

Installation::Installation(std::string root, InstallationLayout layout, uid_t owner, gid_t group)
    : m_root{std::move(root)}
    , m_layout{std::move(layout)}
    , m_owner{owner}
    , m_group{group}
{
}

bool Installation::exists(const std::string &path) const
{
    struct stat status{};
    return fstatat(AT_FDCWD, (m_root + path).c_str(), &status, AT_SYMLINK_NOFOLLOW) == 0;
}

bool Installation::isPackaged() const
{
    return exists(m_layout.packagedTool) && exists(m_layout.packagedUnit);
}

bool Installation::isInstalled() const
{
    const auto &tool = m_layout.files.front();
    return exists(tool.folder + '/' + tool.name);
}

std::string Installation::problemWithTarget(int folder, const std::string &name) const
{
    struct stat status{};
    if (fstatat(folder, name.c_str(), &status, AT_SYMLINK_NOFOLLOW) != 0) {
        return errno == ENOENT ? std::string{} : failure(name);
    }
    if (!S_ISREG(status.st_mode) || status.st_uid != m_owner) {
        return name + " exists and is no file of the system; refusing to replace it";
    }
    return {};
}

std::string Installation::writeAside(const InstalledFile &file, int folder, int tool) const
{
    const auto name = file.name + asideSuffix;
    // Left by an installation that was killed.
    unlinkat(folder, name.c_str(), 0);
    const Descriptor aside{openat(folder, name.c_str(),
        O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, S_IRUSR | S_IWUSR)};
    if (!aside.isOpen()) {
        return failure(file.folder + '/' + name);
    }
    const bool written = file.text.empty()
                             ? copyWhole(tool, aside.number())
                             : writeWhole(aside.number(), file.text.data(), file.text.size());
    // A folder with the set-group-id bit would hand the file to its own group.
    if (!written || fchown(aside.number(), m_owner, m_group) != 0 ||
        fchmod(aside.number(), file.mode) != 0 || fsync(aside.number()) != 0) {
        const auto problem = failure(file.folder + '/' + name);
        unlinkat(folder, name.c_str(), 0);
        return problem;
    }
    return {};
}

std::string Installation::writeAll(int tool, std::vector<Place> &places, Undo &undo)
{
    auto folders = recordedFolders();
    auto files = m_layout.files;
    // The record comes last, when it is known which folders were made.
    files.push_back({m_layout.files.front().folder, m_layout.folderRecord, 0644, {}});
    for (auto &file : files) {
        std::vector<std::string> made;
        auto folder = makeGuarded(m_root, file.folder, m_owner, made);
        undo.add([this, made] { removeFolders(made); });
        folders.insert(folders.end(), made.begin(), made.end());
        if (!folder.problem.empty()) {
            return folder.problem;
        }
        const int number = folder.descriptor.number();
        if (auto problem = problemWithTarget(number, file.name); !problem.empty()) {
            return file.folder + '/' + problem;
        }
        if (file.name == m_layout.folderRecord) {
            file.text = "# Folders that the installation made.\n";
            for (const auto &path : std::set<std::string>{folders.begin(), folders.end()}) {
                file.text += path + '\n';
            }
        }
        if (auto problem = writeAside(file, number, tool); !problem.empty()) {
            return problem;
        }
        undo.add([number, aside = file.name + asideSuffix] { unlinkat(number, aside.c_str(), 0); });
        places.push_back({file, std::move(folder.descriptor)});
    }
    return {};
}

std::string Installation::putInPlace(std::vector<Place> &places, Undo &undo) const
{
    for (auto &place : places) {
        const int folder = place.folder.number();
        const auto aside = place.aside();
        const auto name = place.file.name;
        // Over an older file by exchange, so that the older one is still there to go back to.
        if (renameat2(folder, aside.c_str(), folder, name.c_str(), RENAME_EXCHANGE) == 0) {
            undo.add([folder, aside, name] {
                renameat2(folder, aside.c_str(), folder, name.c_str(), RENAME_EXCHANGE);
            });
        } else if (renameat2(folder, aside.c_str(), folder, name.c_str(), RENAME_NOREPLACE) == 0) {
            undo.add([folder, name] { unlinkat(folder, name.c_str(), 0); });
        } else {
            return failure(place.path());
        }
    }
    return {};
}

Outcome Installation::install(int tool)
{
    // In this order: undoing needs the folders still open.
    std::vector<Place> places;
    Undo undo;
    auto problem = writeAll(tool, places, undo);
    if (problem.empty()) {
        problem = putInPlace(places, undo);
    }
    if (!problem.empty()) {
        return Refusal{contract::error::installFailed, problem};
    }
    undo.forget();
    for (const auto &place : places) {
        unlinkat(place.folder.number(), place.aside().c_str(), 0);
        fsync(place.folder.number());
    }
    return std::nullopt;
}

std::string Installation::findAll(std::vector<Place> &places) const
{
    auto files = m_layout.files;
    files.insert(files.begin() + 1, {files.front().folder, m_layout.folderRecord, 0644, {}});
    for (const auto &file : files) {
        if (isPackaged() && file.name == m_layout.sharedWithPackage) {
            continue;
        }
        auto folder = openGuarded(m_root, file.folder, m_owner);
        if (folder.isMissing) {
            continue;
        }
        if (!folder.problem.empty()) {
            return folder.problem;
        }
        if (faccessat(folder.descriptor.number(), ".", W_OK | X_OK, AT_EACCESS) != 0) {
            return failure(file.folder);
        }
        places.push_back({file, std::move(folder.descriptor)});
    }
    return {};
}

Outcome Installation::uninstall()
{
    if (isPackaged() && !isInstalled()) {
        return Refusal{contract::error::ownedByPackage,
            "The helper was installed by a package of the distribution: remove that package."};
    }
    const auto folders = recordedFolders();
    std::vector<Place> places;
    // Everything is looked at before the first file goes.
    if (auto problem = findAll(places); !problem.empty()) {
        return Refusal{contract::error::uninstallFailed, problem};
    }
    for (const auto &place : places) {
        unlinkat(place.folder.number(), place.aside().c_str(), 0);
        if (unlinkat(place.folder.number(), place.file.name.c_str(), 0) != 0 && errno != ENOENT) {
            return Refusal{contract::error::uninstallFailed, failure(place.path())};
        }
    }
    places.clear();
    removeFolders(folders);
    return std::nullopt;
}

std::vector<std::string> Installation::recordedFolders() const
{
    const auto folder = openGuarded(m_root, m_layout.files.front().folder, m_owner);
    const Descriptor record{openat(folder.descriptor.number(), m_layout.folderRecord.c_str(),
        O_RDONLY | O_NOFOLLOW | O_CLOEXEC)};
    std::string text(longestRecord, '\0');
    const auto size = record.isOpen() ? read(record.number(), text.data(), text.size()) : 0;
    text.resize(static_cast<std::size_t>(std::max<ssize_t>(size, 0)));

    // Only folders on the way to our files can be ours.
    std::vector<std::string> folders;
    for (const auto &file : m_layout.files) {
        for (const auto &path : upwards(file.folder)) {
            if (text.find('\n' + path + '\n') != std::string::npos) {
                folders.push_back(path);
            }
        }
    }
    return folders;
}

void Installation::removeFolders(const std::vector<std::string> &folders) const
{
    auto innermostFirst = folders;
    std::sort(innermostFirst.begin(), innermostFirst.end(),
        [](const auto &a, const auto &b) { return a.size() > b.size(); });
    for (const auto &path : innermostFirst) {
        const auto cut = path.rfind('/');
        const auto parent = openGuarded(m_root, path.substr(0, cut), m_owner);
        if (parent.problem.empty()) {
            // Not when something else lives there by now.
            unlinkat(parent.descriptor.number(), path.c_str() + cut + 1, AT_REMOVEDIR);
        }
    }
}

} // namespace quillon
