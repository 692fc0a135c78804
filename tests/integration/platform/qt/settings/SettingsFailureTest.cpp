// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "SettingsFileTest.h"
#include "base/SettingsKeys.h"

#include <sys/mount.h>
#include <sys/stat.h>
#include <unistd.h>

namespace quillon {

using namespace Qt::StringLiterals;
namespace {

using namespace std::chrono_literals;
using Kind = SettingsProblem::Kind;

/// The rights of an ordinary user, whom the file system can refuse something.
class OrdinaryUser
{
public:
    OrdinaryUser() { EXPECT_EQ(::setresuid(65534, 65534, 0), 0); }
    ~OrdinaryUser() { EXPECT_EQ(::setresuid(0, 0, 0), 0); }
    OrdinaryUser(const OrdinaryUser &) = delete;
    OrdinaryUser &operator=(const OrdinaryUser &) = delete;
};

/// As root in a sandbox, because only root may mount; the store runs as an ordinary user.
class SettingsFailure : public test::SettingsFileTest
{
protected:
    SettingsFailure()
    {
        EXPECT_EQ(::chown(QFile::encodeName(folder.path()).constData(), 65534, 65534), 0);
        user = std::make_unique<OrdinaryUser>();
    }
    ~SettingsFailure() override
    {
        store.reset();
        user.reset();
    }
    void setRights(const QString &name, mode_t mode)
    {
        ASSERT_EQ(::chmod(QFile::encodeName(name).constData(), mode), 0);
    }
    void expectKept(const QByteArray &bytes)
    {
        ASSERT_TRUE(problemIs(Kind::Damaged));
        EXPECT_EQ(read(problems.front().keptPath), bytes);
        EXPECT_FALSE(QFile::exists(path));
    }

