// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/cloud/FolderStorage.h"

#include "fakes/QtPrinting.h"
#include "integration/cloud/Answers.h"
#include "platform/qt/QtScheduler.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gmock/gmock.h>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class FolderStorageTest : public ::testing::Test
{
protected:
    ~FolderStorageTest() override { scheduler.shutDown(); }

    QString path(const QString &name) const { return folder.filePath(name); }
    void put(const QString &name, const QByteArray &bytes) const
    {
        QFile file(path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(bytes), bytes.size());
    }
    QByteArray onDisk(const QString &name) const
    {
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(none)");
    }
    QStringList allNames() const
    {
        return QDir(folder.path())
            .entryList(
                QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Name);
    }
    QStringList listed() const
    {
        QStringList names;
        for (const CloudFile &file : valueOf(asked.list())) {
            names << file.name;
        }
        names.sort();
        return names;
    }
    static void setTime(const QString &path, std::time_t seconds)
    {
        const timespec times[]{{seconds, 0}, {seconds, 0}};
        ASSERT_EQ(::utimensat(AT_FDCWD, QFile::encodeName(path).constData(), times, 0), 0);
    }

    QTemporaryDir folder;
    QtScheduler scheduler;
    FolderStorage storage{scheduler, folder.path()};
    Asked asked{storage};
};

TEST_F(FolderStorageTest, WhatIsWrittenIsReadAndListed)
{
    const QByteArray bytes("\0\r\n\xff secret", 11);
    const QByteArray revision = valueOf(asked.create(u"key"_s, bytes));
    EXPECT_EQ(onDisk(u"key"_s), bytes);
    const CloudStorage::Content content = valueOf(asked.read(u"key"_s));
    EXPECT_EQ(content.bytes, bytes);
    EXPECT_EQ(content.revision, revision);
    const QList<CloudFile> files = valueOf(asked.list());
    ASSERT_EQ(files.size(), 1);
    EXPECT_EQ(files.front().size, bytes.size());
    EXPECT_EQ(files.front().revision, revision);
    EXPECT_THAT(allNames(), ElementsAre(u"key"_s));
    EXPECT_EQ(problemIn(asked.remove(u"key"_s)), std::nullopt);
    EXPECT_EQ(problemIn(asked.remove(u"key"_s)), std::nullopt) << "it is gone already";
    EXPECT_EQ(problemIn(asked.read(u"key"_s)), CloudProblem::NotThere);
    EXPECT_THAT(allNames(), IsEmpty());
}

TEST_F(FolderStorageTest, AFileIsMadeOnce)
{
    valueOf(asked.create(u"key"_s, "first"));
    EXPECT_EQ(problemIn(asked.create(u"key"_s, "second")), CloudProblem::Changed);
    EXPECT_EQ(onDisk(u"key"_s), "first");
    EXPECT_THAT(allNames(), ElementsAre(u"key"_s)) << "nothing is left of the second";
}

TEST_F(FolderStorageTest, AFileIsReplacedUnlessItIsAnotherOne)
{
    const QByteArray first = valueOf(asked.create(u"head"_s, "first"));
    const QByteArray second = valueOf(asked.replace(u"head"_s, "second", first));
    EXPECT_NE(first, second);
    EXPECT_EQ(problemIn(asked.replace(u"head"_s, "third", first)), CloudProblem::Changed);
    EXPECT_EQ(onDisk(u"head"_s), "second");
    valueOf(asked.replace(u"head"_s, "fourth"));
    EXPECT_EQ(onDisk(u"head"_s), "fourth");
    EXPECT_EQ(problemIn(asked.replace(u"none"_s, "x", first)), CloudProblem::Changed);
    EXPECT_THAT(allNames(), ElementsAre(u"head"_s));
}

TEST_F(FolderStorageTest, OnlyWhatHasChangedIsRead)
{
    const QByteArray first = valueOf(asked.create(u"head"_s, "first"));
    EXPECT_FALSE(valueOf(asked.readIfChanged(u"head"_s, first)));
    put(u"head"_s, "other");
    EXPECT_EQ(valueOf(asked.readIfChanged(u"head"_s, first))->bytes, "other");
}

