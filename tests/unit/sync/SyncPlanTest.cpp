// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "sync/SyncPlan.h"

#include "sync/AccountFile.h"
#include "sync/SealedFile.h"

#include <gtest/gtest.h>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

class SyncPlanTest : public ::testing::Test
{
protected:
    static QString change(WriterId writer, quint64 number)
    {
        return AccountFile{AccountFile::Kind::Change, writer, number}.name();
    }
    static QString manifest(quint64 id)
    {
        return AccountFile{AccountFile::Kind::Snapshot, id, 0}.name();
    }
    static QString part(quint64 id, quint64 number)
    {
        return AccountFile{AccountFile::Kind::Part, id, number}.name();
    }
    void list(const QString &name, qint64 size = 100) { listing.append({name, size, "r"}); }
    void listChanges(WriterId writer, quint64 from, quint64 to, qint64 size = 100)
    {
        for (quint64 number = from; number <= to; ++number) {
            list(change(writer, number), size);
        }
    }
    /// A snapshot of one part that is there whole, and whose manifest was read.
    void listSnapshot(quint64 id, const KnownFiles &files, bool own = false)
    {
        list(manifest(id));
        list(part(id, 0));
        progress.snapshots.insert(manifest(id), {files, {100}});
        if (own) {
            progress.ownSnapshots.insert(manifest(id));
        }
    }
    SyncPlan plan() const { return planSync(listing, progress, outgoing, limits); }

    QList<CloudFile> listing;
    ReplicaProgress progress;
    QSet<QString> outgoing;
    SyncLimits limits;
};

TEST_F(SyncPlanTest, ReadsWhatIsNotKnownInOrder)
{
    progress.known.add(1, 1);
    listChanges(2, 1, 2);
    listChanges(1, 1, 2);
    list(u"head"_s);
    list(u"something else"_s);
    const SyncPlan made = plan();
    EXPECT_EQ(made.changes, (QStringList{change(1, 2), change(2, 1), change(2, 2)}));
    EXPECT_TRUE(made.superfluous.isEmpty());
    EXPECT_FALSE(made.wantsSnapshot);
}

TEST_F(SyncPlanTest, DoesNotReadWhatItIsAboutToSend)
{
    progress.writer = 1;
    outgoing = {change(1, 1)};
    listChanges(1, 1, 1);
    EXPECT_TRUE(plan().changes.isEmpty());
}

TEST_F(SyncPlanTest, LeavesAloneWhatWasRefusedUntilItIsAnother)
{
    listChanges(1, 1, 1);
    progress.ignored[change(1, 1)] = {FileProblem::Damaged, "r", syncFormatVersion};
    EXPECT_TRUE(plan().changes.isEmpty());
    listing[0].revision = "s";
    EXPECT_EQ(plan().changes.size(), 1);
    listing[0].revision = "r";
    progress.ignored[change(1, 1)].formatVersion = syncFormatVersion - 1;
    EXPECT_EQ(plan().changes.size(), 1); // the program knows more now
    listing.clear();
    EXPECT_EQ(plan().unignored, QSet<QString>{change(1, 1)});
}

TEST_F(SyncPlanTest, ReadsManifestsOnce)
{
    list(manifest(5));
    EXPECT_EQ(plan().manifests, QStringList{manifest(5)});
    progress.snapshots.insert(manifest(5), {});
    EXPECT_TRUE(plan().manifests.isEmpty());
}

TEST_F(SyncPlanTest, ReadsASnapshotThatIsTheOnlyWay)
{
    listSnapshot(5, KnownFiles({{1, 10}}, {}));
    listChanges(1, 8, 12);
    const SyncPlan made = plan();
    ASSERT_EQ(made.snapshots.size(), 1);
    EXPECT_EQ(made.snapshots[0].manifest, manifest(5));
    EXPECT_EQ(made.snapshots[0].parts, QStringList{part(5, 0)});
    progress.known.add(KnownFiles({{1, 10}}, {}));
    EXPECT_TRUE(plan().snapshots.isEmpty());
    EXPECT_EQ(plan().changes, (QStringList{change(1, 11), change(1, 12)}));
}

