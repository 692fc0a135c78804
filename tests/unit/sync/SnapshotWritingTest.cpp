// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "sync/SnapshotWriting.h"

#include "SyncedComputer.h"

#include <gtest/gtest.h>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

using Fault = FakeCloudStorage::Fault;
using Look = SyncRound::Look;

/// Through rounds, which write and verify snapshots where a plan says so.
class SnapshotWritingTest : public ::testing::Test
{
protected:
    SnapshotWritingTest()
    {
        account.put(u"key"_s, "the wrapped key");
        a.limits.changeFiles = 4;
        a.limits.partContent = 120;
    }

    /// So many that the next round of `a` writes a snapshot.
    void insertMany(int first = 1)
    {
        for (int i = first; i < first + 8; ++i) {
            a.insert(i, u"rule %1"_s.arg(i));
            a.replica.sealPending();
        }
    }
    QString waiting(qsizetype index) const { return a.cloud.waiting().value(index); }
    /// Answers until the request that waits first is that one.
    void answerUntil(const QString &beginning)
    {
        while (!waiting(0).startsWith(beginning)) {
            ASSERT_FALSE(a.cloud.waiting().isEmpty()) << beginning.toStdString();
            a.cloud.answer(0);
        }
    }
    void expectWhole()
    {
        SyncedComputer fresh(account, key, 99);
        EXPECT_TRUE(fresh.round().isWell());
        EXPECT_TRUE(fresh.isLike(a));
    }

    FakeCloudAccount account;
    SeededRandom random{7};
    const AccountKey key = AccountKey::random(random).value();
    SyncedComputer a{account, key, 11};
    SyncedComputer b{account, key, 12};
};

TEST_F(SnapshotWritingTest, ManyFilesBecomeASnapshot)
{
    insertMany();
    a.remove(1);
    EXPECT_TRUE(a.round().wroteSnapshot);
    EXPECT_EQ(countOf(account, u".change"_s), 0);
    EXPECT_EQ(countOf(account, u".snapshot"_s), 1);
    EXPECT_GT(countOf(account, u".part"_s), 1);
    EXPECT_TRUE(b.round().isWell());
    EXPECT_TRUE(b.isLike(a));
    EXPECT_EQ(b.name(1), u"none"_s);
    EXPECT_TRUE(b.progress().known.covers(a.progress().known));
    // Whoever was away with a change of what was deleted does not bring it back.
    EXPECT_TRUE(b.storage.content.records.contains(ruleId(1)));
}

TEST_F(SnapshotWritingTest, NothingIsRemovedBeforeEverythingWasReadBack)
{
    insertMany();
    a.begin(Look::Listing);
    answerUntil(u"remove"_s);
    const QStringList given = a.cloud.given();
    for (auto it = account.files.begin(); it != account.files.end(); ++it) {
        if (it.key().endsWith(u".part"_s) || it.key().endsWith(u".snapshot"_s)) {
            EXPECT_TRUE(given.contains(u"read "_s + it.key())) << it.key().toStdString();
        }
    }
    EXPECT_EQ(countOf(account, u".change"_s), 8);
}

TEST_F(SnapshotWritingTest, ManifestComesLast)
{
    insertMany();
    a.begin(Look::Listing);
    while (countOf(account, u".snapshot"_s) == 0) {
        const int parts = countOf(account, u".part"_s);
        a.cloud.answer(0);
        if (countOf(account, u".snapshot"_s) == 1) {
            EXPECT_EQ(countOf(account, u".part"_s), parts);
        }
    }
    const int parts = countOf(account, u".part"_s);
    a.cloud.answerAll();
    EXPECT_EQ(countOf(account, u".part"_s), parts);
}

