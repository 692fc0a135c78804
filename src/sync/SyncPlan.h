// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/CloudStorage.h"
#include "sync/ReplicaProgress.h"

#include <QList>
#include <QSet>
#include <QString>
#include <QStringList>

#include <optional>

namespace quillon {

/// How much is too much.
struct SyncLimits
{
    int changeFiles = 256;                      ///< that no snapshot covers, before one is written
    qint64 changeBytes = qint64{16} << 20;      ///< of them together
    qsizetype partContent = qsizetype{1} << 19; ///< bytes of a snapshot's part, not compressed
    int requests = 4;                           ///< under way at once
};

/// A snapshot's files in the account.
struct SnapshotFiles
{
    QString manifest;
    QStringList parts;
};

/// What a listing of an account asks of this computer, in the order in which it is to be done.
struct SyncPlan
{
    QStringList manifests;          ///< to be read before a plan says more about snapshots
    QList<SnapshotFiles> snapshots; ///< worth reading, the one that tells most first
    QStringList changes;            ///< to be read, each writer's in order
    QStringList abandoned;          ///< of a snapshot that was begun here and never finished
    std::optional<SnapshotFiles> unverified; ///< written here whole, and not read back yet
    QStringList superfluous;                 ///< to be removed, in this order
    bool lacksOwn = false; ///< files of this writer's that were in the account are gone, or cut
    bool lacksOthers = false;
    bool wantsSnapshot = false; ///< there are so many files that one should replace them
    bool hasNewer = false;      ///< a snapshot by a later version: whoever has that clears up
    QSet<QString> forgotten;    ///< snapshots of which nothing is left in the account
    QSet<QString> unignored;    ///< files that were left alone and are not there any more
    QSet<quint64> unsized;      ///< numbers of this writer's files that are not there any more
};

/// Nothing is known of the account but what the listing says, which may be old, false or made by
/// somebody who wants harm; `progress` alone is certain. `outgoing` are the names of files that
/// were made here and are not known to be there.
SyncPlan planSync(const QList<CloudFile> &listing, const ReplicaProgress &progress,
    const QSet<QString> &outgoing, const SyncLimits &limits);

/// How many listings in succession have to lack known files before this computer writes a snapshot
/// to heal that: whose own files are gone goes first, so that not everybody does it.
quint32 listingsBeforeHealing(const SyncPlan &plan, const ReplicaProgress &progress);

} // namespace quillon
