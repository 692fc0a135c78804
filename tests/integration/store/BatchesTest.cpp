// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The check of the kill trials can fail: whatever is lost, halved or too much is seen.
#include "ExpectBatch.h"
#include "KillTrial.h"

#include <QFile>
#include <QTemporaryDir>

namespace quillon {

using namespace Qt::StringLiterals;
namespace {

class BatchesTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        auto opened = test::openedContext(path, scheduler);
        ASSERT_TRUE(opened);
        owned = std::move(opened.value());
        batches = std::make_unique<test::Batches>(*owned);
        for (qint64 batch = 1; batch <= last; ++batch) {
            batches->change(batch);
            ASSERT_FALSE(owned->save().has_value());
        }
    }
    ManagedObjectList all(const QString &entity)
    {
        const auto objects = owned->fetch({entity, {}, {}});
        return objects ? objects.value() : ManagedObjectList();
    }
    bool isSeen()
    {
        return batches->last() != last || batches->found() != test::Batches::expected(last);
    }

    static constexpr qint64 last = 9;
    QTemporaryDir folder;
    QString path = folder.filePath(u"Quillon.sqlite"_s);
    test::FakeScheduler scheduler;
    std::unique_ptr<ManagedObjectContext> owned;
    std::unique_ptr<test::Batches> batches;
};

TEST_F(BatchesTest, WholeBatchesAreAsExpected)
{
    EXPECT_EQ(batches->found(), test::Batches::expected(last));
    EXPECT_GT(batches->found().size(), 5);
    test::expectBatch(path, last);
}

TEST_F(BatchesTest, AMissingRecordIsSeen)
{
    owned->deleteObject(all(model::Connection).last());
    EXPECT_TRUE(isSeen());
}

TEST_F(BatchesTest, ALostChangeIsSeen)
{
    all(model::Connection).first()->setValue(model::connection::ssid, u"new"_s);
    EXPECT_TRUE(isSeen());
}

TEST_F(BatchesTest, ARecordTooManyIsSeen)
{
    owned->insertNewObject(model::Connection);
    EXPECT_TRUE(isSeen());
}

TEST_F(BatchesTest, ALostMarkerIsSeen)
{
    for (const auto &rule : all(model::Rule)) {
        owned->deleteObject(rule);
    }
    EXPECT_TRUE(isSeen());
}

/// One of the file's states after a batch is put in the place of a later one.
TEST_F(BatchesTest, ATrialSeesThatASaveWasLost)
{
    const QString place = folder.filePath(u"trial.sqlite"_s);
    test::KillTrial trial(place, 7);
    for (int round = 0; round < 6; ++round) {
        trial.killOneWriter();
    }
    trial.check();
    EXPECT_EQ(trial.faults(), QStringList());
    EXPECT_EQ(trial.counts().kills, 6);
    EXPECT_GT(trial.counts().savesReported, 0);

    owned.reset();
    ASSERT_TRUE(QFile::remove(place));
    trial.check();
    EXPECT_EQ(trial.faults().size(), 1) << trial.faults().join(u'\n').toStdString();
}

} // namespace
} // namespace quillon