TEST_F(FolderStorageTest, OtherBytesOfTheSameLengthInTheSameSecondHaveAnotherRevision)
{
    put(u"head"_s, "first");
    setTime(path(u"head"_s), 1'000'000);
    const QByteArray first = valueOf(asked.list()).value(0).revision;
    put(u"head"_s, "other");
    setTime(path(u"head"_s), 1'000'000);
    EXPECT_NE(valueOf(asked.list()).value(0).revision, first);
}

TEST_F(FolderStorageTest, WhatIsNoPlainFileIsNotThere)
{
    put(u"outside name"_s, "secret");
    ASSERT_EQ(::symlink("outside name", QFile::encodeName(path(u"link"_s)).constData()), 0);
    ASSERT_EQ(::symlink("/dev/zero", QFile::encodeName(path(u"zero"_s)).constData()), 0);
    ASSERT_EQ(::mkfifo(QFile::encodeName(path(u"pipe"_s)).constData(), 0600), 0);
    ASSERT_TRUE(QDir(folder.path()).mkdir(u"folder"_s));
    EXPECT_THAT(listed(), IsEmpty());
    for (const QString &name : {u"link"_s, u"zero"_s, u"pipe"_s, u"folder"_s}) {
        EXPECT_EQ(problemIn(asked.read(name)), CloudProblem::NotThere) << name.toStdString();
        EXPECT_EQ(problemIn(asked.create(name, "x")), CloudProblem::Changed) << name.toStdString();
    }
    valueOf(asked.replace(u"link"_s, "mine"));
    EXPECT_EQ(onDisk(u"outside name"_s), "secret") << "the link itself was replaced";
    EXPECT_EQ(onDisk(u"link"_s), "mine");
}

TEST_F(FolderStorageTest, NamesThatLeadElsewhereAreNone)
{
    for (const QString &name : {u""_s, u"."_s, u".."_s, u"a/b"_s, u"../a"_s, u".hidden"_s, u"ä"_s,
             u"a\nb"_s, QString(129, u'a'), QString(u"a"_s + QChar(0))}) {
        EXPECT_EQ(problemIn(asked.read(name)), CloudProblem::NotThere);
        EXPECT_EQ(problemIn(asked.create(name, "x")), CloudProblem::NotAllowed);
        EXPECT_EQ(problemIn(asked.replace(name, "x")), CloudProblem::NotAllowed);
        EXPECT_EQ(problemIn(asked.remove(name)), std::nullopt);
    }
    EXPECT_THAT(allNames(), IsEmpty());
}

TEST_F(FolderStorageTest, CopiesThatSynchronizingMadeAreLeftOut)
{
    for (const QString &name : {u"head"_s, u"head.sync-conflict-20260101-120000-ABCDEFG"_s,
             u"head (conflicted copy 2026-01-01)"_s, u".syncthing.head.tmp"_s, u"~head.tmp"_s}) {
        put(name, "x");
    }
    EXPECT_THAT(listed(), ElementsAre(u"head"_s));
}

TEST_F(FolderStorageTest, WhatAKillLeftBehindIsNotShownAndRemovedWhenItIsOld)
{
    put(u"~quillon-new.tmp"_s, "x");
    put(u"~quillon-old.tmp"_s, "x");
    setTime(path(u"~quillon-old.tmp"_s), 1'000'000);
    EXPECT_THAT(listed(), IsEmpty());
    EXPECT_THAT(allNames(), ElementsAre(u"~quillon-new.tmp"_s));
}

TEST_F(FolderStorageTest, ALongFileIsTooLarge)
{
    put(u"head"_s, QByteArray(1001, 'x'));
    EXPECT_EQ(problemIn(asked.read(u"head"_s, 1000)), CloudProblem::TooLarge);
    EXPECT_EQ(valueOf(asked.read(u"head"_s, 1001)).bytes.size(), 1001);
}

TEST_F(FolderStorageTest, AFileOfManyGigabytesIsNeitherReadNorHashed)
{
    QFile file(path(u"head"_s));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_TRUE(file.resize(qint64(1) << 42));
    EXPECT_EQ(problemIn(asked.read(u"head"_s)), CloudProblem::TooLarge);
    const QList<CloudFile> files = valueOf(asked.list());
    ASSERT_EQ(files.size(), 1);
    EXPECT_EQ(files.front().size, qint64(1) << 42);
    EXPECT_EQ(files.front().revision, QByteArray());
}

