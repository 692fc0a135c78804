// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "rules/RuleInvariants.h"

#include "base/NotificationNames.h"
#include "devices/DeviceTable.h"
#include "fakes/FakeInterfaceAddresses.h"
#include "fakes/FakeNetworkHost.h"
#include "fakes/FakeSettingsStore.h"
#include "platform/NotificationCenter.h"
#include "rules/RuleQueries.h"
#include "unit/store/RecordStoreFixture.h"

#include <QUndoStack>

#include <algorithm>
#include <memory>

namespace quillon {

using namespace Qt::StringLiterals;
namespace {

/// The names of the rules are collected when "updateNamesArray" is posted, and at no other time.
class RuleInvariantsTest : public test::RecordStoreTest
{
protected:
    RuleInvariantsTest()
    {
        QObject::connect(&store, &RecordStore::objectsDidChange, invariants.get(),
            [this](const ObjectsDidChange &change) { invariants->contextDidChange(change); });
        QObject::connect(invariants.get(), &RuleInvariants::rulesCorrected,
            [this] { journal << u"table reloaded"_s; });
        for (const QString &name : {notifications::ruleTable, notifications::updateNamesArray}) {
            center.addObserver(name, [this](const NotificationCenter::Notification &posted) {
                journal << posted.name;
                posters << posted.object;
                if (posted.name == notifications::updateNamesArray) {
                    queries.updateNamesArray();
                }
            });
        }
    }
    /// Saved rules of these names, collected, and nothing of it told any more.
    void haveRules(const QStringList &given)
    {
        for (const QString &name : given) {
            rules << insertRule(name);
        }
        endTurn();
        ASSERT_FALSE(context().save().has_value());
        queries.updateNamesArray();
        journal.clear();
    }
    static QString nameOf(const ManagedObjectPtr &rule)
    {
        return rule->value(model::rule::name).toString();
    }
    void rename(qsizetype index, const QString &name)
    {
        rules[index]->setValue(model::rule::name, name);
    }

