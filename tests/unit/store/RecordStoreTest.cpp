// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "RecordStoreFixture.h"
#include "RefusingFile.h"
#include "fakes/LogCapture.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QPointer>

#include <csignal>
#include <cstdio>

namespace quillon {
namespace {

using RecordStoreTest = test::RecordStoreTest;

TEST_F(RecordStoreTest, OpensNothingBeforeFirstUse)
{
    EXPECT_FALSE(store.hasManagedObjectContext());
    EXPECT_FALSE(QFile::exists(path));
    ManagedObjectContext &first = store.managedObjectContext();
    EXPECT_TRUE(store.hasManagedObjectContext());
    EXPECT_TRUE(QFile::exists(path));
    EXPECT_EQ(&store.managedObjectContext(), &first);
}

TEST_F(RecordStoreTest, MakesItsFolderForItsOwnerAlone)
{
    const QString inner = folder.filePath(QStringLiteral("a/b/Quillon"));
    RecordStore other(scheduler, inner);
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
    store.refreshPersistentContainer();
    const QStringList saved{QStringLiteral("Home"), QStringLiteral("Pending")};
    EXPECT_EQ(namesWhenReplaced, QList<QStringList>{saved});
    EXPECT_FALSE(context().hasChanges());

    int changes = 0;
    QObject::connect(&store, &RecordStore::objectsDidChange, &store, [&] { ++changes; });
    insertRule(QStringLiteral("Office"));
    endTurn();
    EXPECT_EQ(changes, 1);
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

TEST(RecordStoreDeathTest, AFileThatCannotBeOpenedIsToldOfAndEndsTheProcess)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("Quillon.sqlite"));
    ASSERT_TRUE(QDir().mkdir(path));
    test::FakeScheduler scheduler;
    const auto open = [&](const RecordStore::OpenFailure &openFailure) {
        RecordStore(scheduler, folder.path(), openFailure).managedObjectContext();
    };
    const std::string logged = "Unresolved error [^\n]*, .code = 1; domain = "
                               "RecordFileErrorDomain; path = [^\n]*/Quillon.sqlite[^\n]*\n";
    EXPECT_EXIT(open({}), ::testing::KilledBySignal(SIGABRT), logged);
    const auto tell = [&path](const Error &error, const QString &where) {
        std::fprintf(stderr, "TOLD %d of %d\n", error.code, int(where == path));
    };
    EXPECT_EXIT(open(tell), ::testing::KilledBySignal(SIGABRT), logged + "TOLD 1 of 1\n");
}

} // namespace
} // namespace quillon
