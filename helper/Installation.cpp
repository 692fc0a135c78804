// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "helper/Installation.h"

#include "helper/FolderRecord.h"
#include "helper/WholeFile.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <functional>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace quillon {

namespace {

// None of the readers of these folders takes a name with this ending for one of its files.
constexpr char asideSuffix[] = ".new";

std::string failure(const std::string &path)
{
    return path + ": " + std::strerror(errno);
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
    /// A step could not be undone.
    void failed() { m_isWhole = false; }
    bool isWhole() const { return m_isWhole; }

private:
    bool m_isWhole = true;
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

Installation::Installation(std::string root, InstallationLayout layout, uid_t owner, gid_t group,
    std::optional<gid_t> sharedGroup)
    : m_layout{std::move(layout)}
    , m_guard{std::move(root), owner, group, m_layout.sharedFolder, sharedGroup}
{
}

bool Installation::exists(const std::string &path) const
{
    struct stat status{};
    return fstatat(AT_FDCWD, (m_guard.root + path).c_str(), &status, AT_SYMLINK_NOFOLLOW) == 0;
}

bool Installation::isPackaged() const
{
    return exists(m_layout.packagedTool) && exists(m_layout.packagedUnit);
}

bool Installation::isPackagedTool(int program) const
{
    // By what the file is: its path may lead there through a link.
    struct stat running{};
    struct stat packaged{};
    return fstat(program, &running) == 0 &&
           stat((m_guard.root + m_layout.packagedTool).c_str(), &packaged) == 0 &&
           running.st_dev == packaged.st_dev && running.st_ino == packaged.st_ino;
}

bool Installation::isInstalled() const
{
    return std::any_of(m_layout.files.begin(), m_layout.files.end(), [this](const auto &file) {
        return file.name != m_layout.sharedWithPackage && exists(file.folder + '/' + file.name);
    });
}

std::string Installation::problemWithTarget(int folder, const std::string &name) const
{
    struct stat status{};
    if (fstatat(folder, name.c_str(), &status, AT_SYMLINK_NOFOLLOW) != 0) {
        return errno == ENOENT ? std::string{} : failure(name);
    }
    if (!S_ISREG(status.st_mode) || status.st_uid != m_guard.owner) {
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
    if (!written || fchown(aside.number(), m_guard.owner, m_guard.group) != 0 ||
        fchmod(aside.number(), file.mode) != 0 || fsync(aside.number()) != 0) {
        const auto problem = failure(file.folder + '/' + name);
        unlinkat(folder, name.c_str(), 0);
        return problem;
    }
    return {};
}

std::string Installation::writeAll(
    int tool, const std::vector<std::string> &folders, std::vector<Place> &places, Undo &undo) const
{
    auto files = m_layout.files;
    files.push_back(
        {files.front().folder, m_layout.folderRecord, 0644, FolderRecord::text(folders)});
    for (auto &file : files) {
        std::vector<std::string> made;
        auto folder = makeGuarded(m_guard, file.folder, made);
        undo.add([this, made, &undo] {
            if (!removeFolders(made).empty()) {
                undo.failed();
            }
        });
        if (!folder.problem.empty()) {
            return folder.problem;
        }
        const int number = folder.descriptor.number();
        if (auto problem = problemWithTarget(number, file.name); !problem.empty()) {
            return file.folder + '/' + problem;
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

std::string Installation::obstacle() const
{
    for (const auto &file : m_layout.files) {
        const auto folder = openGuarded(m_guard, file.folder);
        if (folder.isMissing) {
            continue;
        }
        if (!folder.problem.empty()) {
            return folder.problem;
        }
        if (auto problem = problemWithTarget(folder.descriptor.number(), file.name);
            !problem.empty()) {
            return file.folder + '/' + problem;
        }
    }
    return {};
}

Outcome Installation::install(int tool)
{
    const FolderRecord record{m_guard, m_layout};
    auto folders = record.folders();
    const auto missing = record.missingFolders();
    folders.insert(folders.end(), missing.begin(), missing.end());

    // In this order: undoing needs the folders still open, and the journal until the end.
    std::vector<Place> places;
    Undo undo;
    if (!record.hasJournal()) {
        undo.add([&record, &undo] {
            if (undo.isWhole()) {
                record.endJournal();
            }
        });
    }
    auto problem = record.beginJournal(folders);
    if (problem.empty()) {
        problem = writeAll(tool, folders, places, undo);
    }
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
    record.endJournal();
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
        auto folder = openGuarded(m_guard, file.folder);
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
    const FolderRecord record{m_guard, m_layout};
    const auto folders = record.folders();
    std::vector<Place> places;
    // Everything is looked at before the first file goes.
    auto problem = findAll(places);
    if (problem.empty() && !folders.empty()) {
        problem = record.beginJournal(folders);
    }
    if (!problem.empty()) {
        return Refusal{contract::error::uninstallFailed, problem};
    }
    for (const auto &place : places) {
        unlinkat(place.folder.number(), place.aside().c_str(), 0);
        if (unlinkat(place.folder.number(), place.file.name.c_str(), 0) != 0 && errno != ENOENT) {
            return Refusal{contract::error::uninstallFailed, failure(place.path())};
        }
    }
    places.clear();
    problem = removeFolders(folders);
    if (!problem.empty()) {
        // The journal stays, for the next one to know them.
        return Refusal{contract::error::uninstallFailed, problem};
    }
    record.endJournal();
    return std::nullopt;
}

std::string Installation::removeFolders(const std::vector<std::string> &folders) const
{
    std::string problem;
    auto innermostFirst = folders;
    std::sort(innermostFirst.begin(), innermostFirst.end(),
        [](const auto &a, const auto &b) { return a.size() > b.size(); });
    for (const auto &path : innermostFirst) {
        const auto cut = path.rfind('/');
        const auto parent = openGuarded(m_guard, path.substr(0, cut));
        if (!parent.problem.empty()) {
            problem = parent.isMissing ? problem : parent.problem;
            continue;
        }
        // Not when something else lives there by now.
        if (unlinkat(parent.descriptor.number(), path.c_str() + cut + 1, AT_REMOVEDIR) != 0 &&
            errno != ENOTEMPTY && errno != EEXIST && errno != ENOENT && problem.empty()) {
            problem = failure(path);
        }
    }
    return problem;
}

} // namespace quillon
