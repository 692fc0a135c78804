// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "RecordsOnDisk.h"
#include "fakes/FakeScheduler.h"
#include "fakes/QtPrinting.h"
#include "fakes/SyncedPaths.h"
#include "store/RecordStore.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

TEST(NewFile, ItsNameAndThatOfItsFolderAreOnTheDiskBeforeAnythingIsSaved)
{
    const QTemporaryDir home;
    const QString folder = home.filePath(u"share/Quillon"_s);
    syncedPaths().clear();
    FakeScheduler scheduler;
    RecordStore store(scheduler, folder);
    store.managedObjectContext();
    EXPECT_EQ(syncedPaths().filter(home.path()),
        QStringList({home.path(), home.filePath(u"share"_s), folder}));
}

TEST(NewFile, ThatSomebodyElseMadeNeedsNoMore)
{
    const QTemporaryDir home;
    const QString path = home.filePath(u"Quillon.sqlite"_s);
    FakeScheduler scheduler;
    ASSERT_TRUE(openedContext(path, scheduler));
    syncedPaths().clear();
    ASSERT_TRUE(openedContext(path, scheduler));
    EXPECT_FALSE(syncedPaths().contains(home.path()));
}

TEST(NewFile, IsNotReadThroughWhatAnEarlierOneLeftBesideIt)
{
    const QTemporaryDir home;
    const QString path = home.filePath(u"Quillon.sqlite"_s);
    FakeScheduler scheduler;
    for (const char *const part : {"-wal", "-journal"}) {
        {
            auto earlier = openedContext(path, scheduler);
            ASSERT_TRUE(earlier);
            earlier.value()->insertNewObject(model::Rule);
            ASSERT_FALSE(earlier.value()->save());
            ASSERT_TRUE(QFile::copy(path + u"-wal"_s, home.filePath(u"left"_s)));
        }
        ASSERT_TRUE(QFile::remove(path));
        ASSERT_TRUE(QFile::rename(home.filePath(u"left"_s), path + QLatin1String(part)));
        auto opened = openedContext(path, scheduler);
        ASSERT_TRUE(opened) << part << ": " << opened.error().message.toStdString();
        EXPECT_TRUE(opened.value()->fetch({model::Rule, {}, {}}).value().isEmpty());
        opened.value()->insertNewObject(model::Rule);
        EXPECT_FALSE(opened.value()->save());
        opened.value().reset();
        EXPECT_EQ(integrityOf(path), "ok");
        ASSERT_TRUE(QFile::remove(path));
    }
}

} // namespace
} // namespace quillon::test
