// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

namespace quillon {

/// One file of an installation.
struct InstalledFile
{
    /// Absolute, without "." and "..".
    std::string folder;
    std::string name;
    unsigned mode = 0;
    /// The helper itself has none: it is copied.
    std::string text;
};

/// What an installation consists of, and what of the distribution's would stand in its place.
struct InstallationLayout
{
    /// In the order of their removal. The first is the helper's own program.
    std::vector<InstalledFile> files;
    /// Beside the program: the folders that the installation made, one a line.
    std::string folderRecord;
    std::string packagedTool;
    std::string packagedUnit;
    /// The system user as whom the helper runs, as a line of sysusers.d(5).
    std::string accountLine;
    /// Whoever may install programs for the whole machine without being root may write here.
    std::string sharedFolder;
    /// Of `files`, the name of the one that a package puts in the very same place.
    std::string sharedWithPackage;
};

/// The layout of this build.
InstallationLayout helperLayout();

} // namespace quillon
