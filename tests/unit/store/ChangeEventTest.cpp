// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "RecordsFixture.h"

namespace quillon::test {

using namespace Qt::StringLiterals;

/// What an observer was told, event by event.
class ChangeEvents : public RecordsTest
{
protected:
    struct Event
    {
        QStringList inserted;
        QStringList updated;
        QStringList deleted;

        bool operator==(const Event &) const = default;
    };

    void observe()
    {
        QObject::connect(&context(), &ManagedObjectContext::objectsDidChange, &observer,
            [this](const ObjectsDidChange &change) {
                events.append(
                    {names(change.inserted), names(change.updated), names(change.deleted)});
                if (reaction) {
                    reaction(change);
                }
            });
    }
    ManagedObjectPtr savedRule(const QString &name)
    {
        auto object = rule(name);
        save();
        return object;
    }

    QObject observer;
    QList<Event> events;
    std::function<void(const ObjectsDidChange &)> reaction;
};

TEST_F(ChangeEvents, TheChangesOfOneTurnAreOneEvent)
{
    const auto home = savedRule(u"Home"_s);
    const auto cafe = savedRule(u"Cafe"_s);
    observe();
    rule(u"Office"_s);
    home->setValue(model::rule::timerMins, 5);
    context().deleteObject(cafe);
    EXPECT_TRUE(events.isEmpty()) << "the turn has not ended";
    endTurn();
    EXPECT_EQ(events, QList<Event>({{{u"Office"_s}, {u"Home"_s}, {u"Cafe"_s}}}));
    home->setValue(model::rule::timerMins, 6);
    endTurn();
    EXPECT_EQ(events.size(), 2);
}

TEST_F(ChangeEvents, OnDemandTheEventComesAtOnceAndOnce)
{
    observe();
    rule(u"Home"_s);
    context().processPendingChanges();
    EXPECT_EQ(events.size(), 1);
    endTurn();
    EXPECT_EQ(events.size(), 1);
}

TEST_F(ChangeEvents, SavingTellsFirst)
{
    observe();
    rule(u"Home"_s);
    reaction = [](const ObjectsDidChange &change) {
        for (const auto &object : change.inserted) {
            object->setPrimitiveValue(model::rule::name, u"corrected"_s);
        }
    };
    save();
    EXPECT_EQ(events.size(), 1);
    EXPECT_EQ(names(another()->context(), {model::Rule, {}, {}}), QStringList(u"corrected"_s));
}

TEST_F(ChangeEvents, WhatIsInsertedAndDeletedInOneTurnIsNotTold)
{
    observe();
    context().deleteObject(rule(u"Home"_s));
    endTurn();
    EXPECT_TRUE(events.isEmpty());
    EXPECT_FALSE(context().hasChanges());
}

TEST_F(ChangeEvents, WhatIsInsertedAndChangedIsInsertedOnly)
{
    observe();
    rule(u"Home"_s)->setValue(model::rule::enabled, true);
    endTurn();
    EXPECT_EQ(events, QList<Event>({{{u"Home"_s}, {}, {}}}));
}

TEST_F(ChangeEvents, WhatIsChangedAndDeletedIsDeletedOnly)
{
    const auto home = savedRule(u"Home"_s);
    observe();
    home->setValue(model::rule::enabled, true);
    context().deleteObject(home);
    endTurn();
    EXPECT_EQ(events, QList<Event>({{{}, {}, {u"Home"_s}}}));
}

TEST_F(ChangeEvents, ThePreviousValueIsTheOneBeforeTheTurn)
{
    const auto home = savedRule(u"Home"_s);
    observe();
    QVariantMap previous;
    reaction = [&](const ObjectsDidChange &) { previous = home->changedValuesForCurrentEvent(); };
    home->setValue(model::rule::name, u"Flat"_s);
    home->setValue(model::rule::name, u"House"_s);
    home->setValue(model::rule::enabled, true);
    EXPECT_EQ(home->changedValuesForCurrentEvent().value(model::rule::name), u"Home"_s);
    endTurn();
    EXPECT_EQ(previous, (QVariantMap{{model::rule::name, u"Home"_s}, {model::rule::enabled, {}}}));
    EXPECT_TRUE(home->changedValuesForCurrentEvent().isEmpty()) << "the event is over";
}

TEST_F(ChangeEvents, ChangingBackWithinTheTurnIsStillTold)
{
    const auto home = savedRule(u"Home"_s);
    observe();
    home->setValue(model::rule::name, u"House"_s);
    home->setValue(model::rule::name, u"Home"_s);
    endTurn();
    EXPECT_EQ(events, QList<Event>({{{}, {u"Home"_s}, {}}}));
    EXPECT_FALSE(context().hasChanges()) << "there is nothing to save";
}

TEST_F(ChangeEvents, SettingThePresentValueIsNoChange)
{
    const auto home = savedRule(u"Home"_s);
    observe();
    home->setValue(model::rule::name, u"Home"_s);
    home->setValue(model::rule::device, QVariant());
    endTurn();
    EXPECT_TRUE(events.isEmpty());
    EXPECT_FALSE(home->hasChanges());
    EXPECT_EQ(context().undoManager().count(), 1) << "the insertion alone";
}

TEST_F(ChangeEvents, NothingIsNotTheEmptyText)
{
    const auto home = savedRule(u"Home"_s);
    observe();
    home->setValue(model::rule::device, QString());
    endTurn();
    EXPECT_EQ(events.size(), 1);
    EXPECT_TRUE(home->value(model::rule::device).isValid());
}

TEST_F(ChangeEvents, ACorrectionIsSavedButNotTold)
{
    const auto home = savedRule(u"Home"_s);
    observe();
    home->setPrimitiveValue(model::rule::name, u"House"_s);
    EXPECT_TRUE(home->changedValuesForCurrentEvent().isEmpty());
    endTurn();
    EXPECT_TRUE(events.isEmpty());
    EXPECT_TRUE(home->hasChanges());
    save();
    EXPECT_EQ(names(another()->context(), {model::Rule, {}, {}}), QStringList(u"House"_s));
}

TEST_F(ChangeEvents, WhatAnObserverChangesIsTheNextEvent)
{
    const auto home = savedRule(u"Home"_s);
    observe();
    QList<QVariantMap> previous;
    reaction = [&](const ObjectsDidChange &) {
        if (events.size() == 1) {
            home->setValue(model::rule::name, u"corrected"_s);
            home->setValue(model::rule::active, true);
        }
        previous << home->changedValuesForCurrentEvent();
    };
    home->setValue(model::rule::name, u"House"_s);
    endTurn();
    ASSERT_EQ(events.size(), 2);
    EXPECT_EQ(previous[0], (QVariantMap{{model::rule::name, u"Home"_s}}));
    EXPECT_EQ(
        previous[1], (QVariantMap{{model::rule::name, u"House"_s}, {model::rule::active, {}}}));
}

TEST_F(ChangeEvents, AnObserverMayEndTheNextEventItself)
{
    const auto home = savedRule(u"Home"_s);
    observe();
    QVariantMap after;
    reaction = [&](const ObjectsDidChange &) {
        if (events.size() == 1) {
            rule(u"Office"_s);
            context().processPendingChanges();
            after = home->changedValuesForCurrentEvent();
        }
    };
    home->setValue(model::rule::name, u"House"_s);
    endTurn();
    EXPECT_EQ(events, QList<Event>({{{}, {u"House"_s}, {}}, {{u"Office"_s}, {}, {}}}));
    EXPECT_EQ(after, (QVariantMap{{model::rule::name, u"Home"_s}})) << "the outer event goes on";
}

TEST_F(ChangeEvents, AnObserverMayDropTheStore)
{
    observe();
    rule(u"Home"_s);
    reaction = [&](const ObjectsDidChange &) { program().owned.reset(); };
    endTurn();
    EXPECT_EQ(events.size(), 1);
}

TEST_F(ChangeEvents, ATurnThatEndsAfterItsStoreTellsNothing)
{
    observe();
    rule(u"Home"_s);
    program().owned.reset();
    endTurn();
    EXPECT_TRUE(events.isEmpty());
}

} // namespace quillon::test
