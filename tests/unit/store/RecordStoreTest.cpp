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

using namespace Qt::StringLiterals;
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
    const QString inner = folder.filePath(u"a/b/Quillon"_s);
    RecordStore other(scheduler, inner);
    other.managedObjectContext();
    EXPECT_TRUE(QFile::exists(inner + u"/Quillon.sqlite"_s));
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
    insertRule(u"Home"_s);
    endTurn();
    EXPECT_EQ(inserted, 1);
}

TEST_F(RecordStoreTest, AReplacedContextHasWhatWasPendingAndIsTheOneThatTells)
{
    insertRule(u"Home"_s);
    ASSERT_FALSE(context().save().has_value());
    insertRule(u"Pending"_s);
    endTurn();
    QList<QStringList> namesWhenReplaced;
    QObject::connect(&store, &RecordStore::managedObjectContextReplaced, &store,
        [&] { namesWhenReplaced << namesIn(context()); });
    store.refreshPersistentContainer();
    const QStringList saved{u"Home"_s, u"Pending"_s};
    EXPECT_EQ(namesWhenReplaced, QList<QStringList>{saved});
    EXPECT_FALSE(context().hasChanges());

    int changes = 0;
    QObject::connect(&store, &RecordStore::objectsDidChange, &store, [&] { ++changes; });
    insertRule(u"Office"_s);
    endTurn();
    EXPECT_EQ(changes, 1);
    store.refreshPersistentContainer();
    EXPECT_EQ(namesIn(context()), saved + QStringList(u"Office"_s));
}

TEST_F(RecordStoreTest, WhatCannotBeSavedBeforeAReplacementIsLogged)
{
    insertRule(u"Home"_s);
    ASSERT_FALSE(context().save().has_value());
    insertRule(u"Refused"_s);
    const test::RefusingFile refusal(path);
    int replaced = 0;
    QObject::connect(
        &store, &RecordStore::managedObjectContextReplaced, &store, [&] { ++replaced; });
    const test::LogCapture log;
    store.refreshPersistentContainer();
    const QStringList lines = test::LogCapture::taken();
    ASSERT_EQ(lines.size(), 1);
    EXPECT_TRUE(lines.first().startsWith(
        u"quillon.records: Changes are lost, as they could not be saved: "_s));
    EXPECT_TRUE(lines.first().contains(u"refused by the file"_s));
    EXPECT_EQ(replaced, 1);
    EXPECT_EQ(namesIn(context()), QStringList(u"Home"_s));
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
    const QString path = folder.filePath(u"Quillon.sqlite"_s);
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