TEST_F(SnapshotWritingTest, KillAtEveryRequestLosesNothing)
{
    for (int answered = 0;; ++answered) {
        FakeCloudAccount other;
        other.put(u"key"_s, "the wrapped key");
        SyncedComputer c(other, key, quint64(answered));
        c.limits = a.limits;
        for (int i = 1; i < 9; ++i) {
            c.insert(i, QString::number(i));
            c.replica.sealPending();
        }
        c.begin(Look::Listing);
        for (int i = 0; i < answered && !c.cloud.waiting().isEmpty(); ++i) {
            c.cloud.answer(0);
        }
        const bool ended = c.outcome.has_value();
        c.kill();
        SyncedComputer early(other, key, 98);
        early.round();
        for (const QString &file : c.storage.content.outgoing.keys()) {
            EXPECT_FALSE(early.progress().known.covers(
                             KnownFiles({}, {{AccountFile::fromName(file)->writer,
                                                {AccountFile::fromName(file)->number}}})) &&
                         !other.files.contains(file));
        }
        c.round();
        c.round();
        SyncedComputer fresh(other, key, 99);
        fresh.round();
        ASSERT_TRUE(fresh.isLike(c)) << answered;
        ASSERT_EQ(countOf(other, u".change"_s), 0) << answered;
        ASSERT_EQ(countOf(other, u".snapshot"_s), 1) << answered;
        ASSERT_EQ(fresh.storage.content.shown.size(), 8);
        if (ended) {
            EXPECT_GT(answered, 20);
            break;
        }
    }
}

TEST_F(SnapshotWritingTest, EditMeanwhilePutsItOff)
{
    insertMany();
    a.begin(Look::Listing);
    answerUntil(u"create "_s);
    while (countOf(account, u".part"_s) == 0) {
        a.cloud.answer(0);
    }
    a.insert(30, u"meanwhile"_s);
    a.cloud.answerAll();
    EXPECT_EQ(countOf(account, u".snapshot"_s), 0);
    EXPECT_TRUE(a.outcome->wantsListing);
    EXPECT_TRUE(a.round().wroteSnapshot);
    EXPECT_EQ(countOf(account, u".snapshot"_s), 1);
    expectWhole();
}

TEST_F(SnapshotWritingTest, PartThatComesBackDamagedTakesNothingsPlace)
{
    insertMany();
    a.begin(Look::Listing);
    answerUntil(u"create "_s);
    while (countOf(account, u".snapshot"_s) == 0) {
        a.cloud.answer(0);
    }
    for (auto it = account.files.begin(); it != account.files.end(); ++it) {
        if (it.key().endsWith(u".part"_s)) {
            it->bytes[it->bytes.size() - 1] ^= 1;
            break;
        }
    }
    a.cloud.answerAll();
    EXPECT_FALSE(a.outcome->wroteSnapshot);
    EXPECT_EQ(a.outcome->refused.size(), 1);
    EXPECT_EQ(countOf(account, u".change"_s), 8);
    EXPECT_EQ(countOf(account, u".snapshot"_s), 0);
    EXPECT_EQ(countOf(account, u".part"_s), 0);
    EXPECT_TRUE(a.round().wroteSnapshot);
    expectWhole();
}

TEST_F(SnapshotWritingTest, TwoComputersCompactAtOnce)
{
    b.limits = a.limits;
    insertMany();
    a.limits.changeFiles = 1000;
    a.round();
    b.limits.changeFiles = 1000;
    b.round();
    a.limits.changeFiles = b.limits.changeFiles = 4;
    // Both know the same files, and take turns with every request.
    a.begin(Look::Listing);
    b.begin(Look::Listing);
    while (!a.cloud.waiting().isEmpty() || !b.cloud.waiting().isEmpty()) {
        for (SyncedComputer *computer : {&a, &b}) {
            if (!computer->cloud.waiting().isEmpty()) {
                computer->cloud.answer(0);
            }
        }
    }
    EXPECT_TRUE(a.outcome->wroteSnapshot);
    EXPECT_TRUE(b.outcome->wroteSnapshot);
    expectWhole();
    a.round();
    b.round();
    a.round();
    EXPECT_EQ(countOf(account, u".snapshot"_s), 1);
    expectWhole();
}

