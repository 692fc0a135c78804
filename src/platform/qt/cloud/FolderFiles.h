// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/CloudStorage.h"
#include "platform/qt/cloud/WholeFile.h"

#include <QHash>

#include <sys/stat.h>

namespace quillon {

/// The files of a folder that other programs write to as well. A name leads to a plain file or to
/// nothing: links are not followed, and what is no file is not opened. A revision is the SHA-256 of
/// the bytes. All calls wait for the disk; one thread at a time.
class FolderFiles
{
public:
    using Content = CloudStorage::Content;

    /// Seconds since 1970, from any thread.
    using Clock = std::function<qint64()>;

    FolderFiles(const QString &folder, Clock now);

    CloudResult<QList<CloudFile>> list();
    /// None: it is the one of `revision`.
    CloudResult<std::optional<Content>> read(
        const QString &name, const QByteArray &revision, qint64 limit);
    CloudResult<QByteArray> create(const QString &name, const QByteArray &bytes);
    CloudResult<QByteArray> replace(
        const QString &name, const QByteArray &bytes, const QByteArray &revision);
    std::optional<CloudError> remove(const QString &name);

private:
    /// Which bytes those were when the file looked like that.
    struct Known
    {
        struct ::stat look = {};
        QByteArray revision;
    };

    CloudResult<QByteArray> write(
        const QString &name, const QByteArray &bytes, WholeFile::There there);
    QByteArray revisionOf(int folder, const QByteArray &name, const struct ::stat &look);

    const QByteArray m_folder;
    const Clock m_now;
    QHash<QByteArray, Known> m_known;
};

} // namespace quillon
