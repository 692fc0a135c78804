// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

#include <memory>
#include <optional>

namespace quillon {

/// A row of the vendor table as texts; none for a column that holds nothing. Each is at most 4096
/// UTF-16 units long, whatever the file holds, and no surrogate pair is cut: the texts go into the
/// settings.
struct VendorRecord
{
    std::optional<QString> assignment;
    std::optional<QString> organizationAddress;
    std::optional<QString> organizationName;
    std::optional<QString> registry;
};

/// "organization (A1B2C3)", trimmed; what is missing shows as the null marker.
QString vendorDisplayString(
    const std::optional<QString> &organizationName, const std::optional<QString> &assignment);

/// A vendor database file, which need not exist. A handle: copies are the same file and share its
/// lock. Any thread; calls block until the file has answered.
///
/// Every call opens the file for itself, for reading only, so that a question never makes a file.
/// While it is rewritten others wait: an answer is that of the whole old or the whole new file.
/// Another program that writes to it is waited for, though not for long. Whatever goes wrong makes
/// an empty answer.
class VendorDatabase
{
public:
    explicit VendorDatabase(const QString &path);

    const QString &path() const;

    /// The number of rows; 0 for a file that is missing or holds no vendor table. `wasRead` becomes
    /// false, with 0 as the answer, when the file exists but does not answer at the moment: another
    /// program has locked it, or it cannot be opened or read.
    qlonglong count(bool *wasRead = nullptr) const;
    /// The last row whose `Assignment` is exactly `assignment`.
    std::optional<VendorRecord> lookup(const QString &assignment) const;
    /// The display strings of all rows, in the table's order; `wasRead` as for count().
    QStringList displayStrings(bool *wasRead = nullptr) const;

    enum class Rewriting
    {
        Done,
        FileMissing, ///< nothing was written
        NotKept,     ///< nothing was written, as what is there could not be kept, or not read
        Failed,      ///< the file may have been cut short, unless it could not be locked or opened
    };
    /// Writes the content of the file `source` over this one, which keeps its identity, and waits
    /// for the disk. While another program's lock is waited for, questions are answered. Whatever
    /// journal or log lies beside the file does not outlive this.
    ///
    /// With `keptAs`, what is there before is kept as that file first, unless it is damaged, holds
    /// no identifier, or not half as many as that file. When that is `source` itself the two change
    /// places, and a file that is missing is made.
    Rewriting rewriteFrom(const QString &source, const QString &keptAs = {});

private:
    struct File;
    std::shared_ptr<File> m_file;
};

} // namespace quillon
