// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "sync/SyncPlan.h"

#include "sync/AccountFile.h"
#include "sync/SealedFile.h"

#include <algorithm>

namespace quillon {

namespace {

using Kind = AccountFile::Kind;

struct Change
{
    AccountFile file;
    QString name;
    qint64 size = 0;
};

struct Snapshot
{
    QString manifest;
    SnapshotManifest says;
    QStringList parts; ///< those that are there
    qint64 size = 0;   ///< of all files that belong to it
    bool isListed = false;
    bool isComplete = false;
};

class Planning
{
public:
    Planning(const QList<CloudFile> &listing, const ReplicaProgress &progress,
        const QSet<QString> &outgoing, const SyncLimits &limits)
        : m_progress(progress)
        , m_outgoing(outgoing)
        , m_limits(limits)
    {
        for (const CloudFile &file : listing) {
            m_files.insert(file.name, file);
        }
    }

    SyncPlan plan()
    {
        sortFiles();
        lookAtSnapshots();
        readSnapshots();
        readChanges();
        finishOwnSnapshot();
        clearUp();
        lookForLosses();
        judgeAmount();
        return m_plan;
    }

private:
    /// Files that were left alone are looked at again when they are other ones, or the program is.
    bool isIgnored(const CloudFile &file) const
    {
        const auto ignored = m_progress.ignored.find(file.name);
        return ignored != m_progress.ignored.end() && ignored->revision == file.revision &&
               !file.revision.isEmpty() && ignored->formatVersion >= syncFormatVersion;
    }

    void sortFiles()
    {
        for (const CloudFile &listed : std::as_const(m_files)) {
            const auto file = AccountFile::fromName(listed.name);
            if (!file) {
                continue;
            }
            const bool ignored = isIgnored(listed);
            if (file->kind == Kind::Change && !ignored) {
                m_changes.append({*file, listed.name, listed.size});
            } else if (file->kind == Kind::Snapshot && !ignored &&
                       !m_progress.snapshots.contains(listed.name)) {
                m_plan.manifests.append(listed.name);
            } else if (file->kind == Kind::Part) {
                m_parts[file->writer].append({*file, listed.name, listed.size});
            }
            if (file->kind != Kind::Change && ignored &&
                m_progress.ignored[listed.name].problem == FileProblem::Newer) {
                m_plan.hasNewer = true;
            }
        }
        for (auto it = m_progress.ignored.begin(); it != m_progress.ignored.end(); ++it) {
            if (!m_files.contains(it.key())) {
                m_plan.unignored.insert(it.key());
            }
        }
    }

    void lookAtSnapshots()
    {
        for (auto it = m_progress.snapshots.begin(); it != m_progress.snapshots.end(); ++it) {
            Snapshot snapshot{it.key(), *it, {}, 0, m_files.contains(it.key()), false};
            const quint64 id = AccountFile::fromName(it.key())->writer;
            const QList<Change> parts = m_parts.value(id);
            for (const Change &part : parts) {
                snapshot.parts.append(part.name);
                snapshot.size += part.size;
            }
            if (!snapshot.isListed && snapshot.parts.isEmpty()) {
                m_plan.forgotten.insert(it.key());
                continue;
            }
            snapshot.isComplete = snapshot.isListed && hasAllParts(id, *it);
            m_snapshots.append(snapshot);
        }
        for (const Snapshot &snapshot : std::as_const(m_snapshots)) {
            if (snapshot.isComplete) {
                m_covered.add(snapshot.says.files);
            }
        }
    }

    bool hasAllParts(quint64 id, const SnapshotManifest &manifest) const
    {
        if (manifest.partSizes.size() > m_files.size()) {
            return false;
        }
        for (qsizetype i = 0; i < manifest.partSizes.size(); ++i) {
            const auto part = m_files.find(AccountFile{Kind::Part, id, quint64(i)}.name());
            if (part == m_files.end() || part->size != manifest.partSizes[i] || isIgnored(*part)) {
                return false;
            }
        }
        return true;
    }

    SnapshotFiles filesOf(const Snapshot &snapshot) const
    {
        SnapshotFiles files{snapshot.manifest, {}};
        const quint64 id = AccountFile::fromName(snapshot.manifest)->writer;
        for (qsizetype i = 0; i < snapshot.says.partSizes.size(); ++i) {
            files.parts.append(AccountFile{Kind::Part, id, quint64(i)}.name());
        }
        return files;
    }

    /// A snapshot is read where it is the only way to what it covers, or the shorter one.
    void readSnapshots()
    {
        QList<std::pair<quint64, SnapshotFiles>> found;
        for (const Snapshot &snapshot : std::as_const(m_snapshots)) {
            const quint64 news =
                snapshot.isComplete ? snapshot.says.files.countBeyond(m_progress.known) : 0;
            if (news == 0) {
                continue;
            }
            quint64 readable = 0;
            qint64 bytes = 0;
            for (const Change &change : std::as_const(m_changes)) {
                if (!isKnown(change) && isIn(snapshot.says.files, change)) {
                    ++readable;
                    bytes += change.size;
                }
            }
            const auto parts = quint64(snapshot.says.partSizes.size());
            if (readable < news || readable > parts + 1 || bytes > snapshot.size) {
                found.append({news, filesOf(snapshot)});
            }
        }
        std::ranges::stable_sort(
            found, [](const auto &a, const auto &b) { return a.first > b.first; });
        for (const auto &[news, files] : std::as_const(found)) {
            m_plan.snapshots.append(files);
        }
    }

