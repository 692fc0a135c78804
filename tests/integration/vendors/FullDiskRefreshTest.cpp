// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
// As root in a sandbox, because only root may mount.
#include "integration/vendors/RefreshingUser.h"

#include <sys/mount.h>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

class FullDiskRefresh : public RefreshTest
{
protected:
    ~FullDiskRefresh() override { umount(QFile::encodeName(files.folder).constData()); }

    void useDisk(const char *size)
    {
        const QByteArray options = QByteArray("size=") + size;
        ASSERT_EQ(mount("disk", QFile::encodeName(files.folder).constData(), "tmpfs", 0,
                      options.constData()),
            0);
        makeLive(10);
        serveRealFile();
    }

    const LogCapture log;
};

TEST_F(FullDiskRefresh, FailsWithoutRoomForTheText)
{
    useDisk("2m");
    RefreshingUser user(files);
    user.refresh();
    EXPECT_EQ(user.labels.last(), "Parsing file failed..."_L1);
    EXPECT_EQ(user.database.count(), 10);
}

TEST_F(FullDiskRefresh, FailsWithoutRoomForTheNewDatabase)
{
    useDisk("5m");
    RefreshingUser user(files);
    user.refresh();
    EXPECT_EQ(user.labels.last(), "Parsing file failed..."_L1);
    EXPECT_EQ(user.database.count(), 10);
    expectFiles({u"oui.csv"_s, u"oui.db"_s});
}

TEST_F(FullDiskRefresh, FailsAndCompletesWithoutRoomForTheLiveDatabase)
{
    useDisk("8m");
    RefreshingUser user(files);
    user.refreshToCompletion();
    ASSERT_GE(user.labels.size(), 2);
    EXPECT_EQ(user.labels.at(user.labels.size() - 2), "Parsing file failed..."_L1);
    EXPECT_EQ(user.database.count(), 0) << "cut short, it answers nothing";
    expectFiles({u"oui.db"_s});
    // A smaller registry has room, and mends it.
    serve({}, registryOf(20));
    user.refresh();
    EXPECT_EQ(user.database.count(), 20);
}

} // namespace
} // namespace quillon::test
