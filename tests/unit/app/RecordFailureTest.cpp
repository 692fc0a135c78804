// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/RecordFailure.h"

#include "fakes/FakeAlertPresenter.h"
#include "fakes/FakeSettingsStore.h"
#include "platform/desktop/AlertPresenter.h"
#include "store/model/RecordFileError.h"
#include "unit/store/RecordStoreFixture.h"

#include <QDir>
#include <QFile>

#include <SQLiteCpp/SQLiteCpp.h>
#include <csignal>
#include <cstdio>
#include <unistd.h>

namespace quillon {

using namespace Qt::StringLiterals;
namespace {

QString reason(RecordFileError code)
{
    return reasonOf(recordFileError(code, u"as SQLite says it"_s));
}

TEST(RecordFailure, WhatTheUserCanMendIsSaidInHisWords)
{
    EXPECT_EQ(reason(RecordFileError::Full), u"There is no room left on the disk."_s);
    EXPECT_EQ(reason(RecordFileError::Locked), u"Another program is using the file."_s);
    EXPECT_EQ(reason(RecordFileError::InputOutput), u"The disk could not be read or written."_s);
}

TEST(RecordFailure, EverythingElseSpeaksForItself)
{
    EXPECT_EQ(reason(RecordFileError::Failed), u"as SQLite says it"_s);
    EXPECT_EQ(reason(RecordFileError::CannotOpen), u"as SQLite says it"_s);
    // The same number in another domain means something else.
    const Error other{posixErrorDomain, static_cast<int>(RecordFileError::Full), u"x"_s};
    EXPECT_EQ(reasonOf(other), u"x"_s);
}

TEST(RecordFailure, TheSettingsAreOnTheDiskBeforeTheUserIsAskedAndAfterwards)
{
    test::FakeScheduler scheduler;
    test::FakeSettingsStore settings{scheduler};
    test::FakeAlertPresenter alerts;
    QStringList whenAsked;
    alerts.whileShown = [&] {
        whenAsked = settings.journal();
        settings.set(u"changed"_s, true);
    };
    presentOpenFailure(
        settings, alerts, recordFileError(RecordFileError::Damaged, u"x"_s), u"/file"_s);
    EXPECT_EQ(whenAsked, QStringList(u"flush"_s));
    EXPECT_EQ(settings.journal().size(), 3);
    EXPECT_EQ(settings.journal().last(), u"flush"_s) << "what changed meanwhile as well";
}

/// A user whose alerts can be read on standard error, where death tests look.
class AlertsOnStandardError : public AlertPresenter
{
public:
    int runModal(const Alert &alert) override
    {
        std::fprintf(stderr, "ALERT %s | %s | %s\n", qUtf8Printable(alert.message),
            qUtf8Printable(alert.informativeText.simplified()),
            qUtf8Printable(alert.buttons.join(u',')));
        return 0;
    }
    bool presentError(const Error &error) override
    {
        std::fprintf(stderr, "PRESENTED %s\n", qUtf8Printable(error.message));
        return false;
    }
};

/// Records that cannot be opened. What the user is told is on standard error.
class RecordFailureDeathTest : public test::RecordStoreTest
{
protected:
    // A fork shares the folder with us, so that what it leaves behind can be looked at; there are
    // no threads that could hang it.
    RecordFailureDeathTest() { GTEST_FLAG_SET(death_test_style, "fast"); }

