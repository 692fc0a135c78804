// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "RecordStoreFixture.h"
#include "RefusingFile.h"
#include "base/SettingsKeys.h"
#include "fakes/LogCapture.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QPointer>

#include <SQLiteCpp/SQLiteCpp.h>
#include <csignal>
#include <cstdio>
#include <unistd.h>

namespace quillon {
namespace {

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

using RecordStoreTest = test::RecordStoreTest;

TEST_F(RecordStoreTest, OpensNothingBeforeFirstUse)
{
    EXPECT_FALSE(store.hasManagedObjectContext());
    EXPECT_FALSE(QFile::exists(path));
    ManagedObjectContext &first = store.managedObjectContext();
    EXPECT_TRUE(store.hasManagedObjectContext());
    EXPECT_TRUE(QFile::exists(path));
    EXPECT_EQ(&store.managedObjectContext(), &first);
    EXPECT_EQ(&store.persistentContainer().viewContext(), &first);
}

TEST_F(RecordStoreTest, MakesItsFolderForItsOwnerAlone)
{
    const QString inner = folder.filePath(QStringLiteral("a/b/Quillon"));
    RecordStore other({settings, scheduler, alerts}, inner);
    other.managedObjectContext();
    EXPECT_TRUE(QFile::exists(inner + QStringLiteral("/Quillon.sqlite")));
    const auto others = QFile::ReadGroup | QFile::WriteGroup | QFile::ExeGroup | QFile::ReadOther |
                        QFile::WriteOther | QFile::ExeOther;
    EXPECT_EQ(QFileInfo(inner).permissions() & others, QFile::Permissions());
}

TEST_F(RecordStoreTest, TellsOfChanges)
{
    int inserted = 0;
    QObject::connect(
        &store, &RecordStore::objectsDidChange, &store, [&](const ObjectsDidChange &change) {
            inserted += static_cast<int>(change.inserted.size());
        });
    insertRule(QStringLiteral("Home"));
    endTurn();
    EXPECT_EQ(inserted, 1);
}

TEST_F(RecordStoreTest, AReplacedContextHasWhatWasPendingAndIsTheOneThatTells)
{
    insertRule(QStringLiteral("Home"));
    ASSERT_FALSE(context().save().has_value());
    insertRule(QStringLiteral("Pending"));
    endTurn();
    QList<QStringList> namesWhenReplaced;
    QObject::connect(&store, &RecordStore::managedObjectContextReplaced, &store,
        [&] { namesWhenReplaced << namesIn(context()); });
    settings.setBool(keys::iCloudSync, true);
    store.refreshPersistentContainer();
    const QStringList saved{QStringLiteral("Home"), QStringLiteral("Pending")};
    EXPECT_EQ(namesWhenReplaced, QList<QStringList>{saved});
    EXPECT_FALSE(context().hasChanges());

    int changes = 0;
    QObject::connect(&store, &RecordStore::objectsDidChange, &store, [&] { ++changes; });
    insertRule(QStringLiteral("Office"));
    endTurn();
    EXPECT_EQ(changes, 1);
    settings.setBool(keys::iCloudSync, false);
    store.refreshPersistentContainer();
    EXPECT_EQ(namesIn(context()), saved + QStringList(QStringLiteral("Office")));
}

TEST_F(RecordStoreTest, WhatCannotBeSavedBeforeAReplacementIsLogged)
{
    insertRule(QStringLiteral("Home"));
    ASSERT_FALSE(context().save().has_value());
    insertRule(QStringLiteral("Refused"));
    const test::RefusingFile refusal(path);
    int replaced = 0;
    QObject::connect(
        &store, &RecordStore::managedObjectContextReplaced, &store, [&] { ++replaced; });
    const test::LogCapture log;
    store.refreshPersistentContainer();
    const QStringList lines = test::LogCapture::taken();
    ASSERT_EQ(lines.size(), 1);
    EXPECT_TRUE(lines.first().startsWith(
        QStringLiteral("quillon.records: Changes are lost, as they could not be saved: ")));
    EXPECT_TRUE(lines.first().contains(QStringLiteral("refused by the file")));
    EXPECT_EQ(replaced, 1);
    EXPECT_EQ(namesIn(context()), QStringList(QStringLiteral("Home")));
}

TEST_F(RecordStoreTest, TheOldContextIsThereUntilItsReplacementWasTold)
{
    const QPointer<ManagedObjectContext> old(&context());
    bool thereWhenTold = false;
    bool newOneInPlace = false;
    QObject::connect(&store, &RecordStore::managedObjectContextReplaced, &store, [&] {
        thereWhenTold = !old.isNull();
        newOneInPlace = &context() != old.data();
        old->insertNewObject(model::Rule);
        old->processPendingChanges();
    });
    context();
    int changes = 0;
    QObject::connect(&store, &RecordStore::objectsDidChange, &store, [&] { ++changes; });
    store.refreshPersistentContainer();
    EXPECT_TRUE(thereWhenTold);
    EXPECT_TRUE(newOneInPlace);
    EXPECT_TRUE(old.isNull());
    endTurn();
    EXPECT_EQ(changes, 0) << "what the old one still had to tell is of no interest";
}

TEST_F(RecordStoreTest, ARefreshBeforeFirstUseOpensTheStore)
{
    int replaced = 0;
    QObject::connect(
        &store, &RecordStore::managedObjectContextReplaced, &store, [&] { ++replaced; });
    store.refreshPersistentContainer();
    EXPECT_TRUE(store.hasManagedObjectContext());
    EXPECT_EQ(replaced, 1);
}

/// A store that cannot be opened. What the user is told is on standard error.
class RecordStoreDeathTest : public test::RecordStoreTest
{
protected:
    // A fork shares the folder with us, so that what it leaves behind can be looked at; there are
    // no threads that could hang it.
    RecordStoreDeathTest() { GTEST_FLAG_SET(death_test_style, "fast"); }

