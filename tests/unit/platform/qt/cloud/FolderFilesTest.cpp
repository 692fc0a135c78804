// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/cloud/FolderFiles.h"

#include "fakes/QtPrinting.h"
#include "integration/cloud/Answers.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gmock/gmock.h>

#include <csignal>
#include <ctime>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

class FolderFilesTest : public ::testing::Test
{
protected:
    QString path(const QString &name) const { return folder.filePath(name); }
    void put(const QString &name, const QByteArray &bytes, std::time_t seconds) const
    {
        QFile file(path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(bytes), bytes.size());
        file.close();
        const timespec times[]{{seconds, 0}, {seconds, 0}};
        ASSERT_EQ(::utimensat(AT_FDCWD, QFile::encodeName(path(name)).constData(), times, 0), 0);
    }

    /// What this process has read so far, as the kernel counts it.
    static qint64 bytesRead()
    {
        QFile file(u"/proc/self/io"_s);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readLine().mid(QByteArray("rchar: ").size()).trimmed().toLongLong();
    }

    QTemporaryDir folder;
    qint64 now = std::time(nullptr);
    FolderFiles files{folder.path(), [this] { return now; }};
};

/// Another program that writes until it is killed.
pid_t writeOn(const QString &folder, int round)
{
    const pid_t child = ::fork();
    if (child == 0) {
        FolderFiles files(folder, [] { return std::time(nullptr); });
        for (int number = 0;; ++number) {
            const QByteArray bytes(20'000, static_cast<char>('a' + number % 26));
            files.replace(u"head"_s, bytes, {});
            files.create(u"%1-%2.change"_s.arg(round).arg(number), bytes);
        }
    }
    return child;
}

TEST_F(FolderFilesTest, AKillLeavesWholeFilesOrNone)
{
    constexpr int rounds = 20;
    int found = 0;
    for (int round = 0; round < rounds; ++round) {
        const pid_t child = writeOn(folder.path(), round);
        ASSERT_GT(child, 0);
        const QString first = path(u"%1-0.change"_s.arg(round));
        EXPECT_TRUE(eventually([&] { return QFile::exists(first); }));
        ::usleep(static_cast<useconds_t>(300 * round));
        ASSERT_EQ(::kill(child, SIGKILL), 0);
        ASSERT_EQ(::waitpid(child, nullptr, 0), child);
    }
    for (const CloudFile &file : valueOf(files.list())) {
        EXPECT_EQ(file.size, 20'000) << file.name.toStdString();
        const QByteArray bytes = valueOf(files.read(file.name, {}, 100'000))->bytes;
        EXPECT_EQ(bytes.count(bytes.at(0)), 20'000) << file.name.toStdString();
        ++found;
    }
    EXPECT_GT(found, rounds);
}

TEST_F(FolderFilesTest, ARevisionIsKnownUntilTheFileLooksDifferent)
{
    constexpr std::time_t longAgo = 1'000'000;
    put(u"head"_s, "first", longAgo);
    const QByteArray first = valueOf(files.list()).value(0).revision;
    EXPECT_EQ(valueOf(files.list()).value(0).revision, first);
    put(u"head"_s, "other", longAgo);
    const QByteArray other = valueOf(files.list()).value(0).revision;
    EXPECT_NE(other, first) << "of the same length, with the same time";
    EXPECT_EQ(valueOf(files.read(u"head"_s, {}, 100))->revision, other);
    ASSERT_TRUE(QFile::remove(path(u"head"_s)));
    EXPECT_TRUE(valueOf(files.list()).isEmpty());
}

TEST_F(FolderFilesTest, AFileIsReadOnceForItsListing)
{
    constexpr qint64 size = 4 << 20;
    valueOf(files.create(u"head"_s, QByteArray(size, 'x')));
    const auto listed = [this] {
        const qint64 before = bytesRead();
        valueOf(files.list());
        return bytesRead() - before;
    };
    EXPECT_GE(listed(), size);
    EXPECT_GE(listed(), size) << "it may be written to again within the same second";
    now += 10;
    EXPECT_GE(listed(), size);
    EXPECT_LT(listed(), size / 4);
    valueOf(files.replace(u"head"_s, QByteArray(size, 'y'), {}));
    EXPECT_GE(listed(), size);
}

TEST_F(FolderFilesTest, ItsFilesAreTheUsersAlone)
{
    valueOf(files.create(u"key"_s, "secret"));
    struct ::stat look = {};
    ASSERT_EQ(::stat(QFile::encodeName(path(u"key"_s)).constData(), &look), 0);
    EXPECT_EQ(look.st_mode & 0777, 0600U);
}

TEST_F(FolderFilesTest, AFolderReachedByALinkIsTheFolder)
{
    ASSERT_TRUE(QDir(folder.path()).mkdir(u"real"_s));
    ASSERT_EQ(::symlink("real", QFile::encodeName(path(u"link"_s)).constData()), 0);
    FolderFiles linked(path(u"link"_s), [this] { return now; });
    valueOf(linked.create(u"key"_s, "x"));
    EXPECT_TRUE(QFile::exists(path(u"real/key"_s)));
}

} // namespace
} // namespace quillon::test