    RecordStore records(const QString &inFolder)
    {
        return {scheduler, inFolder, [this](const Error &error, const QString &where) {
                    presentOpenFailure(settings, shown, error, where);
                }};
    }
    void open(const QString &inFolder) { records(inFolder).managedObjectContext(); }
    static bool write(const QString &file, const QByteArray &bytes)
    {
        QFile out(file);
        return out.open(QIODevice::WriteOnly) && out.write(bytes) == bytes.size();
    }
    static QByteArray read(const QString &file)
    {
        QFile in(file);
        return in.open(QIODevice::ReadOnly) ? in.readAll() : QByteArray();
    }
    /// What is logged and shown, in this order, for an error whose text holds `why`.
    static std::string report(const std::string &why, const std::string &alert)
    {
        return "Unresolved error [^\n]*" + why +
               "[^\n]*, .code = -?[0-9]+; domain = [A-Za-z]+; path = [^\n]*/Quillon.sqlite[^\n]*\n"
               "ALERT " +
               alert + "[^\n]*/Quillon.sqlite[^\n]* . Quit\n";
    }
    test::FakeSettingsStore settings{scheduler};
    AlertsOnStandardError shown;
    const std::string cannotBeOpened = "The records cannot be opened . ";
};

TEST_F(RecordFailureDeathTest, ADamagedFileEndsTheProcessAndIsLeftAsItIs)
{
    const QByteArray scribble = QByteArray("this is no record file ").repeated(500);
    ASSERT_TRUE(write(path, scribble));
    EXPECT_EXIT(open(folder.path()), ::testing::KilledBySignal(SIGABRT),
        report("not a database", cannotBeOpened));
    EXPECT_EQ(read(path), scribble);
}

TEST_F(RecordFailureDeathTest, AFolderThatCannotBeReadEndsTheProcess)
{
    const auto openAsSomebodyElse = [this] {
        // As root everything can be read.
        if (::geteuid() == 0 && ::setresuid(65534, 65534, 65534) != 0) {
            std::_Exit(1);
        }
        open(folder.path());
    };
    QFile::setPermissions(folder.path(), QFile::Permissions());
    EXPECT_EXIT(openAsSomebodyElse(), ::testing::KilledBySignal(SIGABRT),
        report("cannot be opened", cannotBeOpened));
    QFile::setPermissions(folder.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

TEST_F(RecordFailureDeathTest, AFileInTheFoldersPlaceEndsTheProcess)
{
    const QString file = folder.filePath(u"occupied"_s);
    ASSERT_TRUE(write(file, "x"));
    EXPECT_EXIT(
        open(file), ::testing::KilledBySignal(SIGABRT), report("cannot be opened", cannotBeOpened));
    EXPECT_EQ(read(file), "x");
}

TEST_F(RecordFailureDeathTest, AFileOfANewerVersionEndsTheProcessPolitelyAndIsLeftAsItIs)
{
    insertRule(u"Home"_s);
    ASSERT_FALSE(context().save().has_value());
    const QString newer = folder.filePath(u"newer"_s);
    ASSERT_TRUE(QDir().mkdir(newer));
    const QString copy = newer + u"/Quillon.sqlite"_s;
    {
        SQLite::Database made(path.toStdString(), SQLite::OPEN_READWRITE);
        made.exec("VACUUM INTO '" + copy.toStdString() + "'");
        SQLite::Database(copy.toStdString(), SQLite::OPEN_READWRITE)
            .exec("PRAGMA user_version = 99");
    }
    const QByteArray before = read(copy);
    ASSERT_FALSE(before.isEmpty());
    EXPECT_EXIT(open(newer), ::testing::ExitedWithCode(EXIT_FAILURE),
        report("newer version of Quillon",
            "The records were written by a newer version of Quillon . They are left untouched"));
    EXPECT_EQ(read(copy), before);
    EXPECT_EQ(QDir(newer).entryList(QDir::Files), QStringList(u"Quillon.sqlite"_s));
}

TEST_F(RecordFailureDeathTest, ARefreshThatFindsTheFileDamagedEndsTheProcess)
{
    const QString inner = folder.filePath(u"inner"_s);
    const auto refreshDamaged = [&] {
        RecordStore other = records(inner);
        other.managedObjectContext();
        QFile::remove(inner + u"/Quillon.sqlite"_s);
        write(inner + u"/Quillon.sqlite"_s, "scribble");
        other.refreshPersistentContainer();
    };
    EXPECT_EXIT(refreshDamaged(), ::testing::KilledBySignal(SIGABRT),
        report("not a database", cannotBeOpened));
}

} // namespace
} // namespace quillon
