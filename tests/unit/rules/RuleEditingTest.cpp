// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "rules/RuleEditing.h"

#include "unit/rules/RuleFixture.h"

#include <SQLiteCpp/Database.h>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

class RuleEditingTest : public RuleFixture
{
protected:
    RuleEditingTest()
    {
        QObject::connect(&editing, &RuleEditing::rulesRenamed, [this] { ++renames; });
    }
    Rule rule(const QString &objID) { return queries.ruleWithID(objID); }
    QStringList names() const
    {
        QStringList names;
        for (const Rule &rule : queries.managedRuleArrayForDevice(allDevices)) {
            names << rule.name();
        }
        return names;
    }
    /// Another program keeps the file from being written.
    void lockFile()
    {
        context().save();
        lock.emplace(folder.filePath(u"Quillon.sqlite"_s).toStdString(), SQLite::OPEN_READWRITE);
        lock->exec("BEGIN IMMEDIATE");
    }

    const RuleValues office{.name = u"Office"_s,
        .device = u"en0"_s,
        .network = u"02:00:00:00:aa:01"_s,
        .ssid = u"Work"_s,
        .ssidDefined = true,
        .action = Rule::changeAddress,
        .address = u"02:00:00:00:00:77"_s,
        .vendor = u"Harbor (02A0B1)"_s,
        .changeAction = Rule::every,
        .timerMins = 12};
    RuleEditing editing{{store, queries, evaluation}};
    std::optional<SQLite::Database> lock;
    int renames = 0;
};

TEST_F(RuleEditingTest, AddsARuleSwitchedOffAndSaved)
{
    const Rule added = rule(editing.addRule(office));
    EXPECT_EQ(RuleValues::of(added), office);
    EXPECT_FALSE(added.enabled());
    EXPECT_FALSE(added.active());
    EXPECT_TRUE(added.object()->value(model::rule::enabled).isValid());
    EXPECT_TRUE(added.object()->value(model::rule::active).isValid());
    EXPECT_FALSE(context().hasChanges());
    EXPECT_EQ(queries.namesArray(), QStringList{u"Office"_s});
}

TEST_F(RuleEditingTest, ShowsANewRuleInTheStatusAndChangesNothing)
{
    editing.addRule(office);
    scheduler.runPending();
    EXPECT_EQ(hasRule(en0), 2) << "there is one, and it is off";
    EXPECT_TRUE(helper.changes().isEmpty());
}

TEST_F(RuleEditingTest, GivesANewRuleANameOfItsOwn)
{
    editing.addRule(office);
    EXPECT_EQ(rule(editing.addRule(office)).name(), u"Office (2)"_s);
    EXPECT_EQ(rule(editing.addRule(office)).name(), u"Office (3)"_s);
}

TEST_F(RuleEditingTest, LogsWhatCannotBeSavedAndKeepsIt)
{
    lockFile();
    const LogCapture log;
    const QString added = editing.addRule(office);
    EXPECT_TRUE(LogCapture::taken().contains(u"quillon.rules: Rule not added..."_s));
    EXPECT_TRUE(context().hasChanges());
    editing.duplicateRules({added});
    EXPECT_TRUE(LogCapture::taken().contains(u"quillon.rules: Rule not duplicated..."_s));
    editing.renameRule(added, u"Other"_s);
    EXPECT_TRUE(LogCapture::taken().contains(u"quillon.rules: Rule not updated..."_s));
    editing.deleteRules({added});
    EXPECT_TRUE(LogCapture::taken().contains(u"quillon.rules: Rule not removed..."_s));
    EXPECT_EQ(names(), QStringList{u"Office copy"_s});
}

TEST_F(RuleEditingTest, UpdatesARuleWithoutSaving)
{
    const Rule updated = addRule({.name = u"Home"_s, .enabled = true});
    evaluate(en0, RuleChange::None);
    context().save();
    editing.updateRule(updated.objID(), office);
    EXPECT_EQ(RuleValues::of(updated), office);
    EXPECT_TRUE(updated.enabled());
    EXPECT_TRUE(updated.active());
    EXPECT_TRUE(context().hasChanges());
    EXPECT_EQ(recordedRule(en0).value(u"vendor"_s), office.vendor) << "the status follows at once";
    EXPECT_EQ(renames, 1);
    EXPECT_EQ(queries.namesArray(), QStringList{u"Office"_s});
}

TEST_F(RuleEditingTest, KeepsTheNameOfAnUpdatedRuleUnlessItDiffers)
{
    addRule({.name = u"Home"_s});
    const Rule updated = addRule({.name = u"Office"_s});
    editing.updateRule(updated.objID(), office);
    EXPECT_EQ(updated.name(), u"Office"_s);
    EXPECT_EQ(renames, 0);
    RuleValues home = office;
    home.name = u"Home"_s;
    editing.updateRule(updated.objID(), home);
    scheduler.runPending();
    EXPECT_EQ(updated.name(), u"Home (2)"_s);
}

TEST_F(RuleEditingTest, UpdatesOfALoginRuleWhatItHas)
{
    const Rule updated = addRule({.name = u"Login"_s,
        .isLogin = true,
        .action = Rule::notChosen,
        .changeAction = Rule::notChosen});
    editing.updateRule(updated.objID(), office);
    EXPECT_EQ(updated.name(), u"Office"_s);
    EXPECT_EQ(updated.address(), office.address);
    EXPECT_EQ(updated.vendor(), office.vendor);
    EXPECT_EQ(updated.network(), QString());
    EXPECT_EQ(updated.action(), Rule::notChosen);
    EXPECT_EQ(updated.changeAction(), Rule::notChosen);
    EXPECT_FALSE(updated.ssidDefined());
    EXPECT_TRUE(updated.isLogin());
    EXPECT_EQ(updated.timerMins(), 5);
    EXPECT_TRUE(context().hasChanges()) << "saved with the next save";
    EXPECT_EQ(queries.namesArray(), QStringList{u"Office"_s});
}