    const QString home = u"Home"_s;
    const QString office = u"Office"_s;
    const QStringList refreshed{
        u"table reloaded"_s, notifications::ruleTable, notifications::updateNamesArray};
    NotificationCenter center;
    test::FakeSettingsStore settings{scheduler};
    test::FakeNetworkHost host;
    test::FakeInterfaceAddresses addresses{host};
    DeviceTable devices{settings, host, addresses};
    RuleQueries queries{store, settings, devices};
    ManagedObjectList rules;
    QStringList journal;
    QList<const void *> posters;
    std::unique_ptr<RuleInvariants> invariants = std::make_unique<RuleInvariants>(
        RuleInvariants::Collaborators{store, scheduler, center, queries});
};

TEST_F(RuleInvariantsTest, ARuleRenamedToAnothersNameGetsAUniqueOne)
{
    haveRules({home, office});
    rename(0, office);
    endTurn();
    EXPECT_EQ(nameOf(rules[0]), u"Office (2)"_s);
    EXPECT_EQ(nameOf(rules[1]), office);
    EXPECT_FALSE(context().save().has_value());
    EXPECT_EQ(savedNames(), QStringList({u"Office (2)"_s, office}));
}

TEST_F(RuleInvariantsTest, AFreeNameStays)
{
    haveRules({home, office});
    rename(0, u"Garden"_s);
    endTurn();
    EXPECT_EQ(nameOf(rules[0]), u"Garden"_s);
}

TEST_F(RuleInvariantsTest, TheOldNameIsStillInTheListAndHarmsNobody)
{
    haveRules({home});
    rename(0, u"Home (2)"_s);
    endTurn();
    EXPECT_EQ(nameOf(rules[0]), u"Home (2)"_s);
    rename(0, home);
    endTurn();
    EXPECT_EQ(nameOf(rules[0]), home);
}

TEST_F(RuleInvariantsTest, ARuleWhoseNameDidNotChangeIsNotTouched)
{
    haveRules({home, office});
    rules[0]->setValue(model::rule::device, u"en0"_s);
    endTurn();
    EXPECT_EQ(nameOf(rules[0]), home);
    rename(0, office);
    rename(0, home);
    endTurn();
    EXPECT_EQ(nameOf(rules[0]), home) << "renamed there and back within one turn";
    EXPECT_EQ(journal, QStringList());
}

TEST_F(RuleInvariantsTest, AFirstNameIsTakenAsItIs)
{
    haveRules({home});
    const auto nameless = context().insertNewObject(model::Rule);
    endTurn();
    nameless->setValue(model::rule::name, home);
    endTurn();
    EXPECT_EQ(nameOf(nameless), home) << "whoever makes a rule makes its first name unique";
}

TEST_F(RuleInvariantsTest, ANameTakenAwayStaysAway)
{
    haveRules({home});
    rules[0]->setValue(model::rule::name, QVariant());
    endTurn();
    EXPECT_FALSE(rules[0]->value(model::rule::name).isValid());
    EXPECT_EQ(journal, QStringList());
}

TEST_F(RuleInvariantsTest, TwoRulesRenamedInOneTurnDoNotGetTheSameName)
{
    haveRules({home, office});
    rename(0, u"Garden"_s);
    rename(1, u"Garden"_s);
    endTurn();
    QStringList now{nameOf(rules[0]), nameOf(rules[1])};
    now.sort();
    EXPECT_EQ(now, QStringList({u"Garden"_s, u"Garden (2)"_s}));
}

TEST_F(RuleInvariantsTest, ADefinedSsidFlagIsWrittenAgain)
{
    haveRules({home});
    rules[0]->setValue(model::rule::ssidDefined, true);
    endTurn();
    EXPECT_EQ(rules[0]->value(model::rule::ssidDefined), QVariant(true));
    EXPECT_EQ(journal, refreshed);
}

TEST_F(RuleInvariantsTest, ACorrectedRuleIsToldInALaterTurnAndInOrder)
{
    haveRules({home, office});
    rename(0, office);
    QStringList whileTold;
    QObject::connect(&store, &RecordStore::objectsDidChange, &store, [&] { whileTold = journal; });
    endTurn();
    EXPECT_EQ(whileTold, QStringList()) << "not within the change itself";
    EXPECT_EQ(journal, refreshed);
    EXPECT_EQ(posters, QList<const void *>(2, invariants.get()));
    EXPECT_EQ(queries.namesArray(), QStringList({u"Office (2)"_s, office}));
}

TEST_F(RuleInvariantsTest, WhatIsPendingThenIsProcessedBeforeItIsTold)
{
    haveRules({home, office});
    int changes = 0;
    int changesWhenTold = 0;
    QObject::connect(&store, &RecordStore::objectsDidChange, &store, [&] { ++changes; });
    QObject::connect(invariants.get(), &RuleInvariants::rulesCorrected, &store,
        [&] { changesWhenTold = changes; });
    rename(0, office);
    // A later turn, but before the one in which the correction is told.
    scheduler.onMain([this] { rules[1]->setValue(model::rule::device, u"en0"_s); });
    context().processPendingChanges();
    endTurn();
    EXPECT_EQ(changesWhenTold, 2);
}

TEST_F(RuleInvariantsTest, OtherChangesTellNobodyAnything)
{
    haveRules({home});
    rules[0]->setValue(model::rule::device, u"en0"_s);
    const auto record = context().insertNewObject(model::Connection);
    endTurn();
    record->setValue(model::connection::notes, u"a note"_s);
    endTurn();
    insertRule(office);
    endTurn();
    context().deleteObject(rules[0]);
    endTurn();
    EXPECT_EQ(journal, QStringList());
}

/// Somebody sees each change before the invariants do, and answers the first with one of his own.
class RuleInvariantsAfterAnother : public RuleInvariantsTest
{
protected:
    void answerFirstChangeWith(std::function<void(const ObjectsDidChange &)> answer)
    {
        store.disconnect(invariants.get());
        QObject::connect(&context(), &ManagedObjectContext::objectsDidChange, invariants.get(),
            [this, answer](const ObjectsDidChange &change) {
                if (++changes == 1) {
                    answer(change);
                }
                invariants->contextDidChange(change);
                changesWhenDone = std::max(changesWhenDone, changes);
            });
    }
    int changes = 0;
    int changesWhenDone = 0;
};

TEST_F(RuleInvariantsAfterAnother, AnInsertedHistoryRecordIsProcessedAtOnce)
{
    answerFirstChangeWith([](const ObjectsDidChange &change) {
        change.inserted.first()->setValue(model::connection::notes, u"seen"_s);
    });
    context().insertNewObject(model::Connection);
    context().processPendingChanges();
    EXPECT_EQ(changesWhenDone, 2) << "the answer did not wait for the next turn";
}

TEST_F(RuleInvariantsAfterAnother, WhatIsProcessedMeanwhileIsNotLookedAt)
{
    haveRules({home, office});
    answerFirstChangeWith([this](const ObjectsDidChange &) { rename(0, office); });
    context().insertNewObject(model::Connection);
    context().processPendingChanges();
    EXPECT_EQ(changes, 2);
    EXPECT_EQ(nameOf(rules[0]), office);
}

TEST_F(RuleInvariantsTest, UndoAndRedoOfARenameKeepNamesUnique)
{
    haveRules({home, office});
    rename(0, office);
    endTurn();
    context().undoManager().undo();
    endTurn();
    EXPECT_EQ(nameOf(rules[0]), home);
    context().undoManager().redo();
    endTurn();
    EXPECT_EQ(nameOf(rules[0]), u"Office (2)"_s);
    EXPECT_EQ(nameOf(rules[1]), office);
}

TEST_F(RuleInvariantsTest, UndoAndRedoHaveTheNamesCollectedAnew)
{
    haveRules({home});
    context().undoManager().clear();
    const auto collectedAfter = [this](const std::function<void()> &change) {
        journal.clear();
        change();
        endTurn();
        EXPECT_EQ(journal, refreshed);
        return queries.namesArray();
    };
    const auto undo = [this] { context().undoManager().undo(); };
    const auto redo = [this] { context().undoManager().redo(); };

    insertRule(office);
    endTurn();
    queries.updateNamesArray();
    EXPECT_EQ(collectedAfter(undo), QStringList({home}));
    EXPECT_EQ(collectedAfter(redo), QStringList({home, office}));

    context().deleteObject(rules[0]);
    endTurn();
    queries.updateNamesArray();
    EXPECT_EQ(collectedAfter(undo), QStringList({home, office})) << "a name in use again";
    EXPECT_EQ(collectedAfter(redo), QStringList({office}));
}

TEST_F(RuleInvariantsTest, UndoOfWhatIsNoRuleTellsNobody)
{
    context().insertNewObject(model::Connection);
    endTurn();
    journal.clear();
    context().undoManager().undo();
    endTurn();
    EXPECT_EQ(journal, QStringList());
}

TEST_F(RuleInvariantsTest, WhileSuspendedNothingIsLookedAt)
{
    haveRules({home, office});
    {
        const RuleInvariants::Suspension suspension(*invariants);
        rename(0, office);
        endTurn();
        rules[1]->setValue(model::rule::ssidDefined, true);
    }
    endTurn();
    EXPECT_EQ(nameOf(rules[0]), office);
    EXPECT_EQ(journal, QStringList())
        << "the last change was processed before the suspension ended";
    rules[1]->setValue(model::rule::device, u"en0"_s);
    endTurn();
    EXPECT_EQ(journal, refreshed) << "looked at again";
}

TEST_F(RuleInvariantsTest, WhatChangedBeforeASuspensionIsStillLookedAt)
{
    haveRules({home, office});
    rename(0, office);
    {
        const RuleInvariants::Suspension suspension(*invariants);
        EXPECT_EQ(nameOf(rules[0]), u"Office (2)"_s);
    }
    endTurn();
    EXPECT_EQ(journal, refreshed);
}

TEST_F(RuleInvariantsTest, SuspensionsNest)
{
    haveRules({home, office});
    {
        const RuleInvariants::Suspension outer(*invariants);
        {
            const RuleInvariants::Suspension inner(*invariants);
        }
        rename(0, office);
        endTurn();
    }
    endTurn();
    EXPECT_EQ(nameOf(rules[0]), office);
    EXPECT_EQ(journal, QStringList());
}

TEST_F(RuleInvariantsTest, ASuspensionAloneMakesNoContext)
{
    {
        const RuleInvariants::Suspension suspension(*invariants);
    }
    EXPECT_FALSE(store.hasManagedObjectContext());
}

TEST_F(RuleInvariantsTest, TheNewContextIsLookedAtAfterAReplacement)
{
    haveRules({home, office});
    store.refreshPersistentContainer();
    const auto fetched = context().fetch({model::Rule, {}, {}});
    ASSERT_TRUE(fetched);
    rules = fetched.value();
    rename(0, office);
    endTurn();
    EXPECT_EQ(nameOf(rules[0]), u"Office (2)"_s);
    EXPECT_EQ(journal, refreshed);
}

TEST_F(RuleInvariantsTest, GoneBeforeTheLaterTurnTellsNobody)
{
    haveRules({home, office});
    rename(0, office);
    context().processPendingChanges();
    invariants.reset();
    endTurn();
    EXPECT_EQ(journal, QStringList());
}

} // namespace
} // namespace quillon
