// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/history/HistoryNote.h"

#include "unit/presentation/history/HistoryFixture.h"

namespace quillon::test {

class HistoryNoteTest : public HistoryWindowFixture
{
protected:
    HistoryNoteTest()
    {
        fill(2);
        open();
        QObject::connect(&note, &HistoryNote::ended, &listener, [this] { ++ends; });
        QObject::connect(&note, &HistoryNote::lost, &listener, [this] { ++losses; });
    }
    void elsewhere(const std::function<void(ManagedObjectContext &)> &work)
    {
        FakeScheduler another;
        auto opened = ManagedObjectContext::open(quillonModel(), path, another);
        ASSERT_TRUE(opened);
        work(*opened.value());
        ASSERT_FALSE(opened.value()->save());
        context().mergeChangesFromStore();
    }
    QString noteOf(qsizetype row) { return controller.text(row, HistoryColumn::Notes); }

    HistoryNote &note = controller.note();
    int ends = 0;
    int losses = 0;
    QObject listener; ///< what is told when the window goes is not counted any more
};

TEST_F(HistoryNoteTest, WhatWasTypedIsTakenAtItsEndAsOneStepOfUndo)
{
    controller.editNote(0);
    EXPECT_TRUE(note.isEditing());
    note.type(u"a"_s);
    note.type(u"ab"_s);
    EXPECT_EQ(noteOf(0), QString()) << "not before";
    note.end();
    EXPECT_FALSE(note.isEditing());
    EXPECT_EQ(ends, 1);
    EXPECT_EQ(noteOf(0), u"ab"_s);
    endTurn();
    store.undo();
    endTurn();
    EXPECT_EQ(noteOf(0), QString());
    EXPECT_FALSE(store.canUndo());
    store.redo();
    EXPECT_EQ(noteOf(0), u"ab"_s);
}

TEST_F(HistoryNoteTest, GivenUpItStaysAsItWas)
{
    controller.editNote(0);
    note.type(u"nonsense"_s);
    note.giveUp();
    EXPECT_EQ(noteOf(0), QString());
    EXPECT_FALSE(store.canUndo());
    EXPECT_EQ(ends, 1);
    note.giveUp();
    EXPECT_EQ(ends, 1);
}

TEST_F(HistoryNoteTest, UntouchedItIsNoChange)
{
    controller.editNote(0);
    EXPECT_EQ(note.text(), QString());
    note.end();
    EXPECT_FALSE(store.hasChanges());
    EXPECT_FALSE(store.canUndo());
}

TEST_F(HistoryNoteTest, TheSavingTakesWhatIsTypedAndTheEditingGoesOn)
{
    controller.editNote(0);
    note.type(u"typed"_s);
    EXPECT_TRUE(context().commitEditing());
    EXPECT_EQ(noteOf(0), u"typed"_s);
    EXPECT_TRUE(note.isEditing());
    EXPECT_EQ(ends, 0);
}

TEST_F(HistoryNoteTest, AnotherNoteTakesTheOneBefore)
{
    controller.editNote(0);
    note.type(u"first"_s);
    controller.editNote(1);
    note.type(u"second"_s);
    note.end();
    EXPECT_EQ(noteOf(0), u"first"_s);
    EXPECT_EQ(noteOf(1), u"second"_s);
}

TEST_F(HistoryNoteTest, ARowThatIsNotThereIsNotEdited)
{
    controller.editNote(9);
    EXPECT_FALSE(note.isEditing());
}

TEST_F(HistoryNoteTest, ARecordDeletedElsewhereEndsItAndSaysSo)
{
    controller.editNote(0);
    note.type(u"lost"_s);
    elsewhere([](ManagedObjectContext &other) {
        for (const auto &record : other.fetch(Connection::fetchRequest()).value()) {
            other.deleteObject(record);
        }
    });
    EXPECT_FALSE(note.isEditing());
    EXPECT_EQ(losses, 1);
    EXPECT_EQ(ends, 1);
    EXPECT_EQ(said, QStringList({u"The record has been deleted."_s}));
    endTurn();
    EXPECT_EQ(controller.rows().size(), 0);
}

TEST_F(HistoryNoteTest, ARecordDeletedHereEndsItToo)
{
    controller.editNote(0);
    context().deleteObject(controller.rows().at(0));
    endTurn();
    EXPECT_EQ(losses, 1);
}

TEST_F(HistoryNoteTest, ChangesOfOthersDoNotTouchWhatIsTyped)
{
    controller.editNote(0);
    note.type(u"mine"_s);
    elsewhere([](ManagedObjectContext &other) {
        for (const auto &record : other.fetch(Connection::fetchRequest()).value()) {
            record->set(model::connection::notes, u"theirs"_s);
        }
    });
    EXPECT_EQ(noteOf(0), u"theirs"_s);
    EXPECT_EQ(note.text(), u"mine"_s);
    note.end();
    EXPECT_EQ(noteOf(0), u"mine"_s);
}

TEST_F(HistoryNoteTest, WhereNothingIsTypedTheNoteOfOthersStays)
{
    controller.editNote(0);
    elsewhere([](ManagedObjectContext &other) {
        for (const auto &record : other.fetch(Connection::fetchRequest()).value()) {
            record->set(model::connection::notes, u"theirs"_s);
        }
    });
    note.end();
    EXPECT_EQ(noteOf(0), u"theirs"_s);
    EXPECT_FALSE(store.canUndo());
}

TEST_F(HistoryNoteTest, GoesOnInAnotherContext)
{
    controller.editNote(0);
    note.type(u"kept"_s);
    store.refreshPersistentContainer();
    EXPECT_TRUE(note.isEditing());
    EXPECT_TRUE(context().commitEditing());
    note.end();
    endTurn();
    EXPECT_EQ(noteOf(0), u"kept"_s);
}

TEST_F(HistoryNoteTest, AnotherSearchTakesItLikeLeavingTheField)
{
    controller.editNote(0);
    note.type(u"typed"_s);
    search(u"typed"_s);
    EXPECT_FALSE(note.isEditing());
    EXPECT_EQ(controller.rows().size(), 1);
}

TEST_F(HistoryNoteTest, TheClosedWindowTakesIt)
{
    controller.editNote(0);
    note.type(u"typed"_s);
    controller.windowDidClose();
    EXPECT_TRUE(store.hasChanges());
    EXPECT_FALSE(note.isEditing());
}

TEST_F(HistoryNoteTest, AVeryLongNoteIsANote)
{
    const QString book(2'000'000, u'ä');
    controller.editNote(0);
    note.type(book);
    note.end();
    ASSERT_FALSE(context().save());
    endTurn();
    EXPECT_EQ(noteOf(0), book);
}

} // namespace quillon::test