TEST_F(SnapshotWritingTest, ComputerThatWasAwayForAYearCatchesUp)
{
    b.insert(30, u"of b"_s);
    b.round();
    b.insert(31, u"of b, while away"_s);
    for (int i = 0; i < 20; ++i) {
        insertMany(1 + i % 3);
        a.round();
    }
    b.cloud.forgetGiven();
    EXPECT_TRUE(b.round().isWell());
    EXPECT_LT(b.cloud.given().size(), 40);
    a.round();
    EXPECT_EQ(a.name(31), u"of b, while away"_s);
    EXPECT_TRUE(a.isLike(b));
}

TEST_F(SnapshotWritingTest, LostRemovalsAreMadeUpFor)
{
    insertMany();
    a.begin(Look::Listing);
    answerUntil(u"remove"_s);
    a.cloud.answer(0, Fault::Lost);
    a.cloud.answerAll();
    EXPECT_GT(countOf(account, u".change"_s), 0);
    a.round();
    EXPECT_EQ(countOf(account, u".change"_s), 0);
    expectWhole();
}

TEST_F(SnapshotWritingTest, ServerThatWasSetBackGetsEverythingAgain)
{
    a.insert(1, u"one"_s);
    a.round();
    const auto backup = account.files;
    a.insert(2, u"two"_s);
    a.round();
    b.round();
    account.files = backup;
    b.insert(3, u"three"_s);
    b.round();
    EXPECT_TRUE(a.round().wantsListing); // one listing proves nothing
    EXPECT_EQ(countOf(account, u".snapshot"_s), 0);
    EXPECT_TRUE(a.round().wroteSnapshot);
    expectWhole();
    a.round();
    EXPECT_EQ(a.progress().lackingListings, 0u);
    EXPECT_EQ(a.name(3), u"three"_s);
}

TEST_F(SnapshotWritingTest, OthersHealAnAccountWhoseWriterIsGone)
{
    a.insert(1, u"one"_s);
    const auto backup = account.files;
    a.round();
    b.round();
    account.files = backup;
    for (int i = 0; i < 12; ++i) {
        b.round();
    }
    EXPECT_EQ(countOf(account, u".snapshot"_s), 1);
    expectWhole();
}

TEST_F(SnapshotWritingTest, FilesThatComeBackChangeNothing)
{
    insertMany();
    const SyncLimits few = std::exchange(a.limits, SyncLimits());
    a.round();
    const auto old = account.files;
    a.remove(1);
    a.limits = few;
    a.round();
    b.round();
    for (auto it = old.begin(); it != old.end(); ++it) {
        if (it.key().endsWith(u".change"_s)) {
            account.files.insert(it.key(), *it);
        }
    }
    EXPECT_EQ(b.round().received, 0);
    EXPECT_EQ(b.name(1), u"none"_s);
    a.round();
    EXPECT_EQ(countOf(account, u".change"_s), 0);
    expectWhole();
}

TEST_F(SnapshotWritingTest, ComputerSetBackBehindASnapshotIsANewWriter)
{
    insertMany();
    const SyncLimits few = std::exchange(a.limits, SyncLimits());
    a.round();
    const auto backup = a.storage.content;
    a.insert(20, u"twenty"_s);
    a.limits = few;
    a.round(); // nothing is left of the file but the snapshot
    const WriterId writer = a.progress().writer;
    a.storage.content = backup;
    a.insert(21, u"twenty-one"_s);
    a.round();
    EXPECT_NE(a.progress().writer, writer);
    EXPECT_EQ(a.name(20), u"twenty"_s);
    b.round();
    EXPECT_EQ(b.name(21), u"twenty-one"_s);
}

TEST_F(SnapshotWritingTest, SnapshotOfALaterVersionIsNotAnsweredByOneOfOurs)
{
    insertMany();
    account.put(u"00000000000000aa.snapshot"_s, QByteArray("QLS\x09") + QByteArray(60, 'x'));
    EXPECT_FALSE(a.round().wroteSnapshot);
    EXPECT_EQ(countOf(account, u".change"_s), 8);
    EXPECT_EQ(countOf(account, u".snapshot"_s), 1);
}

} // namespace
} // namespace quillon::test
