// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/DurableFolder.h"

#include "fakes/LogCapture.h"
#include "fakes/QtPrinting.h"
#include "fakes/SyncedPaths.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <cerrno>

namespace quillon {

using namespace Qt::StringLiterals;
namespace {

class DurableFolder : public ::testing::Test
{
protected:
    DurableFolder() { test::syncedPaths().clear(); }
    ~DurableFolder() override { test::syncError() = 0; }

    QTemporaryDir folder;
};

TEST_F(DurableFolder, IsMadeWithThoseAboveAndEachNameIsOnTheDisk)
{
    const QString path = folder.filePath(u"a/b/c"_s);
    EXPECT_FALSE(makeFolder(path));
    EXPECT_TRUE(QFileInfo(path).isDir());
    EXPECT_EQ(test::syncedPaths(),
        QStringList({folder.path(), folder.filePath(u"a"_s), folder.filePath(u"a/b"_s)}));
}

TEST_F(DurableFolder, ThatIsThereStaysAsItIs)
{
    const auto before = QFile::permissions(folder.path());
    EXPECT_FALSE(makeFolder(folder.path(), QFileDevice::ReadOwner));
    EXPECT_EQ(QFile::permissions(folder.path()), before);
    EXPECT_TRUE(test::syncedPaths().isEmpty());
}

TEST_F(DurableFolder, HasThePermissionsThatWereAskedForAndThoseAboveHaveNot)
{
    const auto owner = QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner;
    EXPECT_FALSE(makeFolder(folder.filePath(u"a/b"_s), owner));
    const auto others = QFileDevice::ReadOther | QFileDevice::ExeOther | QFileDevice::ReadGroup |
                        QFileDevice::ExeGroup;
    EXPECT_FALSE(QFile::permissions(folder.filePath(u"a/b"_s)) & others);
    EXPECT_TRUE(QFile::permissions(folder.filePath(u"a"_s)) & others);
}

TEST_F(DurableFolder, ThatCannotBeMadeSaysWhy)
{
    QFile file(folder.filePath(u"file"_s));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    const auto error = makeFolder(folder.filePath(u"file/below"_s));
    ASSERT_TRUE(error);
    EXPECT_EQ(error->domain, posixErrorDomain);
    EXPECT_EQ(error->code, ENOTDIR);
}

TEST_F(DurableFolder, IsMadeWhereTheDiskCannotBeWaitedFor)
{
    const test::LogCapture log;
    for (const int code : {EIO, EROFS, EACCES, ENOTSUP, EINVAL}) {
        test::syncError() = code;
        const QString path = folder.filePath(u"%1/below"_s.arg(code));
        EXPECT_FALSE(makeFolder(path)) << code;
        EXPECT_TRUE(QFileInfo(path).isDir()) << code;
        const bool isNews = code != ENOTSUP && code != EINVAL;
        EXPECT_EQ(test::LogCapture::taken().size(), isNews ? 2 : 0) << code;
    }
    syncFolder(folder.filePath(u"nowhere"_s));
    EXPECT_EQ(test::LogCapture::taken().size(), 1);
}

} // namespace
} // namespace quillon
