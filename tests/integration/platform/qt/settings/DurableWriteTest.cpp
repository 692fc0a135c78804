// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
// What a power cut may leave of the settings: the old content or the new, under the file's name.
#include "SettingsFileTest.h"
#include "base/SettingsKeys.h"
#include "fakes/QtPrinting.h"
#include "fakes/SyncedPaths.h"

namespace quillon {

using namespace Qt::StringLiterals;
namespace {

class DurableWrite : public test::SettingsFileTest
{
protected:
    ~DurableWrite() override { test::beforeSync() = {}; }

    QVariant stored() const { return content().value(keys::defaultTimerMinutes); }
};

TEST_F(DurableWrite, WaitsForTheContentBeforeItHasTheNameAndThenForTheName)
{
    replacedByAnother({{keys::defaultTimerMinutes, 1}});
    openStore();
    store->set(keys::defaultTimerMinutes, 2);
    QVariantList atEach;
    test::syncedPaths().clear();
    test::beforeSync() = [&] { atEach << stored(); };
    ASSERT_TRUE(store->flush());
    test::beforeSync() = {};
    const QStringList synced = test::syncedPaths();
    ASSERT_GE(synced.size(), 2);
    EXPECT_TRUE(synced.first().startsWith(folder.path() + u'/') && synced.first() != path)
        << "the new content, under another name: " << synced.first().toStdString();
    EXPECT_EQ(atEach.first(), QVariant(1LL));
    EXPECT_EQ(synced.last(), folder.path());
    EXPECT_EQ(atEach.last(), QVariant(2LL));
}

TEST_F(DurableWrite, WaitsForTheNamesOfFoldersThatItMakes)
{
    test::syncedPaths().clear();
    path = folder.filePath(u"config/Quillon/settings.plist"_s);
    openStore();
    EXPECT_EQ(test::syncedPaths(), QStringList({folder.path(), folder.filePath(u"config"_s)}));
    store->setBool(keys::hideDock, true);
    ASSERT_TRUE(store->flush());
    EXPECT_EQ(test::syncedPaths().last(), folder.filePath(u"config/Quillon"_s));
}

} // namespace
} // namespace quillon
