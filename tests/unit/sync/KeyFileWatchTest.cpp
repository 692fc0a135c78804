// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "sync/KeyFileWatch.h"

#include "SeededRandom.h"
#include "fakes/FakeCloudStorage.h"
#include "sync/AccountFile.h"

#include <gtest/gtest.h>

namespace quillon::test {
namespace {

using Fault = FakeCloudStorage::Fault;

class KeyFileWatchTest : public ::testing::Test
{
protected:
    QByteArray file(const AccountKey &ofKey, std::uint32_t number)
    {
        return WrappedKey::wrap(ofKey, "secret", random, {1, 8}, number).value();
    }
    QByteArray there() const { return account.files.value(keyFileName).bytes; }
    QByteArray revision() const { return account.files.value(keyFileName).revision; }
    KeyFileWatch::Result look()
    {
        std::optional<KeyFileWatch::Result> result;
        watch.look([&result](const KeyFileWatch::Result &answer) { result = answer; });
        cloud.answerAll();
        return result.value();
    }
    void expectOurs()
    {
        const auto result = look();
        ASSERT_FALSE(std::holds_alternative<CloudError>(result));
        EXPECT_EQ(std::get<std::optional<KeyFileProblem>>(result), std::nullopt);
    }
    void expect(KeyFileProblem problem)
    {
        const auto result = look();
        ASSERT_FALSE(std::holds_alternative<CloudError>(result));
        EXPECT_EQ(std::get<std::optional<KeyFileProblem>>(result), problem);
        EXPECT_FALSE(watch.hasSeen(revision()));
        EXPECT_EQ(watch.copy(), second);
        EXPECT_TRUE(renewed.isEmpty());
    }

    FakeCloudAccount account;
    FakeCloudStorage cloud{account};
    SeededRandom random{6};
    const AccountKey key = AccountKey::random(random).value();
    const QByteArray first = file(key, 1);
    const QByteArray second = file(key, 2);
    QList<QByteArray> renewed;
    KeyFileWatch watch{
        cloud, key, second, [this](const QByteArray &copy) { renewed.append(copy); }};
};

TEST_F(KeyFileWatchTest, TheFileThatIsKnownIsReadOnce)
{
    account.put(keyFileName, second);
    EXPECT_FALSE(watch.hasSeen(revision()));
    expectOurs();
    EXPECT_TRUE(watch.hasSeen(revision()));
    EXPECT_TRUE(renewed.isEmpty());
    account.put(keyFileName, second);
    EXPECT_FALSE(watch.hasSeen(revision())) << "somebody wrote it";
}

TEST_F(KeyFileWatchTest, WithoutARevisionItIsReadEachTime)
{
    account.files.insert(keyFileName, {second, {}});
    expectOurs();
    EXPECT_FALSE(watch.hasSeen({}));
}

TEST_F(KeyFileWatchTest, ANewPassphraseIsTakenOver)
{
    const QByteArray third = file(key, 3);
    account.put(keyFileName, third);
    expectOurs();
    EXPECT_EQ(watch.copy(), third);
    EXPECT_EQ(renewed, QList{third});
    // Two computers made one at once: what stands there holds.
    const QByteArray another = file(key, 3);
    account.put(keyFileName, another);
    expectOurs();
    EXPECT_EQ(watch.copy(), another);
    EXPECT_EQ(there(), another);
}

TEST_F(KeyFileWatchTest, AnEarlierPassphraseDoesNotComeBack)
{
    account.put(keyFileName, first);
    expectOurs();
    EXPECT_EQ(there(), second);
    EXPECT_EQ(watch.copy(), second);
    EXPECT_TRUE(renewed.isEmpty());
    EXPECT_TRUE(watch.hasSeen(revision()));
}

TEST_F(KeyFileWatchTest, WhatIsDamagedIsReplacedByTheCopy)
{
    for (const QByteArray &bytes :
        {QByteArray(), second.first(second.size() / 2), QByteArray("rubbish")}) {
        account.put(keyFileName, bytes);
        expectOurs();
        EXPECT_EQ(there(), second);
    }
}

TEST_F(KeyFileWatchTest, NothingIsReplacedThatIsBeingReplaced)
{
    const QByteArray third = file(key, 3);
    for (const QByteArray &bytes : {first, second.first(9)}) {
        account.put(keyFileName, bytes);
        bool isAnswered = false;
        watch.look([&isAnswered](const auto &) { isAnswered = true; });
        cloud.answer(0);
        account.put(keyFileName, third);
        cloud.answerAll();
        EXPECT_TRUE(isAnswered);
        EXPECT_EQ(there(), third);
        EXPECT_FALSE(watch.hasSeen(revision()));
    }
}

TEST_F(KeyFileWatchTest, AnotherKeyIsToldAndLeftAlone)
{
    const QByteArray foreign = file(AccountKey::random(random).value(), 9);
    account.put(keyFileName, foreign);
    expect(KeyFileProblem::OtherKey);
    EXPECT_EQ(there(), foreign);
}

TEST_F(KeyFileWatchTest, ANewerOrAHugeFileIsToldAndLeftAlone)
{
    const QByteArray newer("QLKY\2 of the future");
    account.put(keyFileName, newer);
    expect(KeyFileProblem::Newer);
    EXPECT_EQ(there(), newer);
    const QByteArray huge(WrappedKey::longest + 1, 'x');
    account.put(keyFileName, huge);
    expect(KeyFileProblem::Damaged);
    EXPECT_EQ(there(), huge);
}

TEST_F(KeyFileWatchTest, DamageThatCannotBeMendedIsTold)
{
    account.put(keyFileName, "rubbish");
    KeyFileWatch::Result result;
    watch.look([&result](const KeyFileWatch::Result &answer) { result = answer; });
    cloud.answer(0);
    cloud.answer(0, Fault::Refused);
    EXPECT_EQ(std::get<std::optional<KeyFileProblem>>(result), KeyFileProblem::Damaged);
    // Neither is what the keyring has better.
    KeyFileWatch helpless(cloud, key, "rubbish", [](const auto &) { FAIL(); });
    cloud.forgetGiven();
    helpless.look([&result](const KeyFileWatch::Result &answer) { result = answer; });
    cloud.answerAll();
    EXPECT_EQ(std::get<std::optional<KeyFileProblem>>(result), KeyFileProblem::Damaged);
    EXPECT_EQ(cloud.given(), QStringList{QStringLiteral("read key")});
}

TEST_F(KeyFileWatchTest, WithoutAnAnswerNothingIsSaidOfTheFile)
{
    EXPECT_EQ(std::get<CloudError>(look()).problem, CloudProblem::NotThere);
    account.put(keyFileName, second);
    KeyFileWatch::Result result;
    watch.look([&result](const KeyFileWatch::Result &answer) { result = answer; });
    cloud.answer(0, Fault::Lost);
    EXPECT_EQ(std::get<CloudError>(result).problem, CloudProblem::Unreachable);
}

} // namespace
} // namespace quillon::test