TEST_F(RuleEditingTest, UndoesAnUpdateAsAWhole)
{
    const Rule updated = addRule({.name = u"Home"_s});
    context().save();
    scheduler.runPending();
    const RuleValues before = RuleValues::of(updated);
    editing.updateRule(updated.objID(), office);
    scheduler.runPending();
    store.undo();
    scheduler.runPending();
    RuleValues after = RuleValues::of(updated);
    EXPECT_EQ(after, before);
}

TEST_F(RuleEditingTest, DeletesAndBringsBack)
{
    const Rule first = addRule({.name = u"first"_s});
    const Rule second = addRule({.name = u"second"_s});
    addRule({.name = u"third"_s, .device = en1});
    evaluate(allDevices, RuleChange::None);
    context().save();
    scheduler.runPending();
    EXPECT_EQ(editing.deleteRules({first.objID(), second.objID(), u"junk"_s}), 2);
    scheduler.runPending();
    EXPECT_EQ(names(), QStringList{u"third"_s});
    EXPECT_EQ(queries.namesArray(), QStringList{u"third"_s});
    EXPECT_EQ(hasRule(en0), 0);
    EXPECT_FALSE(context().hasChanges());
    ASSERT_TRUE(editing.canRestoreDeleted());
    editing.restoreDeleted();
    scheduler.runPending();
    EXPECT_EQ(names(), (QStringList{u"first"_s, u"second"_s, u"third"_s}));
    EXPECT_EQ(queries.namesArray().size(), 3);
    EXPECT_EQ(hasRule(en0), 1);
    EXPECT_FALSE(context().hasChanges());
    EXPECT_FALSE(editing.canRestoreDeleted());
}

TEST_F(RuleEditingTest, UndoesNothingElseInPlaceOfADeletion)
{
    const QString deleted = addRule({.name = u"deleted"_s}).objID();
    const Rule kept = addRule({.name = u"kept"_s});
    context().save();
    scheduler.runPending();
    editing.deleteRules({deleted});
    scheduler.runPending();
    kept.setVendor(u"other"_s);
    scheduler.runPending();
    EXPECT_FALSE(editing.canRestoreDeleted());
    editing.restoreDeleted();
    EXPECT_EQ(kept.vendor(), u"other"_s);
    EXPECT_EQ(names(), QStringList{u"kept"_s});
}

TEST_F(RuleEditingTest, CanBringNothingBackInAnotherContext)
{
    const QString deleted = addRule({.name = u"deleted"_s}).objID();
    addRule({.name = u"kept"_s});
    context().save();
    scheduler.runPending();
    editing.deleteRules({deleted});
    scheduler.runPending();
    store.refreshPersistentContainer();
    EXPECT_FALSE(editing.canRestoreDeleted());
}

TEST_F(RuleEditingTest, DeletesNothingThatIsNotThere)
{
    EXPECT_EQ(editing.deleteRules({u"junk"_s}), 0);
    EXPECT_FALSE(editing.canRestoreDeleted());
}

TEST_F(RuleEditingTest, DuplicatesAllOfARuleButItsName)
{
    const Rule original = addRule({.name = u"Home"_s, .vendor = u"Harbor (02A0B1)"_s});
    evaluate(en0, RuleChange::None);
    overviews.clear();
    const QStringList copies = editing.duplicateRules({original.objID()});
    ASSERT_EQ(copies.size(), 1);
    const Rule copy = rule(copies.first());
    RuleValues expected = RuleValues::of(original);
    expected.name = u"Home copy"_s;
    EXPECT_EQ(RuleValues::of(copy), expected);
    EXPECT_TRUE(copy.enabled());
    EXPECT_TRUE(copy.active());
    EXPECT_TRUE(original.enabled());
    EXPECT_FALSE(context().hasChanges());
    EXPECT_TRUE(overviews.isEmpty()) << "nothing is evaluated";
    EXPECT_EQ(queries.namesArray(), (QStringList{u"Home"_s, u"Home copy"_s}));
    EXPECT_EQ(rule(editing.duplicateRules({original.objID()}).first()).name(), u"Home copy (2)"_s);
}

TEST_F(RuleEditingTest, DuplicatesSeveralUnderNamesOfTheirOwn)
{
    const QString first = addRule({.name = u"Home"_s}).objID();
    const QString second = addRule({.name = u"Home"_s}).objID();
    editing.duplicateRules({first, second});
    EXPECT_EQ(names(), (QStringList{u"Home"_s, u"Home"_s, u"Home copy"_s, u"Home copy (2)"_s}));
}

TEST_F(RuleEditingTest, RenamesAsTyped)
{
    addRule({.name = u"Home"_s});
    const Rule renamed = addRule({.name = u"Office"_s});
    context().save();
    overviews.clear();
    editing.renameRule(renamed.objID(), u"Home"_s);
    EXPECT_FALSE(overviews.isEmpty()) << "the status follows at once";
    scheduler.runPending();
    EXPECT_EQ(renamed.name(), u"Home"_s) << "another may be called so";
    EXPECT_EQ(queries.namesArray(), (QStringList{u"Home"_s, u"Home"_s}));
    EXPECT_FALSE(context().hasChanges());
    EXPECT_EQ(renames, 1);
    editing.renameRule(u"junk"_s, u"x"_s);
    EXPECT_EQ(renames, 1);
}

} // namespace
} // namespace quillon::test
