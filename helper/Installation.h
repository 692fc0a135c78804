// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "helper/GuardedFolder.h"
#include "helper/InstalledFiles.h"
#include "helper/Outcome.h"

#include <optional>
#include <string>
#include <sys/types.h>
#include <vector>

namespace quillon {

/// Puts the helper's files in place and takes them away again. Works in folders that only `owner`
/// can have prepared, follows no symbolic link, and either everything is in place afterwards or
/// nothing has changed. What a killed one leaves is taken up by the next, whether it installs or
/// removes. Keeps no state between two calls; one process at a time.
class Installation
{
public:
    /// Paths of `layout` are seen from the folder `root`; `owner` (and his group) own what is made.
    /// In the layout's shared folder `sharedGroup` may write as well.
    Installation(std::string root, InstallationLayout layout, uid_t owner, gid_t group,
        std::optional<gid_t> sharedGroup = std::nullopt);

    /// The distribution's package has put a helper in place.
    bool isPackaged() const;
    /// `program` is an open file: the very one that the package has put in place.
    bool isPackagedTool(int program) const;
    /// Some file of an installation is there, of a partial one too; not counting the one that a
    /// package puts in the very same place.
    bool isInstalled() const;

    /// What would keep install() from its work, as far as it can be seen without changing
    /// anything; empty when nothing would.
    std::string obstacle() const;
    /// Copies the program behind `tool` and writes the other files, over an older installation too.
    /// Error: InstallFailed.
    Outcome install(int tool);
    /// Removes the files and the folders that install() made. Nothing to remove is a success. When
    /// a folder that nobody else uses cannot go, the next call tries again.
    /// Errors: OwnedByPackage, UninstallFailed.
    Outcome uninstall();

private:
    class Undo;
    struct Place;

    std::string problemWithTarget(int folder, const std::string &name) const;
    std::string writeAside(const InstalledFile &file, int folder, int tool) const;
    std::string writeAll(int tool, const std::vector<std::string> &folders,
        std::vector<Place> &places, Undo &undo) const;
    std::string putInPlace(std::vector<Place> &places, Undo &undo) const;
    std::string findAll(std::vector<Place> &places) const;
    /// Returns why one of them that is empty is still there; empty otherwise.
    std::string removeFolders(const std::vector<std::string> &folders) const;
    bool exists(const std::string &path) const;

    InstallationLayout m_layout;
    FolderGuard m_guard;
};

} // namespace quillon
