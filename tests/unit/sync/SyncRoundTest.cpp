// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "sync/SyncRound.h"

#include "SyncedComputer.h"
#include "sync/KeyFileWatch.h"
#include "sync/SealedFile.h"

#include <gtest/gtest.h>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

using Fault = FakeCloudStorage::Fault;
using Look = SyncRound::Look;

class SyncRoundTest : public ::testing::Test
{
protected:
    SyncRoundTest() { account.put(u"key"_s, "the wrapped key"); }

    /// Both know each other's files and the head.
    void settle()
    {
        for (int i = 0; i < 3; ++i) {
            a.round();
            b.round();
        }
        a.cloud.forgetGiven();
        b.cloud.forgetGiven();
    }

    FakeCloudAccount account;
    SeededRandom random{7};
    const AccountKey key = AccountKey::random(random).value();
    SyncedComputer a{account, key, 11};
    SyncedComputer b{account, key, 12};
};

TEST_F(SyncRoundTest, IdlePollIsOneRequest)
{
    settle();
    EXPECT_TRUE(a.round(Look::Head).isWell());
    EXPECT_EQ(a.cloud.given(), QStringList{u"look head"_s});
}

TEST_F(SyncRoundTest, ChangeIsTwoRequests)
{
    settle();
    a.insert(1, u"Home"_s);
    EXPECT_EQ(a.round(Look::Head).sent, 1);
    EXPECT_EQ(a.cloud.given(), (QStringList{u"create "_s + a.change(1), u"replace head"_s}));
    a.cloud.forgetGiven();
    a.insert(2, u"Work"_s);
    a.round(Look::Head);
    EXPECT_EQ(a.cloud.given(), (QStringList{u"create "_s + a.change(2), u"replace head"_s}));
    a.cloud.forgetGiven();
    a.round(Look::Head);
    EXPECT_EQ(a.cloud.given(), QStringList{u"look head"_s});
}

TEST_F(SyncRoundTest, HeadTellsTheOthers)
{
    settle();
    a.insert(1, u"Home"_s);
    a.round(Look::Head);
    EXPECT_EQ(b.round(Look::Head).received, 1);
    EXPECT_EQ(b.name(1), u"Home"_s);
    EXPECT_EQ(b.cloud.given(), (QStringList{u"look head"_s, u"list"_s, u"read "_s + a.change(1)}));
    b.cloud.forgetGiven();
    b.round(Look::Head);
    EXPECT_EQ(b.cloud.given(), QStringList{u"look head"_s});
}

TEST_F(SyncRoundTest, WhoWritesAtTheSameTimeIsNoticedByTheHead)
{
    settle();
    a.insert(1, u"Home"_s);
    b.insert(2, u"Work"_s);
    a.round(Look::Head);
    b.round(Look::Head);
    EXPECT_EQ(b.name(1), u"Home"_s);
    a.round(Look::Head);
    EXPECT_EQ(a.name(2), u"Work"_s);
}

TEST_F(SyncRoundTest, AccountThatTellsNoRevisionsCostsARequestMoreInARow)
{
    account.tellsRevisions = false;
    settle();
    a.insert(1, u"Home"_s);
    a.round(Look::Head);
    a.insert(2, u"Work"_s);
    a.cloud.forgetGiven();
    a.round(Look::Head);
    EXPECT_EQ(a.cloud.given(),
        (QStringList{u"create "_s + a.change(2), u"look head"_s, u"replace head"_s}));
    a.cloud.forgetGiven();
    a.round(Look::Head);
    a.round(Look::Head);
    EXPECT_EQ(a.cloud.given(), (QStringList{u"look head"_s, u"look head"_s}));
}

