// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>

namespace quillon {

/// Writes files so that each is there as a whole, or not at all, whoever looks and whenever the
/// power goes. Until then they have a name that programs which synchronize leave alone.
class WholeFile
{
public:
    enum class There
    {
        Nothing,  ///< EEXIST when anything has the name
        Anything, ///< it is replaced
    };

    /// The open folder outlives this.
    explicit WholeFile(int folder)
        : m_folder(folder)
    {
    }

    /// 0, or an error number; then nothing is left of it. The folder is not waited for.
    int write(const QByteArray &name, const QByteArray &bytes, There there) const;

private:
    int fill(const QByteArray &temporary, const QByteArray &bytes) const;
    int publish(const QByteArray &temporary, const QByteArray &name, There there) const;

    const int m_folder;
};

/// Whether the name is that of a file that was being written, and not to be shown. One that nobody
/// can be writing any more is removed. `now` is in seconds since 1970.
bool removeLeftOver(int folder, const QByteArray &name, qint64 now);

} // namespace quillon
