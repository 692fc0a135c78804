// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/exposure/BoundedFile.h"

#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <sys/stat.h>

namespace quillon::test {

using namespace Qt::StringLiterals;

namespace {

class BoundedFileTest : public testing::Test
{
protected:
    QString path(const QString &name) const { return folder.filePath(name); }

    QTemporaryDir folder;
};

TEST_F(BoundedFileTest, ReadsNoMoreThanItMay)
{
    QFile file(path(u"file"_s));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(QByteArray(1000, 'x'));
    file.close();
    EXPECT_EQ(readBounded(path(u"file"_s)).value_or(QByteArray()).size(), 1000);
    EXPECT_EQ(readBounded(path(u"file"_s), 10), QByteArray(10, 'x'));
}

TEST_F(BoundedFileTest, ReadsFilesThatSayThatTheyAreEmpty)
{
    EXPECT_FALSE(readBounded(u"/proc/self/cmdline"_s).value_or(QByteArray()).isEmpty());
}

TEST_F(BoundedFileTest, ReadsNothingElse)
{
    EXPECT_EQ(readBounded(path(u"none"_s)), std::nullopt);
    EXPECT_EQ(readBounded(folder.path()), std::nullopt);
    EXPECT_EQ(readBounded(u"/dev/zero"_s), std::nullopt);
    ASSERT_EQ(mkfifo(QFile::encodeName(path(u"pipe"_s)).constData(), 0600), 0);
    EXPECT_EQ(readBounded(path(u"pipe"_s)), std::nullopt) << "and does not wait for anybody";
}

} // namespace
} // namespace quillon::test