    void readChanges()
    {
        for (const Change &change : std::as_const(m_changes)) {
            if (!isKnown(change) && !m_outgoing.contains(change.name)) {
                m_plan.changes.append(change.name);
            }
        }
        // Names are of one length, so their order is that of the numbers.
        m_plan.changes.sort();
    }

    void finishOwnSnapshot()
    {
        if (!m_progress.unfinishedSnapshot) {
            return;
        }
        const quint64 id = *m_progress.unfinishedSnapshot;
        const QString manifest = AccountFile{Kind::Snapshot, id, 0}.name();
        for (const Snapshot &snapshot : std::as_const(m_snapshots)) {
            if (snapshot.manifest == manifest && snapshot.isComplete) {
                m_plan.unverified = filesOf(snapshot);
                return;
            }
        }
        const QList<Change> parts = m_parts.value(id);
        for (const Change &part : parts) {
            m_plan.abandoned.append(part.name);
        }
        if (m_files.contains(manifest)) {
            m_plan.abandoned.append(manifest);
        }
    }

    /// Only on the ground of a snapshot that was written and read back here. Of two that are alike
    /// the greater name stays, so that no two computers remove each other's.
    void clearUp()
    {
        for (const Snapshot &own : std::as_const(m_snapshots)) {
            if (!own.isComplete || !m_progress.ownSnapshots.contains(own.manifest)) {
                continue;
            }
            for (const Change &change : std::as_const(m_changes)) {
                if (isIn(own.says.files, change) && !m_outgoing.contains(change.name)) {
                    m_removed.insert(change.name);
                }
            }
            for (const Snapshot &other : std::as_const(m_snapshots)) {
                if (other.manifest == own.manifest || !own.says.files.covers(other.says.files) ||
                    (other.says.files.covers(own.says.files) && other.manifest > own.manifest)) {
                    continue;
                }
                // The manifest last: while it is there, others see what the parts belong to.
                m_removedParts.unite({other.parts.begin(), other.parts.end()});
                if (other.isListed) {
                    m_removedManifests.insert(other.manifest);
                }
            }
        }
        for (const auto *names : {&m_removed, &m_removedParts, &m_removedManifests}) {
            QStringList sorted(names->begin(), names->end());
            sorted.sort();
            m_plan.superfluous += sorted;
        }
    }

    /// A file that has lost bytes counts as lost: the others can make nothing of it.
    void lookForLosses()
    {
        KnownFiles there = m_covered;
        QMap<quint64, qint64> sizes = m_progress.sentSizes;
        for (const Change &change : std::as_const(m_changes)) {
            const bool isOwn = change.file.writer == m_progress.writer;
            const qint64 size = isOwn ? sizes.take(change.file.number) : 0;
            if (size == 0 || size == change.size) {
                there.add(change.file.writer, change.file.number);
            }
        }
        m_plan.unsized = {sizes.keyBegin(), sizes.keyEnd()};
        if (there.covers(m_progress.known)) {
            return;
        }
        const WriterId own = m_progress.writer;
        const auto ofOwn = [own](const KnownFiles &files) {
            return KnownFiles(
                {{own, files.vector().value(own)}}, {{own, files.scattered().value(own)}});
        };
        m_plan.lacksOwn = !there.covers(ofOwn(m_progress.known));
        m_plan.lacksOthers = !m_plan.lacksOwn;
    }

    /// Each writer has a limit of its own, so that not all of them write at once.
    void judgeAmount()
    {
        int count = 0;
        int covered = 0;
        qint64 bytes = 0;
        for (const Change &change : std::as_const(m_changes)) {
            if (!isKnown(change) || m_removed.contains(change.name)) {
                continue;
            }
            if (isIn(m_covered, change)) {
                ++covered;
            } else {
                ++count;
                bytes += change.size;
            }
        }
        qint64 snapshots = 0;
        for (const Snapshot &snapshot : std::as_const(m_snapshots)) {
            snapshots = std::max(snapshots, snapshot.isComplete ? snapshot.size : 0);
        }
        const auto share = qint64(m_progress.writer % 64);
        const qint64 mostFiles = m_limits.changeFiles + m_limits.changeFiles * share / 128;
        const qint64 mostBytes = m_limits.changeBytes + m_limits.changeBytes / 128 * share;
        // What somebody else's snapshot covers, that one removes; unless it never comes back.
        m_plan.wantsSnapshot = count >= mostFiles || (bytes >= mostBytes && bytes >= snapshots) ||
                               count + covered >= 4 * mostFiles;
    }

    static bool isIn(const KnownFiles &files, const Change &change)
    {
        return files.contains(change.file.writer, change.file.number);
    }
    bool isKnown(const Change &change) const { return isIn(m_progress.known, change); }

    const ReplicaProgress &m_progress;
    const QSet<QString> &m_outgoing;
    const SyncLimits &m_limits;
    QMap<QString, CloudFile> m_files;
    QList<Change> m_changes; ///< without those that are left alone
    QMap<quint64, QList<Change>> m_parts;
    QList<Snapshot> m_snapshots;
    KnownFiles m_covered; ///< by the complete snapshots that are there
    QSet<QString> m_removed;
    QSet<QString> m_removedParts;
    QSet<QString> m_removedManifests;
    SyncPlan m_plan;
};

} // namespace

SyncPlan planSync(const QList<CloudFile> &listing, const ReplicaProgress &progress,
    const QSet<QString> &outgoing, const SyncLimits &limits)
{
    return Planning(listing, progress, outgoing, limits).plan();
}

quint32 listingsBeforeHealing(const SyncPlan &plan, const ReplicaProgress &progress)
{
    return plan.lacksOwn ? 2 : 4 + quint32(progress.writer % 8);
}

} // namespace quillon