TEST_F(SyncRoundTest, HeadThatIsLostForeignOrOldCostsNothingButRequests)
{
    settle();
    const auto old = account.files[u"head"_s];
    a.insert(1, u"one"_s);
    a.round(Look::Head);
    account.files[u"head"_s] = old;
    b.round(Look::Head);
    EXPECT_EQ(b.name(1), u"none"_s); // not told
    b.round(Look::Listing);
    EXPECT_EQ(b.name(1), u"one"_s);

    account.put(u"head"_s, QByteArray(5000, 'x'));
    a.insert(2, u"two"_s);
    EXPECT_TRUE(a.round(Look::Head).isWell());
    EXPECT_EQ(account.files[u"head"_s].bytes.size(), 16);
    b.round(Look::Head);
    EXPECT_EQ(b.name(2), u"two"_s);

    account.files.remove(u"head"_s);
    a.insert(3, u"three"_s);
    EXPECT_TRUE(a.round(Look::Head).isWell());
    b.round(Look::Head);
    EXPECT_EQ(b.name(3), u"three"_s);
    account.files.remove(u"head"_s);
    b.round(Look::Head);
    EXPECT_TRUE(account.files.contains(u"head"_s));
}

TEST_F(SyncRoundTest, FileWhoseAnswerWasLostIsNotWrittenTwice)
{
    settle();
    a.insert(1, u"Home"_s);
    a.begin(Look::Head);
    a.cloud.answer(0, Fault::AnswerLost);
    a.cloud.answerAll();
    EXPECT_EQ(a.outcome->error->problem, CloudProblem::Unreachable);
    EXPECT_TRUE(a.replica.hasUnsent());
    const QString name = a.change(1);
    EXPECT_TRUE(a.round(Look::Head).isWell());
    EXPECT_EQ(a.change(1), name); // no new writer
    EXPECT_FALSE(a.replica.hasUnsent());
    b.round(Look::Head);
    EXPECT_EQ(b.name(1), u"Home"_s);
}

TEST_F(SyncRoundTest, HalfWrittenFileIsCompletedAndReadThen)
{
    settle();
    a.insert(1, u"Home"_s);
    a.begin(Look::Head);
    a.cloud.answer(0, Fault::Cut);
    a.cloud.answerAll();
    const SyncOutcome refused = b.round();
    EXPECT_EQ(refused.refused, (QList<RefusedFile>{{a.change(1), FileProblem::Damaged}}));
    EXPECT_TRUE(b.round().refused.isEmpty()); // told once
    const QString name = a.change(1);
    EXPECT_TRUE(a.round(Look::Head).isWell());
    EXPECT_EQ(a.change(1), name);
    b.round();
    EXPECT_EQ(b.name(1), u"Home"_s);
}

TEST_F(SyncRoundTest, FileThatWasReplacedWhileItsOldBytesWereStillGivenIsReadAgain)
{
    a.insert(1, u"Home"_s);
    a.round();
    const QString name = a.change(1);
    const FakeCloudAccount::File whole = account.files[name];
    const FakeCloudAccount::File damaged{"rubbish", "before"};
    b.begin(Look::Listing);
    while (!b.cloud.waiting().contains(u"read "_s + name)) {
        ASSERT_FALSE(b.cloud.waiting().isEmpty());
        b.cloud.answer(0);
    }
    // As a server with a cache: the listing was of the file, the bytes are what was there before.
    account.files[name] = damaged;
    b.cloud.answerAll();
    ASSERT_EQ(b.outcome->refused.size(), 1);
    account.files[name] = whole;
    b.round();
    EXPECT_EQ(b.name(1), u"Home"_s);
}

TEST_F(SyncRoundTest, ForeignFilesStayAndAreToldOnce)
{
    settle();
    account.put(u"readme.txt"_s, "hello");
    account.put(u"00000000000000ff-000000000001.change"_s, "rubbish");
    account.put(u"00000000000000fe-000000000001.change"_s, QByteArray(longestSealedFile + 1, 'x'));
    account.put(u"00000000000000ff.snapshot"_s, "rubbish");
    const auto before = account.files.keys();
    EXPECT_EQ(a.round().refused.size(), 3);
    a.cloud.forgetGiven();
    EXPECT_TRUE(a.round().refused.isEmpty());
    EXPECT_EQ(a.cloud.given(), (QStringList{u"look head"_s, u"list"_s}));
    EXPECT_EQ(account.files.keys(), before);
}

