// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "SettingsFileTest.h"
#include "base/SettingsKeys.h"

#include <algorithm>

namespace quillon {

using namespace Qt::StringLiterals;
namespace {

using namespace std::chrono_literals;

/// Another program, which does not replace the file but writes into it, is in the middle of that.
class UnfinishedFile : public test::SettingsFileTest
{
protected:
    UnfinishedFile()
    {
        replacedByAnother({{keys::defaultTimerMinutes, 1}, {keys::hideDock, true}});
    }
    void writeHalf() { ASSERT_TRUE(write(path, whole.left(whole.size() / 2))); }
    void writeWhole() { ASSERT_TRUE(write(path, whole)); }
    /// The other program ends while it is waited for, at the third look.
    void endSoon()
    {
        meanwhile = [this, looks = 0]() mutable {
            if (++looks == 2) {
                writeWhole();
            }
        };
    }
    /// What both programs wrote stands, and nothing was set aside.
    void expectBoth(qlonglong ours)
    {
        scheduler.runPending();
        const QVariantMap both{{keys::defaultTimerMinutes, 2LL}, {keys::hideDock, true},
            {keys::vendorCountValue, ours}};
        EXPECT_EQ(content(), both);
        EXPECT_TRUE(others().isEmpty()) << others().join(u' ').toStdString();
        EXPECT_TRUE(problems.empty());
    }
    void expectSetAside(const QByteArray &bytes)
    {
        scheduler.runPending();
        ASSERT_TRUE(problemIs(SettingsProblem::Kind::Damaged));
        EXPECT_EQ(read(problems.front().keptPath), bytes);
        const QVariantMap values{{keys::defaultTimerMinutes, 1LL}, {keys::hideDock, true},
            {keys::vendorCountValue, 7LL}};
        EXPECT_EQ(content(), values);
    }

