// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sync/FileProblem.h"
#include "sync/KnownFiles.h"

#include <QByteArray>
#include <QList>
#include <QMap>
#include <QString>

#include <optional>

namespace quillon {

/// What a snapshot in the account says of itself: all its parts together hold at least everything
/// that the change files of `files` brought.
struct SnapshotManifest
{
    KnownFiles files;
    QList<qint64> partSizes; ///< of the files, in bytes

    bool operator==(const SnapshotManifest &) const = default;
};

/// The content of a snapshot's file, before it is sealed.
QByteArray writtenManifest(const SnapshotManifest &manifest);
/// For any bytes.
ReadResult<SnapshotManifest> readManifest(const QByteArray &content);

/// A file that was left alone, until its name stands for other bytes or the program knows more.
struct IgnoredFile
{
    FileProblem problem = FileProblem::Damaged;
    QByteArray revision;
    int formatVersion = 0; ///< of the program that left it alone

    bool operator==(const IgnoredFile &) const = default;
};

/// How far this computer has come with its account. Kept with the records, and changed in the same
/// transactions, so it never says more than is there.
struct ReplicaProgress
{
    WriterId writer = 0;             ///< 0 before the first write
    Stamp last;                      ///< the latest that was made or seen
    quint64 lastNumber = 0;          ///< of the writer's change files
    KnownFiles known;                ///< what has been merged here
    QMap<quint64, qint64> sentSizes; ///< in bytes, of the writer's files that are still there
    QMap<QString, SnapshotManifest> snapshots; ///< by name, those that were seen in the account
    QSet<QString> ownSnapshots;                ///< of them, those written and read back here
    std::optional<quint64> unfinishedSnapshot; ///< what is being written, or not read back yet
    QMap<QString, IgnoredFile> ignored;
    QByteArray head; ///< that all files of which it tells were read; with its revision, if known
    QByteArray headRevision;
    bool isHeadDue = false;      ///< files were written of which the head does not tell yet
    quint32 lackingListings = 0; ///< how often, in succession, the account lacked known files

    bool operator==(const ReplicaProgress &) const = default;
};

/// What the format's version is that this program writes, and the highest that it reads.
inline constexpr int syncFormatVersion = 1;

QByteArray writtenProgress(const ReplicaProgress &progress);
/// None for anything else than writtenProgress() made.
std::optional<ReplicaProgress> readProgress(const QByteArray &bytes);

} // namespace quillon
