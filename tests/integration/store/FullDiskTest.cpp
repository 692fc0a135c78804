// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ExpectBatch.h"
#include "store/file/RecordFile.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <sys/mount.h>

namespace quillon {

using namespace Qt::StringLiterals;
namespace {

/// A small disk of its own. As root in a sandbox, because only root may mount.
class FullDisk : public ::testing::Test
{
protected:
    FullDisk()
    {
        EXPECT_EQ(::mount("tmpfs", disk().constData(), "tmpfs", 0, "size=1m,mode=0700"), 0);
    }
    ~FullDisk() override { EXPECT_EQ(::umount2(disk().constData(), MNT_DETACH), 0); }

    QByteArray disk() const { return QFile::encodeName(folder.path()); }
    /// Takes all room but `spare` pages.
    void fill(int spare)
    {
        QFile file(ballast);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
        const QByteArray page(4096, 'x');
        while (file.write(page) == page.size()) {
        }
        ASSERT_TRUE(file.resize(std::max(qint64(0), file.size() - spare * page.size())));
    }
    void makeRoom() { ASSERT_TRUE(QFile::remove(ballast)); }

    QTemporaryDir folder;
    QString path = folder.filePath(u"Quillon.sqlite"_s);
    QString ballast = folder.filePath(u"ballast"_s);
    test::FakeScheduler scheduler;
};

/// With little room left, some saves go through and then none does, at every possible page.
TEST_F(FullDisk, ASaveSucceedsWholeOrFailsWholeAndSucceedsWhenThereIsRoom)
{
    constexpr int mostSpare = 24;
    qint64 saved = 0;
    int refused = 0;
    for (int spare = 0; spare <= mostSpare; ++spare) {
        auto opened = test::openedContext(path, scheduler);
        ASSERT_TRUE(opened) << opened.error().message.toStdString();
        ManagedObjectContext &context = *opened.value();
        test::Batches batches(context);
        // Whatever the journal already holds is room that need not be asked for.
        batches.change(++saved);
        ASSERT_FALSE(context.save().has_value());
        fill(spare);
        std::optional<Error> error;
        while (!error && saved < 10'000) {
            batches.change(++saved);
            error = context.save();
        }
        ASSERT_TRUE(error.has_value()) << "the disk was never full";
        ++refused;
        EXPECT_EQ(error->code, static_cast<int>(RecordFileError::Full));
        EXPECT_TRUE(context.hasChanges());
        EXPECT_EQ(batches.found(), test::Batches::expected(saved)) << "all of it is still there";
        EXPECT_TRUE(context.save().has_value()) << "and cannot be saved by asking twice";
        test::expectBatch(path, saved - 1);

        makeRoom();
        const auto still = context.save();
        EXPECT_FALSE(still.has_value()) << still->message.toStdString();
        EXPECT_FALSE(context.hasChanges());
        test::expectBatch(path, saved);
    }
    EXPECT_EQ(refused, mostSpare + 1);
}

TEST_F(FullDisk, ChangesMadeAfterTheRefusalAreSavedWithTheRest)
{
    auto opened = test::openedContext(path, scheduler);
    ASSERT_TRUE(opened);
    ManagedObjectContext &context = *opened.value();
    test::Batches batches(context);
    fill(0);
    qint64 last = 0;
    do {
        batches.change(++last);
    } while (!context.save());
    const qint64 refused = last;
    batches.change(++last);
    batches.change(++last);
    batches.change(++last);
    test::expectBatch(path, refused - 1);
    makeRoom();
    EXPECT_FALSE(context.save().has_value());
    test::expectBatch(path, last);
}

TEST_F(FullDisk, ANewFileThatFindsNoRoomIsAnError)
{
    fill(0);
    {
        const auto opened = test::openedContext(path, scheduler);
        ASSERT_FALSE(opened);
        EXPECT_EQ(opened.error().code, static_cast<int>(RecordFileError::Full));
    }
    makeRoom();
    const auto opened = test::openedContext(path, scheduler);
    EXPECT_TRUE(opened) << "what the first attempt left is no obstacle";
}

TEST_F(FullDisk, AnExistingFileCannotBeOpenedAndIsLeftAsItIs)
{
    {
        auto opened = test::openedContext(path, scheduler);
        ASSERT_TRUE(opened);
        test::Batches batches(*opened.value());
        batches.change(1);
        ASSERT_FALSE(opened.value()->save().has_value());
    }
    fill(0);
    {
        const auto opened = test::openedContext(path, scheduler);
        ASSERT_FALSE(opened);
        EXPECT_EQ(opened.error().code, static_cast<int>(RecordFileError::Full));
    }
    makeRoom();
    test::expectBatch(path, 1);
}

} // namespace
} // namespace quillon