    std::unique_ptr<OrdinaryUser> user;
};

TEST_F(SettingsFailure, ADamagedFileIsKeptBesideAndTheDefaultsServe)
{
    ASSERT_TRUE(write(path, "scribble"));
    openStore();
    store->registerDefaults({{keys::showInMenu, true}});
    expectKept("scribble");
    EXPECT_EQ(problems.front().error.domain, propertyListErrorDomain);
    EXPECT_TRUE(store->getBool(keys::showInMenu));
    store->setBool(keys::hideDock, true);
    EXPECT_TRUE(store->flush());
    EXPECT_EQ(content(), QVariantMap({{keys::hideDock, true}}));
    EXPECT_EQ(read(problems.front().keptPath), "scribble");
}

TEST_F(SettingsFailure, AnEarlierKeptFileIsNeverOverwritten)
{
    ASSERT_TRUE(write(path, "first"));
    openStore();
    ASSERT_TRUE(write(path, "second"));
    reopenStore();
    ASSERT_EQ(problems.size(), 2U);
    EXPECT_NE(problems.at(0).keptPath, problems.at(1).keptPath);
    EXPECT_EQ(read(problems.at(0).keptPath), "first");
    EXPECT_EQ(read(problems.at(1).keptPath), "second");
}

TEST_F(SettingsFailure, ATruncatedAnEmptyAndANestedFileAreDamaged)
{
    const QByteArray whole = xmlPropertyList({{keys::hideDock, true}});
    const QByteArray nested = "<plist><dict><key>a</key>" + QByteArray("<array>").repeated(300'000);
    const QByteArray notADictionary = "<plist><array/></plist>";
    const QByteArray badDate = "<plist><dict><key>a</key><date>soon</date></dict></plist>";
    for (const QByteArray &bytes :
        {whole.left(whole.size() - 20), QByteArray(""), nested, notADictionary, badDate}) {
        problems.clear();
        ASSERT_TRUE(write(path, bytes));
        openStore();
        expectKept(bytes);
        store.reset();
    }
}

TEST_F(SettingsFailure, AHugeFileIsKeptBesideUnread)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.resize(propertyListFileLimit + 1));
    file.close();
    openStore();
    ASSERT_TRUE(problemIs(Kind::Damaged));
    EXPECT_EQ(problems.front().error.code, EFBIG);
    EXPECT_EQ(QFileInfo(problems.front().keptPath).size(), propertyListFileLimit + 1);
}

TEST_F(SettingsFailure, ADamagedFileThatCannotBeSetAsideIsNotReplaced)
{
    ASSERT_TRUE(write(path, "scribble"));
    setRights(folder.path(), 0500);
    openStore();
    ASSERT_EQ(problems.size(), 2U);
    EXPECT_EQ(problems.at(0).kind, Kind::Damaged);
    EXPECT_TRUE(problems.at(0).keptPath.isEmpty());
    EXPECT_EQ(problems.at(1).kind, Kind::NotWritable);
    store->setBool(keys::hideDock, true);
    EXPECT_FALSE(store->flush());
    EXPECT_EQ(read(path), "scribble");
    EXPECT_TRUE(store->getBool(keys::hideDock));
    scheduler.advance(10s);
    EXPECT_FALSE(scheduler.hasTimers()) << "it is not looked at for ever";
    EXPECT_EQ(waited, 1s) << "once, at the start";
    EXPECT_EQ(problems.size(), 2U);

    setRights(folder.path(), 0700);
    EXPECT_TRUE(store->flush());
    scheduler.runPending();
    ASSERT_EQ(problems.size(), 3U);
    EXPECT_EQ(read(problems.at(2).keptPath), "scribble");
    EXPECT_EQ(content(), QVariantMap({{keys::hideDock, true}}));
}

TEST_F(SettingsFailure, AFileThatCannotBeReadIsNeverOverwritten)
{
    const QByteArray bytes =
        xmlPropertyList({{keys::defaultTimerMinutes, 5}, {keys::hideDock, true}});
    ASSERT_TRUE(write(path, bytes));
    setRights(path, 0);
    openStore();
    store->registerDefaults({{keys::defaultTimerMinutes, 30}});
    ASSERT_TRUE(problemIs(Kind::Unreadable));
    EXPECT_EQ(problems.front().error.code, EACCES);
    EXPECT_EQ(store->getInteger(keys::defaultTimerMinutes), 30);
    store->setBool(keys::hideDock, false);
    EXPECT_FALSE(store->flush());
    scheduler.advance(10s);
    EXPECT_EQ(problems.size(), 1U) << "told once until it is over";
    EXPECT_TRUE(others().isEmpty());
    EXPECT_FALSE(scheduler.hasTimers());

    setRights(path, 0600);
    EXPECT_EQ(read(path), bytes);
    EXPECT_TRUE(storeSoonHas(keys::defaultTimerMinutes, 5LL)) << "its becoming readable is noticed";
    EXPECT_TRUE(store->flush());
    const QVariantMap merged{{keys::defaultTimerMinutes, 5LL}, {keys::hideDock, false}};
    EXPECT_EQ(content(), merged);

    setRights(path, 0);
    store->flush();
    scheduler.runPending();
    EXPECT_EQ(problems.size(), 2U) << "a new problem of the same kind is told again";
    setRights(path, 0600);
}

TEST_F(SettingsFailure, AReadOnlyFolderKeepsTheOldFileAndTheValuesWaitInMemory)
{
    replacedByAnother({{keys::defaultTimerMinutes, 5}});
    const QByteArray before = read(path);
    setRights(folder.path(), 0500);
    openStore();
    store->set(keys::defaultTimerMinutes, 6);
    EXPECT_FALSE(store->flush());
    EXPECT_FALSE(store->flush());
    scheduler.advance(10s);
    ASSERT_TRUE(problemIs(Kind::NotWritable));
    EXPECT_EQ(problems.front().error.code, EACCES);
    EXPECT_EQ(store->getInteger(keys::defaultTimerMinutes), 6);
    EXPECT_EQ(read(path), before);

    setRights(folder.path(), 0700);
    EXPECT_TRUE(store->flush());
    EXPECT_EQ(content().value(keys::defaultTimerMinutes), QVariant(6LL));
}

TEST_F(SettingsFailure, WhatCannotBeWrittenInTheBackgroundIsToldAndGoesOutWithTheNextCall)
{
    replacedByAnother({{keys::defaultTimerMinutes, 5}});
    openStore();
    setRights(folder.path(), 0500);
    store->set(keys::defaultTimerMinutes, 6);
    store->synchronize();
    EXPECT_TRUE(problems.empty());
    scheduler.advance(50ms);
    EXPECT_TRUE(problemIs(Kind::NotWritable));
    EXPECT_FALSE(scheduler.hasTimers()) << "it is not tried for ever";
    setRights(folder.path(), 0700);
    store->synchronize();
    scheduler.advance(50ms);
    EXPECT_EQ(content().value(keys::defaultTimerMinutes), QVariant(6LL));
    EXPECT_EQ(problems.size(), 1U);
}

TEST_F(SettingsFailure, AFolderWhoseNamesCannotBeWaitedForIsWrittenToAllTheSame)
{
    setRights(folder.path(), 0300);
    openStore();
    store->set(keys::defaultTimerMinutes, 6);
    EXPECT_TRUE(store->flush());
    scheduler.runPending();
    EXPECT_TRUE(problems.empty());
    setRights(folder.path(), 0700);
    EXPECT_EQ(content().value(keys::defaultTimerMinutes), QVariant(6LL));
    EXPECT_TRUE(others().isEmpty());
}

TEST_F(SettingsFailure, AReadOnlyFileIsRespected)
{
    replacedByAnother({{keys::defaultTimerMinutes, 5}});
    setRights(path, 0400);
    openStore();
    store->set(keys::defaultTimerMinutes, 6);
    EXPECT_FALSE(store->flush());
    scheduler.runPending();
    EXPECT_TRUE(problemIs(Kind::NotWritable));
    EXPECT_EQ(content().value(keys::defaultTimerMinutes), QVariant(5LL));
}

TEST_F(SettingsFailure, AFolderInTheFilesPlaceIsLeftAlone)
{
    ASSERT_TRUE(QDir().mkpath(path + u"/inside"_s));
    openStore();
    ASSERT_TRUE(problemIs(Kind::Unreadable));
    EXPECT_EQ(problems.front().error.code, EISDIR);
    store->setBool(keys::hideDock, true);
    EXPECT_FALSE(store->flush());
    EXPECT_TRUE(QFileInfo(path + u"/inside"_s).isDir());
}

TEST_F(SettingsFailure, APipeInTheFilesPlaceDoesNotHoldUpTheProgram)
{
    ASSERT_EQ(::mkfifo(QFile::encodeName(path).constData(), 0600), 0);
    openStore();
    EXPECT_TRUE(problemIs(Kind::Unreadable));
    store->setBool(keys::hideDock, true);
    EXPECT_FALSE(store->flush());
}

TEST_F(SettingsFailure, MoreThanTheFileMayHoldIsNotWritten)
{
    replacedByAnother({{keys::defaultTimerMinutes, 5}});
    openStore();
    store->set(u"giant"_s, QByteArray(propertyListFileLimit, 'x'));
    EXPECT_FALSE(store->flush());
    scheduler.runPending();
    ASSERT_TRUE(problemIs(Kind::NotWritable));
    EXPECT_EQ(content().value(keys::defaultTimerMinutes), QVariant(5LL));
    store->set(u"giant"_s, QVariant());
    EXPECT_TRUE(store->flush());
}

TEST_F(SettingsFailure, AFullDiskKeepsTheOldFileAndTheValuesWaitInMemory)
{
    user.reset();
    const QByteArray disk = QFile::encodeName(folder.path());
    ASSERT_EQ(::mount("tmpfs", disk.constData(), "tmpfs", 0, "size=64k,mode=0777"), 0);
    user = std::make_unique<OrdinaryUser>();
    replacedByAnother({{keys::defaultTimerMinutes, 5}});
    openStore();
    const QString ballast = folder.filePath(u"ballast"_s);
    QFile filler(ballast);
    ASSERT_TRUE(filler.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
    while (filler.write(QByteArray(1024, 'x')) > 0) {
    }
    filler.close();

    store->set(keys::defaultTimerMinutes, 6);
    EXPECT_FALSE(store->flush());
    EXPECT_FALSE(store->flush());
    scheduler.runPending();
    ASSERT_TRUE(problemIs(Kind::DiskFull));
    EXPECT_EQ(problems.front().error.code, ENOSPC);
    EXPECT_EQ(store->getInteger(keys::defaultTimerMinutes), 6);
    EXPECT_EQ(content().value(keys::defaultTimerMinutes), QVariant(5LL));
    EXPECT_EQ(others(), QStringList({u"ballast"_s})) << "nothing half-written is left";

    ASSERT_TRUE(QFile::remove(ballast));
    EXPECT_TRUE(store->flush());
    EXPECT_EQ(content().value(keys::defaultTimerMinutes), QVariant(6LL));
    store.reset();
    user.reset();
    EXPECT_EQ(::umount2(disk.constData(), MNT_DETACH), 0);
}

} // namespace
} // namespace quillon
