// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "RecordsFixture.h"

namespace quillon::test {

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
    const auto home = rule("Home"_s);
    const QString uri = home->uriRepresentation();
    endTurn();
    undo();
    EXPECT_EQ(names(), QStringList());
    EXPECT_TRUE(home->isDeleted());
    EXPECT_FALSE(context().hasChanges());
    redo();
    EXPECT_EQ(names(), QStringList("Home"_s));
    EXPECT_EQ(context().objectWithURI(uri), home);
}

TEST_F(Undo, AnUpdateGoesBackToTheValueBeforeTheTurn)
{
    const auto home = oldRule("Home"_s);
    home->setValue(model::rule::name, "Flat"_s);
    home->setValue(model::rule::name, "House"_s);
    home->setValue(model::rule::device, "eth0"_s);
    endTurn();
    EXPECT_EQ(stack().count(), 1) << "one step for each turn";
    undo();
    EXPECT_EQ(nameOf(home), "Home"_s);
    EXPECT_FALSE(home->value(model::rule::device).isValid());
    EXPECT_FALSE(home->hasChanges());
    redo();
    EXPECT_EQ(nameOf(home), "House"_s);
    EXPECT_EQ(home->value(model::rule::device), "eth0"_s);
}

TEST_F(Undo, ADeletionComesBackWithItsValues)
{
    const auto home = oldRule("Home"_s);
    context().deleteObject(home);
    endTurn();
    EXPECT_EQ(names(), QStringList());
    undo();
    EXPECT_EQ(names(), QStringList("Home"_s));
    EXPECT_FALSE(context().hasChanges());
    redo();
    EXPECT_TRUE(home->isDeleted());
    EXPECT_TRUE(context().hasChanges());
}

TEST_F(Undo, AMixedTurnIsOneStep)
{
    const auto home = oldRule("Home"_s);
    const auto cafe = oldRule("Cafe"_s);
    home->setValue(model::rule::name, "House"_s);
    context().deleteObject(cafe);
    rule("Office"_s);
    endTurn();
    EXPECT_EQ(names(), QStringList({"House"_s, "Office"_s}));
    undo();
    EXPECT_EQ(names(), QStringList({"Home"_s, "Cafe"_s}));
    redo();
    EXPECT_EQ(names(), QStringList({"House"_s, "Office"_s}));
    EXPECT_EQ(stack().count(), 1);
}

TEST_F(Undo, EachTurnIsAStep)
{
    const auto home = oldRule("Home"_s);
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

TEST_F(Undo, OfASavedDeletionBringsBackIdentityAndPlace)
{
    const auto home = oldRule("Home"_s);
    oldRule("Cafe"_s);
    const QString uri = home->uriRepresentation();
    context().deleteObject(home);
    save();
    EXPECT_EQ(savedNames(), QStringList("Cafe"_s));
    undo();
    EXPECT_TRUE(home->isInserted());
    EXPECT_EQ(names(), QStringList({"Home"_s, "Cafe"_s}));
    save();
    EXPECT_EQ(savedNames(), QStringList({"Home"_s, "Cafe"_s}));
    EXPECT_EQ(nameOf(another()->context().objectWithURI(uri)), "Home"_s);
    redo();
    save();
    EXPECT_EQ(savedNames(), QStringList("Cafe"_s));
}

TEST_F(Undo, OfASavedInsertionDeletesItFromTheFile)
{
    rule("Home"_s);
    save();
    undo();
    EXPECT_TRUE(context().hasChanges());
    save();
    EXPECT_EQ(savedNames(), QStringList());
    redo();
    save();
    EXPECT_EQ(savedNames(), QStringList("Home"_s));
}

TEST_F(Undo, OfASavedUpdateIsAChangeToSave)
{
    const auto home = oldRule("Home"_s);
    home->setValue(model::rule::name, "House"_s);
    save();
    undo();
    EXPECT_TRUE(home->hasChanges());
    save();
    EXPECT_EQ(savedNames(), QStringList("Home"_s));
}

TEST_F(Undo, FactsAreNotEdits)
{
    const auto home = oldRule("Home"_s);
    {
        const ManagedObjectContext::UndoDisabled outer(context());
        {
            const ManagedObjectContext::UndoDisabled inner(context());
        }
        home->setValue(model::rule::active, true);
        rule("Office"_s);
        context().deleteObject(rule("Cafe"_s));
    }
    endTurn();
    EXPECT_FALSE(stack().canUndo());
    home->setValue(model::rule::active, false);
    EXPECT_TRUE(stack().canUndo());
}

TEST_F(Undo, ACorrectionBelongsToTheEditThatCausedIt)
{
    const auto home = oldRule("Home"_s);
    QObject::connect(&context(), &ManagedObjectContext::objectsDidChange, &context(),
        [](const ObjectsDidChange &change) {
            for (const auto &object : change.updated) {
                if (nameOf(object) == "Cafe"_s) {
                    object->setPrimitiveValue(model::rule::name, "Cafe (2)"_s);
                    object->setPrimitiveValue(model::rule::ssidDefined, true);
                }
            }
        });
    home->setValue(model::rule::name, "Cafe"_s);
    endTurn();
    EXPECT_EQ(nameOf(home), "Cafe (2)"_s);
    EXPECT_EQ(stack().count(), 1);
    undo();
    EXPECT_EQ(nameOf(home), "Home"_s);
    EXPECT_FALSE(home->value(model::rule::ssidDefined).isValid());
    EXPECT_FALSE(home->hasChanges());
    redo();
    EXPECT_EQ(nameOf(home), "Cafe (2)"_s);
    EXPECT_EQ(home->value(model::rule::ssidDefined), true);
}

TEST_F(Undo, ACorrectionByItselfIsNoStep)
{
    const auto home = oldRule("Home"_s);
    home->setPrimitiveValue(model::rule::name, "House"_s);
    endTurn();
    EXPECT_FALSE(stack().canUndo());
}

TEST_F(Undo, IsToldWithPreviousValuesAndIsNoNewEdit)
{
    const auto home = oldRule("Home"_s);
    home->setValue(model::rule::name, "House"_s);
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
        QList<QVariantMap>({{{model::rule::name, "House"_s}}, {{model::rule::name, "Home"_s}}}));
    EXPECT_EQ(stack().count(), 1);
}

TEST_F(Undo, WithinTheTurnTakesBackWhatTheTurnDidSoFar)
{
    const auto home = oldRule("Home"_s);
    home->setValue(model::rule::name, "House"_s);
    stack().undo();
    EXPECT_EQ(nameOf(home), "Home"_s);
    home->setValue(model::rule::device, "eth0"_s);
    endTurn();
    EXPECT_EQ(stack().count(), 1) << "the new edit replaces what could have been redone";
    undo();
    EXPECT_EQ(nameOf(home), "Home"_s);
    EXPECT_FALSE(home->value(model::rule::device).isValid());
}

TEST_F(Undo, AStackClearedWithinTheTurnTakesLaterEditsAnew)
{
    const auto home = oldRule("Home"_s);
    home->setValue(model::rule::name, "House"_s);
    stack().clear();
    endTurn();
    EXPECT_EQ(nameOf(home), "House"_s);
    home->setValue(model::rule::name, "Villa"_s);
    endTurn();
    undo();
    EXPECT_EQ(nameOf(home), "House"_s);
}

} // namespace quillon::test