TEST_F(SyncPlanTest, ReadsFilesWhereThatIsShorterThanTheSnapshot)
{
    progress.known.add(KnownFiles({{1, 9}}, {}));
    listSnapshot(5, KnownFiles({{1, 10}}, {}));
    listChanges(1, 1, 10);
    EXPECT_TRUE(plan().snapshots.isEmpty());
    EXPECT_EQ(plan().changes, QStringList{change(1, 10)});
    progress.known = {};
    EXPECT_EQ(plan().snapshots.size(), 1);
}

TEST_F(SyncPlanTest, TakesTheSnapshotThatTellsMostFirst)
{
    listSnapshot(5, KnownFiles({{1, 10}}, {}));
    listSnapshot(6, KnownFiles({{1, 10}, {2, 10}}, {}));
    const SyncPlan made = plan();
    ASSERT_EQ(made.snapshots.size(), 2);
    EXPECT_EQ(made.snapshots[0].manifest, manifest(6));
}

TEST_F(SyncPlanTest, SnapshotCountsOnlyWhole)
{
    listSnapshot(5, KnownFiles({{1, 10}}, {}));
    listing[1].size = 99;
    EXPECT_TRUE(plan().snapshots.isEmpty());
    listing.remove(1);
    EXPECT_TRUE(plan().snapshots.isEmpty());
}

TEST_F(SyncPlanTest, RemovesOnlyOnTheGroundOfASnapshotReadBackHere)
{
    progress.known.add(KnownFiles({{1, 10}}, {}));
    listSnapshot(5, KnownFiles({{1, 10}}, {}));
    listChanges(1, 1, 11);
    EXPECT_TRUE(plan().superfluous.isEmpty());
    progress.ownSnapshots.insert(manifest(5));
    const QStringList removed = plan().superfluous;
    EXPECT_EQ(removed.size(), 10);
    EXPECT_FALSE(removed.contains(change(1, 11)));
    listing[1].size = 99; // the part is not whole any more
    EXPECT_TRUE(plan().superfluous.isEmpty());
}

TEST_F(SyncPlanTest, RemovesNoFileThatWasRefused)
{
    progress.known.add(KnownFiles({{1, 2}}, {}));
    listSnapshot(5, KnownFiles({{1, 2}}, {}), true);
    listChanges(1, 1, 2);
    progress.ignored[change(1, 2)] = {FileProblem::Damaged, "r", syncFormatVersion};
    EXPECT_EQ(plan().superfluous, QStringList{change(1, 1)});
}

TEST_F(SyncPlanTest, RemovesOlderSnapshotsPartsFirst)
{
    progress.known.add(KnownFiles({{1, 10}}, {}));
    listSnapshot(5, KnownFiles({{1, 9}}, {}));
    listSnapshot(6, KnownFiles({{1, 10}}, {}), true);
    EXPECT_EQ(plan().superfluous, (QStringList{part(5, 0), manifest(5)}));
}

TEST_F(SyncPlanTest, OfTwoSnapshotsThatAreAlikeOneStays)
{
    progress.known.add(KnownFiles({{1, 10}}, {}));
    listSnapshot(5, KnownFiles({{1, 10}}, {}), true);
    listSnapshot(6, KnownFiles({{1, 10}}, {}));
    EXPECT_TRUE(plan().superfluous.isEmpty()); // who wrote the other removes ours
    progress.ownSnapshots = {manifest(6)};
    EXPECT_EQ(plan().superfluous, (QStringList{part(5, 0), manifest(5)}));
}

TEST_F(SyncPlanTest, KeepsSnapshotsThatKnowSomethingElse)
{
    progress.known.add(KnownFiles({{1, 10}, {2, 1}}, {}));
    listSnapshot(5, KnownFiles({{2, 1}}, {}));
    listSnapshot(6, KnownFiles({{1, 10}}, {}), true);
    EXPECT_TRUE(plan().superfluous.isEmpty());
}

