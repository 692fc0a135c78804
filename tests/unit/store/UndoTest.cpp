// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "RecordsFixture.h"

namespace quillon::test {

using namespace Qt::StringLiterals;

class Undo : public RecordsTest
{
protected:
    QUndoStack &stack() { return context().undoManager(); }
    void undo()
    {
        stack().undo();
        endTurn();
    }
    void redo()
    {
        stack().redo();
        endTurn();
    }
    /// A saved rule that undo knows nothing of.
    ManagedObjectPtr oldRule(const QString &name)
    {
        ManagedObjectPtr object;
        {
            const ManagedObjectContext::UndoDisabled fact(context());
            object = rule(name);
        }
        save();
        return object;
    }
    QStringList savedNames() const { return names(another()->context(), {model::Rule, {}, {}}); }
};

TEST_F(Undo, AnInsertionGoesAndComesBackAsTheSameRecord)
{
    const auto home = rule(u"Home"_s);
    const QString uri = home->uriRepresentation();
    endTurn();
    undo();
    EXPECT_EQ(names(), QStringList());
    EXPECT_TRUE(home->isDeleted());
    EXPECT_FALSE(context().hasChanges());
    redo();
    EXPECT_EQ(names(), QStringList(u"Home"_s));
    EXPECT_EQ(context().objectWithURI(uri), home);
}

TEST_F(Undo, AnUpdateGoesBackToTheValueBeforeTheTurn)
{
    const auto home = oldRule(u"Home"_s);
    home->setValue(model::rule::name, u"Flat"_s);
    home->setValue(model::rule::name, u"House"_s);
    home->setValue(model::rule::device, u"eth0"_s);
    endTurn();
    EXPECT_EQ(stack().count(), 1) << "one step for each turn";
    undo();
    EXPECT_EQ(nameOf(home), u"Home"_s);
    EXPECT_FALSE(home->value(model::rule::device).isValid());
    EXPECT_FALSE(home->hasChanges());
    redo();
    EXPECT_EQ(nameOf(home), u"House"_s);
    EXPECT_EQ(home->value(model::rule::device), u"eth0"_s);
}

TEST_F(Undo, ADeletionComesBackWithItsValues)
{
    const auto home = oldRule(u"Home"_s);
    context().deleteObject(home);
    endTurn();
    EXPECT_EQ(names(), QStringList());
    undo();
    EXPECT_EQ(names(), QStringList(u"Home"_s));
    EXPECT_FALSE(context().hasChanges());
    redo();
    EXPECT_TRUE(home->isDeleted());
    EXPECT_TRUE(context().hasChanges());
}

TEST_F(Undo, AMixedTurnIsOneStep)
{
    const auto home = oldRule(u"Home"_s);
    const auto cafe = oldRule(u"Cafe"_s);
    home->setValue(model::rule::name, u"House"_s);
    context().deleteObject(cafe);
    rule(u"Office"_s);
    endTurn();
    EXPECT_EQ(names(), QStringList({u"House"_s, u"Office"_s}));
    undo();
    EXPECT_EQ(names(), QStringList({u"Home"_s, u"Cafe"_s}));
    redo();
    EXPECT_EQ(names(), QStringList({u"House"_s, u"Office"_s}));
    EXPECT_EQ(stack().count(), 1);
}

TEST_F(Undo, EachTurnIsAStep)
{
    const auto home = oldRule(u"Home"_s);
    for (int minutes = 1; minutes <= 3; ++minutes) {
        home->setValue(model::rule::timerMins, minutes);
        endTurn();
    }
    undo();
    EXPECT_EQ(home->value(model::rule::timerMins), 2);
    undo();
    undo();
    EXPECT_FALSE(home->value(model::rule::timerMins).isValid());
    redo();
    EXPECT_EQ(home->value(model::rule::timerMins), 1);
}

TEST_F(Undo, TheStepStaysOpenUntilTheTurnEnds)
{
    const auto home = oldRule(u"Home"_s);
    const auto cafe = oldRule(u"Cafe"_s);
    home->setValue(model::rule::enabled, true);
    context().processPendingChanges();
    cafe->setValue(model::rule::enabled, false);
    save();
    home->setValue(model::rule::device, u"eth0"_s);
    endTurn();
    EXPECT_EQ(stack().count(), 1) << "neither processing nor saving ends it";
    undo();
    EXPECT_FALSE(home->value(model::rule::enabled).isValid());
    EXPECT_FALSE(cafe->value(model::rule::enabled).isValid());
    EXPECT_FALSE(home->value(model::rule::device).isValid());
    redo();
    EXPECT_EQ(home->value(model::rule::enabled), true);
    EXPECT_EQ(cafe->value(model::rule::enabled), false);
    EXPECT_EQ(home->value(model::rule::device), u"eth0"_s);
    cafe->setValue(model::rule::enabled, true);
    endTurn();
    EXPECT_EQ(stack().count(), 2) << "another turn";
}

TEST_F(Undo, WhatAnObserverEditsBelongsToWhatItWasTold)
{
    const auto home = oldRule(u"Home"_s);
    const auto cafe = oldRule(u"Cafe"_s);
    const auto follower = QObject::connect(&context(), &ManagedObjectContext::objectsDidChange,
        &context(), [&](const ObjectsDidChange &change) {
            if (change.updated.contains(home)) {
                cafe->setValue(model::rule::enabled, false);
            }
        });
    home->setValue(model::rule::enabled, true);
    endTurn();
    EXPECT_EQ(cafe->value(model::rule::enabled), false);
    EXPECT_EQ(stack().count(), 1);
    QObject::disconnect(follower);
    undo();
    EXPECT_FALSE(home->value(model::rule::enabled).isValid());
    EXPECT_FALSE(cafe->value(model::rule::enabled).isValid());
}

TEST_F(Undo, AStepThatWasClearedIsNotGrown)
{
    const auto home = oldRule(u"Home"_s);
    home->setValue(model::rule::name, u"House"_s);
    stack().clear();
    home->setValue(model::rule::name, u"Villa"_s);
    endTurn();
    undo();
    EXPECT_EQ(nameOf(home), u"House"_s) << "edits after the clearing can be undone";
}

TEST_F(Undo, IsToldAsSuch)
{
    const auto home = oldRule(u"Home"_s);
    QList<bool> undone;
    QObject::connect(&context(), &ManagedObjectContext::objectsDidChange, &context(),
        [&](const ObjectsDidChange &change) { undone << change.isUndone; });
    home->setValue(model::rule::name, u"House"_s);
    endTurn();
    undo();
    redo();
    home->setValue(model::rule::name, u"Villa"_s);
    endTurn();
    EXPECT_EQ(undone, QList<bool>({false, true, true, false}));
}

TEST_F(Undo, OfASavedDeletionBringsBackIdentityAndPlace)
{
    const auto home = oldRule(u"Home"_s);
    oldRule(u"Cafe"_s);
    const QString uri = home->uriRepresentation();
    context().deleteObject(home);
    save();
    EXPECT_EQ(savedNames(), QStringList(u"Cafe"_s));
    undo();
    EXPECT_TRUE(home->isInserted());
    EXPECT_EQ(names(), QStringList({u"Home"_s, u"Cafe"_s}));
    save();
    EXPECT_EQ(savedNames(), QStringList({u"Home"_s, u"Cafe"_s}));
    EXPECT_EQ(nameOf(another()->context().objectWithURI(uri)), u"Home"_s);
    redo();
    save();
    EXPECT_EQ(savedNames(), QStringList(u"Cafe"_s));
}

TEST_F(Undo, OfASavedInsertionDeletesItFromTheFile)
{
    rule(u"Home"_s);
    save();
    undo();
    EXPECT_TRUE(context().hasChanges());
    save();
    EXPECT_EQ(savedNames(), QStringList());
    redo();
    save();
    EXPECT_EQ(savedNames(), QStringList(u"Home"_s));
}

TEST_F(Undo, OfASavedUpdateIsAChangeToSave)
{
    const auto home = oldRule(u"Home"_s);
    home->setValue(model::rule::name, u"House"_s);
    save();
    undo();
    EXPECT_TRUE(home->hasChanges());
    save();
    EXPECT_EQ(savedNames(), QStringList(u"Home"_s));
}

TEST_F(Undo, FactsAreNotEdits)
{
    const auto home = oldRule(u"Home"_s);
    {
        const ManagedObjectContext::UndoDisabled outer(context());
        {
            const ManagedObjectContext::UndoDisabled inner(context());
        }
        home->setValue(model::rule::active, true);
        rule(u"Office"_s);
        context().deleteObject(rule(u"Cafe"_s));
    }
    endTurn();
    EXPECT_FALSE(stack().canUndo());
    home->setValue(model::rule::active, false);
    EXPECT_TRUE(stack().canUndo());
}

TEST_F(Undo, ACorrectionBelongsToTheEditThatCausedIt)
{
    const auto home = oldRule(u"Home"_s);
    QObject::connect(&context(), &ManagedObjectContext::objectsDidChange, &context(),
        [](const ObjectsDidChange &change) {
            for (const auto &object : change.updated) {
                if (nameOf(object) == u"Cafe"_s) {
                    object->setPrimitiveValue(model::rule::name, u"Cafe (2)"_s);
                    object->setPrimitiveValue(model::rule::ssidDefined, true);
                }
            }
        });
    home->setValue(model::rule::name, u"Cafe"_s);
    endTurn();
    EXPECT_EQ(nameOf(home), u"Cafe (2)"_s);
    EXPECT_EQ(stack().count(), 1);
    undo();
    EXPECT_EQ(nameOf(home), u"Home"_s);
    EXPECT_FALSE(home->value(model::rule::ssidDefined).isValid());
    EXPECT_FALSE(home->hasChanges());
    redo();
    EXPECT_EQ(nameOf(home), u"Cafe (2)"_s);
    EXPECT_EQ(home->value(model::rule::ssidDefined), true);
}

TEST_F(Undo, ACorrectionByItselfIsNoStep)
{
    const auto home = oldRule(u"Home"_s);
    home->setPrimitiveValue(model::rule::name, u"House"_s);
    endTurn();
    EXPECT_FALSE(stack().canUndo());
}

TEST_F(Undo, IsToldWithPreviousValuesAndIsNoNewEdit)
{
    const auto home = oldRule(u"Home"_s);
    home->setValue(model::rule::name, u"House"_s);
    endTurn();
    QList<QVariantMap> previous;
    QObject::connect(&context(), &ManagedObjectContext::objectsDidChange, &context(),
        [&](const ObjectsDidChange &change) {
            EXPECT_EQ(change.updated, ManagedObjectList{home});
            previous << home->changedValuesForCurrentEvent();
        });
    undo();
    redo();
    EXPECT_EQ(previous,
        QList<QVariantMap>({{{model::rule::name, u"House"_s}}, {{model::rule::name, u"Home"_s}}}));
    EXPECT_EQ(stack().count(), 1);
}

TEST_F(Undo, WithinTheTurnTakesBackWhatTheTurnDidSoFar)
{
    const auto home = oldRule(u"Home"_s);
    home->setValue(model::rule::name, u"House"_s);
    stack().undo();
    EXPECT_EQ(nameOf(home), u"Home"_s);
    home->setValue(model::rule::device, u"eth0"_s);
    endTurn();
    EXPECT_EQ(stack().count(), 1) << "the new edit replaces what could have been redone";
    undo();
    EXPECT_EQ(nameOf(home), u"Home"_s);
    EXPECT_FALSE(home->value(model::rule::device).isValid());
}

TEST_F(Undo, AStackClearedWithinTheTurnTakesLaterEditsAnew)
{
    const auto home = oldRule(u"Home"_s);
    home->setValue(model::rule::name, u"House"_s);
    stack().clear();
    endTurn();
    EXPECT_EQ(nameOf(home), u"House"_s);
    home->setValue(model::rule::name, u"Villa"_s);
    endTurn();
    undo();
    EXPECT_EQ(nameOf(home), u"House"_s);
}

} // namespace quillon::test
