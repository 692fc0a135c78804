// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "helper/GuardedFolder.h"
#include "helper/InstalledFiles.h"

#include <string>
#include <vector>

namespace quillon {

/// Which folders an installation made, so that its removal takes away these and no others. They
/// stand in a file beside the program. While folders come and go they stand also in a journal, in
/// the innermost folder on the way to the program that was there before: whenever the process is
/// killed, the next installation or removal knows them.
class FolderRecord
{
public:
    FolderRecord(const FolderGuard &guard, const InstallationLayout &layout);

    /// What the file and the journal name, of the folders on the way to the installation's files.
    std::vector<std::string> folders() const;
    /// The folders on the way to the installation's files that are not there.
    std::vector<std::string> missingFolders() const;
    /// The content of the file beside the program.
    static std::string text(const std::vector<std::string> &folders);

    bool hasJournal() const;
    /// Before the first folder comes or goes. Returns what prevented it; empty on success.
    std::string beginJournal(const std::vector<std::string> &folders) const;
    /// When the file says the same, or when the folders are gone.
    void endJournal() const;

private:
    std::string readFile(const std::string &folder, const std::string &name) const;
    std::string journalFolder(const std::vector<std::string> &folders) const;

    const FolderGuard &m_guard;
    const InstallationLayout &m_layout;
};

} // namespace quillon