TEST_F(FolderStorageTest, AFolderThatIsMissingIsUnreachableAndNotMade)
{
    FolderStorage other(scheduler, path(u"missing"_s));
    const Asked asking(other);
    EXPECT_EQ(problemIn(asking.list()), CloudProblem::Unreachable);
    EXPECT_EQ(problemIn(asking.read(u"key"_s)), CloudProblem::Unreachable);
    EXPECT_EQ(problemIn(asking.create(u"key"_s, "x")), CloudProblem::Unreachable);
    EXPECT_EQ(problemIn(asking.remove(u"key"_s)), CloudProblem::Unreachable);
    EXPECT_THAT(allNames(), IsEmpty());
    put(u"missing"_s, "a file");
    EXPECT_EQ(problemIn(asking.list()), CloudProblem::NotAnAccount);
}

TEST_F(FolderStorageTest, AReaderNeverSeesHalfAFile)
{
    constexpr int rounds = 60;
    const auto whole = [](int round) { return QByteArray(300'000, char('a' + round % 26)); };
    valueOf(asked.create(u"head"_s, whole(0)));
    FolderStorage other(scheduler, folder.path());
    const Asked asking(other);
    int written = 0;
    for (int round = 1; round <= rounds; ++round) {
        storage.replace(u"head"_s, whole(round), {}, [&](const auto &) { ++written; });
        const QByteArray bytes = valueOf(asking.read(u"head"_s)).bytes;
        EXPECT_EQ(bytes.size(), 300'000);
        EXPECT_EQ(bytes.count(bytes.at(0)), bytes.size());
    }
    EXPECT_TRUE(eventually([&] { return written == rounds; }));
}

TEST_F(FolderStorageTest, OfManyWhoMakeAFileOneDoes)
{
    std::vector<std::unique_ptr<FolderStorage>> writers;
    int made = 0;
    int refused = 0;
    for (int number = 0; number < 16; ++number) {
        writers.push_back(std::make_unique<FolderStorage>(scheduler, folder.path()));
        writers.back()->create(u"key"_s, QByteArray::number(number),
            [&](const auto &result) { ++(problemIn(result) ? refused : made); });
    }
    EXPECT_TRUE(eventually([&] { return made + refused == 16; }));
    EXPECT_EQ(made, 1);
    EXPECT_THAT(allNames(), ElementsAre(u"key"_s));
}

TEST_F(FolderStorageTest, NothingIsAnsweredWhenItHasGone)
{
    int answers = 0;
    auto other = std::make_unique<FolderStorage>(scheduler, folder.path());
    other->list([&](const auto &) { ++answers; });
    other->create(u"key"_s, "x", [&](const auto &) { ++answers; });
    other.reset();
    valueOf(asked.list());
    EXPECT_EQ(answers, 0);
    EXPECT_FALSE(eventually([&] { return answers > 0; }, std::chrono::milliseconds(50)));
}

TEST_F(FolderStorageTest, AnAnswerMayDestroyIt)
{
    auto other = std::make_unique<FolderStorage>(scheduler, folder.path());
    int answers = 0;
    other->list([&](const auto &) {
        ++answers;
        other.reset();
    });
    other->list([&](const auto &) { ++answers; });
    EXPECT_TRUE(eventually([&] { return answers > 0; }));
    valueOf(asked.list());
    EXPECT_EQ(answers, 1);
}

TEST_F(FolderStorageTest, ItSaysWhenSomethingChanged)
{
    int changes = 0;
    storage.watch([&] { ++changes; });
    put(u"a"_s, "x");
    put(u"b"_s, "x");
    EXPECT_TRUE(eventually([&] { return changes > 0; }));
    EXPECT_EQ(changes, 1) << "a burst is one";
    ASSERT_TRUE(QFile::remove(path(u"a"_s)));
    EXPECT_TRUE(eventually([&] { return changes > 1; }));
    ASSERT_TRUE(QFile::rename(path(u"b"_s), path(u"c"_s)));
    EXPECT_TRUE(eventually([&] { return changes > 2; }));
}

} // namespace
} // namespace quillon::test
