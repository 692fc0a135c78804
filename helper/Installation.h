// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "helper/GuardedFolder.h"
#include "helper/InstalledFiles.h"
#include "helper/Outcome.h"

#include <functional>
#include <string>
#include <sys/types.h>
#include <vector>

namespace quillon {

/// Puts the helper's files in place and takes them away again. Works in folders that only `owner`
/// can have prepared, follows no symbolic link, and either everything is in place afterwards or
/// nothing has changed. Keeps no state between two calls; one process at a time.
class Installation
{
public:
    /// Paths of `layout` are seen from the folder `root`; `owner` (and his group) own what is made.
    Installation(std::string root, InstallationLayout layout, uid_t owner, gid_t group);

    /// The distribution's package has put a helper in place.
    bool isPackaged() const;
    /// `path` is where the package puts the helper.
    bool isPackagedTool(const std::string &path) const { return path == m_layout.packagedTool; }
    bool isInstalled() const;

    /// Copies the program behind `tool` and writes the other files, over an older installation too.
    /// Error: InstallFailed.
    Outcome install(int tool);
    /// Removes the files and the folders that install() made. Nothing to remove is a success.
    /// Errors: OwnedByPackage, UninstallFailed.
    Outcome uninstall();

private:
    class Undo;
    struct Place;

    std::string problemWithTarget(int folder, const std::string &name) const;
    std::string writeAside(const InstalledFile &file, int folder, int tool) const;
    std::string writeAll(int tool, std::vector<Place> &places, Undo &undo);
    std::string putInPlace(std::vector<Place> &places, Undo &undo) const;
    std::string findAll(std::vector<Place> &places) const;
    std::vector<std::string> recordedFolders() const;
    void removeFolders(const std::vector<std::string> &folders) const;
    bool exists(const std::string &path) const;

    std::string m_root;
    InstallationLayout m_layout;
    uid_t m_owner;
    gid_t m_group;
};

} // namespace quillon