    const QByteArray whole =
        xmlPropertyList({{keys::defaultTimerMinutes, 2}, {keys::hideDock, true}});
};

TEST_F(UnfinishedFile, IsWaitedForByFlush)
{
    openStore();
    store->set(keys::vendorCountValue, 7);
    writeHalf();
    endSoon();
    EXPECT_TRUE(store->flush());
    expectBoth(7);
    EXPECT_GT(waited, 0ms);
    EXPECT_LT(waited, 1s) << "no longer than it takes";
}

TEST_F(UnfinishedFile, ThatIsEmptyOrGoneIsWaitedForByFlush)
{
    for (const bool isGone : {false, true}) {
        openStore();
        store->set(keys::vendorCountValue, isGone ? 8 : 7);
        ASSERT_TRUE(isGone ? QFile::remove(path) : write(path, {}));
        endSoon();
        EXPECT_TRUE(store->flush());
        expectBoth(isGone ? 8 : 7);
    }
}

TEST_F(UnfinishedFile, ThatNobodyFinishesIsSetAsideByFlushAtLast)
{
    openStore();
    store->set(keys::vendorCountValue, 7);
    ASSERT_TRUE(write(path, "scribble"));
    EXPECT_TRUE(store->flush());
    EXPECT_EQ(waited, 1s);
    expectSetAside("scribble");
    EXPECT_TRUE(store->flush());
    EXPECT_EQ(waited, 1s) << "once";
}

TEST_F(UnfinishedFile, IsWaitedForAtTheEnd)
{
    openStore();
    store->set(keys::vendorCountValue, 7);
    writeHalf();
    endSoon();
    store.reset();
    expectBoth(7);
}

TEST_F(UnfinishedFile, ThatNobodyFinishesIsSetAsideAtTheEndAndNothingIsLost)
{
    openStore();
    store->set(keys::vendorCountValue, 7);
    const QByteArray half = whole.left(whole.size() / 2);
    writeHalf();
    store.reset();
    EXPECT_EQ(content().value(keys::vendorCountValue), QVariant(7LL));
    ASSERT_EQ(others().size(), 1);
    EXPECT_EQ(read(folder.filePath(others().first())), half);
}

TEST_F(UnfinishedFile, IsWaitedForAtTheStart)
{
    writeHalf();
    endSoon();
    openStore();
    EXPECT_EQ(store->getInteger(keys::defaultTimerMinutes), 2);
    EXPECT_TRUE(others().isEmpty());
    EXPECT_TRUE(problems.empty());
}

TEST_F(UnfinishedFile, MakesAWriteInTheBackgroundComeBackLater)
{
    openStore();
    const QByteArray half = whole.left(whole.size() / 2);
    writeHalf();
    store->set(keys::vendorCountValue, 7);
    scheduler.advance(50ms);
    EXPECT_EQ(read(path), half) << "neither set aside nor written over";
    EXPECT_TRUE(others().isEmpty());
    store->set(keys::vendorCountValue, 8);
    scheduler.advance(900ms);
    EXPECT_EQ(read(path), half);
    writeWhole();
    scheduler.advance(100ms);
    expectBoth(8);
    EXPECT_EQ(store->getInteger(keys::defaultTimerMinutes), 2);
    scheduler.advance(1s);
    EXPECT_FALSE(scheduler.hasTimers());
    EXPECT_EQ(waited, 0ms) << "nobody was held up";
}

TEST_F(UnfinishedFile, ThatNobodyFinishesIsSetAsideInTheBackgroundAndNothingIsLost)
{
    openStore();
    ASSERT_TRUE(write(path, "scribble"));
    store->set(keys::vendorCountValue, 7);
    scheduler.advance(50ms);
    EXPECT_TRUE(others().isEmpty());
    scheduler.advance(1s);
    expectSetAside("scribble");
}

TEST_F(UnfinishedFile, ThatIsGoneIsNotMadeByAWriteInTheBackground)
{
    openStore();
    ASSERT_TRUE(QFile::remove(path));
    store->set(keys::vendorCountValue, 7);
    scheduler.advance(50ms);
    EXPECT_FALSE(QFile::exists(path));
    writeWhole();
    scheduler.advance(1s);
    expectBoth(7);
}

TEST_F(UnfinishedFile, ThatWasWholeInBetweenIsUnfinishedAnew)
{
    for (const bool isGone : {false, true}) {
        openStore();
        const auto spoil = [&] { isGone ? void(QFile::remove(path)) : writeHalf(); };
        spoil();
        store->synchronize();
        scheduler.advance(50ms);
        writeWhole();
        store->synchronize();
        scheduler.advance(900ms);
        EXPECT_EQ(store->getInteger(keys::defaultTimerMinutes), 2);
        spoil();
        scheduler.advance(500ms);
        EXPECT_NE(QFile::exists(path), isGone);
        EXPECT_TRUE(others().isEmpty());
        writeWhole();
        scheduler.advance(2s);
        EXPECT_EQ(read(path), whole);
        EXPECT_TRUE(others().isEmpty());
        EXPECT_TRUE(problems.empty());
        EXPECT_FALSE(scheduler.hasTimers());
    }
}

TEST_F(UnfinishedFile, ThatWasWholeUnseenInBetweenIsUnfinishedAnew)
{
    openStore();
    writeHalf();
    store->synchronize();
    scheduler.advance(900ms);
    writeWhole();
    // So that the file system, whose clock has steps, tells both halves apart.
    ASSERT_TRUE(test::holdsSoon([this, before = QFileInfo(path).lastModified()] {
        writeHalf();
        return QFileInfo(path).lastModified() != before;
    }));
    store->synchronize();
    scheduler.advance(500ms);
    EXPECT_TRUE(others().isEmpty());
    EXPECT_EQ(read(path), whole.left(whole.size() / 2));
}

TEST_F(UnfinishedFile, ThatGrowsSlowlyIsWaitedForInTheBackground)
{
    openStore();
    store->set(keys::vendorCountValue, 7);
    for (qsizetype size = 0; size < whole.size(); size += whole.size() / 10) {
        ASSERT_TRUE(write(path, whole.left(size)));
        scheduler.advance(400ms);
        ASSERT_TRUE(others().isEmpty()) << size;
    }
    writeWhole();
    scheduler.advance(1s);
    expectBoth(7);
    EXPECT_FALSE(scheduler.hasTimers());
}

TEST_F(UnfinishedFile, ThatGrowsSlowlyIsWaitedForByFlush)
{
    openStore();
    store->set(keys::vendorCountValue, 7);
    writeHalf();
    meanwhile = [this] {
        const auto most = std::chrono::milliseconds(3000);
        const qsizetype half = whole.size() / 2;
        const qsizetype more = (whole.size() - half) * (waited.count() / 500) / (most / 500ms);
        ASSERT_TRUE(write(path, whole.left(std::min(half + more, whole.size()))));
    };
    EXPECT_TRUE(store->flush());
    EXPECT_EQ(waited, 3s);
    expectBoth(7);
}

TEST_F(UnfinishedFile, IsNotCutShortByALookInTheBackgroundWhileFlushWaits)
{
    openStore();
    store->set(keys::vendorCountValue, 7);
    writeHalf();
    scheduler.advance(500ms);
    meanwhile = [this] {
        if (waited == 400ms) {
            ASSERT_TRUE(write(path, whole.left(whole.size() / 3)));
        } else if (waited == 1s) {
            writeWhole();
        }
        scheduler.runPending();
        ASSERT_TRUE(others().isEmpty()) << waited.count();
    };
    EXPECT_TRUE(store->flush());
    EXPECT_EQ(waited, 1s);
    expectBoth(7);
}

TEST_F(UnfinishedFile, ThatIsNeverFinishedIsNotWaitedForForEver)
{
    openStore();
    store->set(keys::vendorCountValue, 7);
    meanwhile = [this] { ASSERT_TRUE(write(path, QByteArray::number(waited.count()))); };
    ASSERT_TRUE(write(path, "0"));
    EXPECT_TRUE(store->flush());
    EXPECT_EQ(waited, 10s);
    expectSetAside("10000");
}

TEST_F(UnfinishedFile, IsNoneWhereThereWasNoFile)
{
    ASSERT_TRUE(QFile::remove(path));
    openStore();
    store->set(keys::vendorCountValue, 7);
    EXPECT_TRUE(store->flush());
    EXPECT_EQ(waited, 0ms);
    EXPECT_EQ(content(), QVariantMap({{keys::vendorCountValue, 7LL}}));
}

} // namespace
} // namespace quillon