TEST_F(SyncPlanTest, WantsASnapshotOfManyFiles)
{
    progress.writer = 64; // whose share is none
    progress.known.add(KnownFiles({{1, 1000}}, {}));
    listSnapshot(5, KnownFiles({{1, 1}}, {}));
    listChanges(1, 2, 256);
    EXPECT_FALSE(plan().wantsSnapshot);
    listChanges(1, 257, 257);
    EXPECT_TRUE(plan().wantsSnapshot);
    progress.writer = 65 + 32;
    EXPECT_FALSE(plan().wantsSnapshot); // somebody else goes first
    // What the other's snapshot covers is the other's to remove, for a long time.
    progress.writer = 64;
    progress.snapshots[manifest(5)].files.add(KnownFiles({{1, 1000}}, {}));
    EXPECT_FALSE(plan().wantsSnapshot);
    listChanges(1, 258, 1000);
    listChanges(1, 1001, 1030);
    progress.known.add(KnownFiles({{1, 1030}}, {}));
    EXPECT_TRUE(plan().wantsSnapshot);
}

TEST_F(SyncPlanTest, WantsASnapshotOfLargeFiles)
{
    progress.writer = 64;
    progress.known.add(KnownFiles({{1, 4}}, {}));
    listChanges(1, 1, 4, limits.changeBytes / 4);
    EXPECT_TRUE(plan().wantsSnapshot);
    // Not for less than it would have to write.
    listSnapshot(5, {});
    listing.last().size = 2 * limits.changeBytes;
    progress.snapshots[manifest(5)].partSizes = {2 * limits.changeBytes};
    EXPECT_FALSE(plan().wantsSnapshot);
}

TEST_F(SyncPlanTest, NoticesWhatTheAccountHasLost)
{
    progress.writer = 1;
    progress.known.add(KnownFiles({{1, 2}, {2, 2}}, {{2, {4}}}));
    listChanges(1, 1, 2);
    listChanges(2, 1, 2);
    listChanges(2, 4, 4);
    EXPECT_FALSE(plan().lacksOwn);
    EXPECT_FALSE(plan().lacksOthers);
    listing.removeLast();
    EXPECT_TRUE(plan().lacksOthers);
    EXPECT_FALSE(plan().lacksOwn);
    listSnapshot(5, KnownFiles({{2, 4}}, {}));
    EXPECT_FALSE(plan().lacksOthers);
    listing.removeFirst();
    EXPECT_TRUE(plan().lacksOwn);
    EXPECT_EQ(listingsBeforeHealing(plan(), progress), 2u);
}

TEST_F(SyncPlanTest, OwnFileThatWasCutIsAsGoodAsLost)
{
    progress.writer = 1;
    progress.known.add(KnownFiles({{1, 2}}, {}));
    progress.sentSizes = {{1, 100}, {2, 100}, {3, 100}};
    listChanges(1, 1, 2);
    EXPECT_FALSE(plan().lacksOwn);
    EXPECT_EQ(plan().unsized, QSet<quint64>{3});
    listing[1].size = 99;
    EXPECT_TRUE(plan().lacksOwn);
}

TEST_F(SyncPlanTest, DamagedFileIsAsGoodAsLost)
{
    progress.known.add(KnownFiles({{2, 1}}, {}));
    listChanges(2, 1, 1);
    progress.ignored[change(2, 1)] = {FileProblem::Damaged, "r", syncFormatVersion};
    EXPECT_TRUE(plan().lacksOthers);
}

TEST_F(SyncPlanTest, SnapshotOfALaterVersionIsNoticed)
{
    list(manifest(5));
    progress.ignored[manifest(5)] = {FileProblem::Newer, "r", syncFormatVersion};
    EXPECT_TRUE(plan().hasNewer);
    EXPECT_TRUE(plan().manifests.isEmpty());
}

TEST_F(SyncPlanTest, SnapshotThatWasBegunHereIsReadBackOrRemoved)
{
    progress.unfinishedSnapshot = 5;
    list(part(5, 0));
    EXPECT_EQ(plan().abandoned, QStringList{part(5, 0)});
    EXPECT_FALSE(plan().unverified.has_value());
    listing.clear();
    listSnapshot(5, {});
    EXPECT_EQ(plan().unverified->parts, QStringList{part(5, 0)});
    EXPECT_TRUE(plan().abandoned.isEmpty());
}

TEST_F(SyncPlanTest, ForgetsSnapshotsThatAreGone)
{
    progress.snapshots.insert(manifest(5), {});
    EXPECT_EQ(plan().forgotten, QSet<QString>{manifest(5)});
    list(part(5, 0)); // something is left to be removed
    EXPECT_TRUE(plan().forgotten.isEmpty());
}

} // namespace
} // namespace quillon::test