TEST_F(SyncRoundTest, FileOfALaterVersionIsKeptAndNothingBehindItIsLost)
{
    a.insert(1, u"one"_s);
    a.round();
    a.insert(2, u"two"_s);
    a.round();
    a.insert(3, u"three"_s);
    a.round();
    const QByteArray ours = account.files[a.change(2)].bytes;
    QByteArray newer = ours;
    newer[3] = 9;
    account.put(a.change(2), newer);
    EXPECT_EQ(b.round().refused, (QList<RefusedFile>{{a.change(2), FileProblem::Newer}}));
    EXPECT_EQ(b.name(3), u"three"_s);
    EXPECT_EQ(account.files[a.change(2)].bytes, newer);
    // As if the program had been updated.
    account.put(a.change(2), ours);
    b.round();
    EXPECT_EQ(b.name(2), u"two"_s);
    EXPECT_TRUE(b.isLike(a));
}

TEST_F(SyncRoundTest, AccountWithoutKeyFileIsLeftAlone)
{
    settle();
    account.files.clear();
    a.insert(1, u"Home"_s);
    EXPECT_TRUE(a.round().isKeyMissing);
    EXPECT_TRUE(account.files.isEmpty());
    account.put(u"key"_s, "the wrapped key");
    EXPECT_TRUE(a.round().isWell());
    b.round();
    EXPECT_EQ(b.name(1), u"Home"_s);
}

TEST_F(SyncRoundTest, AnAccountWithAnotherKeyIsLeftAlone)
{
    const auto file = [this](const AccountKey &ofKey) {
        return WrappedKey::wrap(ofKey, "secret", random, {1, 8}).value();
    };
    KeyFileWatch watch(a.cloud, key, file(key), [](const auto &) {});
    a.deps.keyFile = &watch;
    account.put(u"key"_s, watch.copy());
    settle();
    a.round();
    EXPECT_FALSE(a.cloud.given().contains(u"read key"_s)) << "it is known";
    a.insert(1, u"Home"_s);
    account.put(u"key"_s, file(AccountKey::random(random).value()));
    const auto before = account.files;
    EXPECT_EQ(a.round().keyProblem, KeyFileProblem::OtherKey);
    EXPECT_FALSE(a.round().isWell());
    EXPECT_EQ(account.files, before);
    account.put(u"key"_s, watch.copy());
    EXPECT_EQ(a.round().sent, 1) << "nothing was lost";
    b.round();
    EXPECT_EQ(b.name(1), u"Home"_s);
}

TEST_F(SyncRoundTest, AKeyFileThatVanishesIsMissing)
{
    KeyFileWatch watch(
        a.cloud, key, WrappedKey::wrap(key, "secret", random, {1, 8}).value(), [](const auto &) {});
    a.deps.keyFile = &watch;
    account.put(u"key"_s, watch.copy());
    a.begin(Look::Listing);
    a.cloud.answer(0);
    a.cloud.answer(0);
    ASSERT_EQ(a.cloud.waiting(), QStringList{u"read key"_s});
    account.files.remove(u"key"_s);
    a.cloud.answerAll();
    EXPECT_TRUE(a.outcome->isKeyMissing);
    EXPECT_FALSE(a.outcome->error);
    EXPECT_TRUE(account.files.isEmpty());
}

TEST_F(SyncRoundTest, RefusedPasswordEndsTheRound)
{
    settle();
    a.insert(1, u"Home"_s);
    a.cloud.refusal = {CloudProblem::WrongPassword, u"401"_s};
    a.begin(Look::Head);
    a.cloud.answer(0, Fault::Refused);
    EXPECT_EQ(a.outcome->error->problem, CloudProblem::WrongPassword);
    EXPECT_TRUE(a.cloud.waiting().isEmpty());
}