    void open(const QString &inFolder)
    {
        AlertsOnStandardError shown;
        RecordStore({settings, scheduler, shown}, inFolder).managedObjectContext();
    }
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
    const std::string cannotBeOpened = "The records cannot be opened . ";
};

TEST_F(RecordStoreDeathTest, ADamagedFileEndsTheProcessAndIsLeftAsItIs)
{
    const QByteArray scribble = QByteArray("this is no record file ").repeated(500);
    ASSERT_TRUE(write(path, scribble));
    EXPECT_EXIT(open(folder.path()), ::testing::KilledBySignal(SIGABRT),
        report("not a database", cannotBeOpened));
    EXPECT_EQ(read(path), scribble);
}

TEST_F(RecordStoreDeathTest, TheSettingsAreOnTheDiskBeforeTheUserIsAsked)
{
    class JournalOnStandardError : public AlertsOnStandardError
    {
    public:
        explicit JournalOnStandardError(const test::FakeSettingsStore &store)
            : m_store(store)
        {
        }
        int runModal(const Alert &) override
        {
            std::fprintf(stderr, "JOURNAL %s\n", qUtf8Printable(m_store.journal().join(u',')));
            return 0;
        }

    private:
        const test::FakeSettingsStore &m_store;
    };
    ASSERT_TRUE(write(path, "scribble"));
    settings.clearJournal();
    JournalOnStandardError shown(settings);
    EXPECT_EXIT(RecordStore({settings, scheduler, shown}, folder.path()).managedObjectContext(),
        ::testing::KilledBySignal(SIGABRT), "JOURNAL flush\n");
}

TEST_F(RecordStoreDeathTest, AFolderThatCannotBeReadEndsTheProcess)
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

TEST_F(RecordStoreDeathTest, AFileInTheFoldersPlaceEndsTheProcess)
{
    const QString file = folder.filePath(QStringLiteral("occupied"));
    ASSERT_TRUE(write(file, "x"));
    EXPECT_EXIT(
        open(file), ::testing::KilledBySignal(SIGABRT), report("cannot be opened", cannotBeOpened));
    EXPECT_EQ(read(file), "x");
}

TEST_F(RecordStoreDeathTest, AFileOfANewerVersionEndsTheProcessPolitelyAndIsLeftAsItIs)
{
    insertRule(QStringLiteral("Home"));
    ASSERT_FALSE(context().save().has_value());
    const QString newer = folder.filePath(QStringLiteral("newer"));
    ASSERT_TRUE(QDir().mkdir(newer));
    const QString copy = newer + QStringLiteral("/Quillon.sqlite");
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
    EXPECT_EQ(QDir(newer).entryList(QDir::Files), QStringList(QStringLiteral("Quillon.sqlite")));
}

TEST_F(RecordStoreDeathTest, ARefreshThatFindsTheFileDamagedEndsTheProcess)
{
    const QString inner = folder.filePath(QStringLiteral("inner"));
    const auto refreshDamaged = [&] {
        AlertsOnStandardError shown;
        RecordStore other({settings, scheduler, shown}, inner);
        other.managedObjectContext();
        QFile::remove(inner + QStringLiteral("/Quillon.sqlite"));
        write(inner + QStringLiteral("/Quillon.sqlite"), "scribble");
        other.refreshPersistentContainer();
    };
    EXPECT_EXIT(refreshDamaged(), ::testing::KilledBySignal(SIGABRT),
        report("not a database", cannotBeOpened));
}

} // namespace
} // namespace quillon