TEST_F(SyncRoundTest, FullAccountIsReadNevertheless)
{
    settle();
    b.insert(1, u"Home"_s);
    b.round(Look::Head);
    a.insert(2, u"Work"_s);
    a.cloud.refusal = {CloudProblem::Full, u"507"_s};
    a.begin(Look::Head);
    a.cloud.answer(0, Fault::Refused);
    a.cloud.answerAll();
    EXPECT_EQ(a.outcome->error->problem, CloudProblem::Full);
    EXPECT_EQ(a.name(1), u"Home"_s);
    EXPECT_TRUE(a.replica.hasUnsent());
}

TEST_F(SyncRoundTest, OneFileThatCannotBeReadDoesNotKeepTheOthers)
{
    for (int i = 1; i <= 3; ++i) {
        a.insert(i, QString::number(i));
        a.round();
    }
    b.begin(Look::Listing);
    b.cloud.answer(0); // the head
    b.cloud.answer(0); // the listing
    ASSERT_EQ(b.cloud.waiting().size(), 3);
    b.cloud.answer(0, Fault::Refused);
    b.cloud.answerAll();
    EXPECT_EQ(b.outcome->received, 2);
    EXPECT_EQ(b.outcome->error->problem, CloudProblem::Failed);
    EXPECT_TRUE(b.outcome->wantsListing);
    EXPECT_EQ(b.round(Look::Head).received, 1); // the head still counts as not seen
    EXPECT_TRUE(b.isLike(a));
}

TEST_F(SyncRoundTest, FullDiskHereEndsTheRoundAndNothingCountsAsSeen)
{
    a.insert(1, u"Home"_s);
    a.round();
    b.begin(Look::Listing);
    b.cloud.answer(0);
    b.cloud.answer(0);
    b.storage.failNext = true;
    b.cloud.answer(0);
    EXPECT_TRUE(b.outcome->couldNotStore);
    EXPECT_TRUE(b.outcome->refused.isEmpty());
    EXPECT_EQ(b.round(Look::Head).received, 1);
}

TEST_F(SyncRoundTest, RequestsAtOnceAreBounded)
{
    for (int i = 1; i <= 20; ++i) {
        a.insert(i, QString::number(i));
        a.replica.sealPending();
    }
    a.round();
    EXPECT_EQ(a.cloud.mostWaiting(), a.limits.requests);
    b.round();
    EXPECT_EQ(b.cloud.mostWaiting(), b.limits.requests);
    EXPECT_TRUE(b.isLike(a));
}

TEST_F(SyncRoundTest, RoundThatGoesCallsNobody)
{
    settle();
    a.insert(1, u"Home"_s);
    a.begin(Look::Head);
    a.running.reset();
    a.cloud.answerAll();
    EXPECT_FALSE(a.outcome.has_value());
    EXPECT_TRUE(a.round(Look::Head).isWell());
}

TEST_F(SyncRoundTest, ComputerThatWasSetBackGoesOnAsANewWriter)
{
    a.insert(1, u"one"_s);
    a.round();
    const auto backup = a.storage.content;
    a.insert(2, u"two"_s);
    a.round();
    const WriterId writer = a.progress().writer;
    b.round();
    a.kill();
    a.storage.content = backup;
    a.insert(3, u"three"_s);
    account.honorsPreconditions = false;
    EXPECT_TRUE(a.round().isWell());
    EXPECT_NE(a.progress().writer, writer);
    b.round();
    EXPECT_EQ(a.name(2), u"two"_s);
    EXPECT_EQ(b.name(3), u"three"_s);
    EXPECT_TRUE(a.isLike(b));
}

TEST_F(SyncRoundTest, ComputerThatWasSetBackIsNoticedAlsoByTheNumberThatItsFileFindsTaken)
{
    a.insert(1, u"one"_s);
    a.round();
    const auto backup = a.storage.content;
    a.insert(2, u"two"_s);
    a.round();
    a.storage.content = backup;
    a.insert(3, u"three"_s);
    a.round(Look::Head); // without a listing
    b.round();
    EXPECT_EQ(b.name(2), u"two"_s);
    EXPECT_EQ(b.name(3), u"three"_s);
    a.round();
    EXPECT_TRUE(a.isLike(b));
}

} // namespace
} // namespace quillon::test
