// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The rule editor among the other parts of the program.
#include "app/features/RuleFeature.h"
#include "unit/app/ProgramOnFakes.h"

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

using namespace std::chrono_literals;

class RuleFeatureEditorTest : public ProgramOnFakes
{
protected:
    RuleFeature &rules() { return features().rules; }
    RulesPreferencesViewController &editor() { return rules().preferences; }
    const RulesTableModel::Row &row(qsizetype place)
    {
        return rules().table.state().rows.at(place);
    }
    /// The program runs, and somebody looks at the list of rules.
    void look()
    {
        run();
        rules().table.begin();
    }

    const QString home = u"Home"_s;
};

TEST_F(RuleFeatureEditorTest, ASwitchActsOnceAndWarnsOfTheOther)
{
    look();
    insertRule(randomOnce(enp1s0, home));
    ASSERT_EQ(rules().table.state().rows.size(), 1);
    rules().table.selectRow(0);
    editor().duplicateRule();
    machine.scheduler.advance(10s);
    ASSERT_EQ(rules().table.state().rows.size(), 2);
    ASSERT_TRUE(row(0).enabled && row(1).enabled) << "until one of them is switched";
    ASSERT_TRUE(machine.helper.changes().isEmpty());
    const QString first = row(0).objID;
    const QString copy = row(1).objID;
    editor().switchRule(copy, true);
    machine.scheduler.advance(1s);
    EXPECT_EQ(machine.helper.changes().size(), 1) << "two observe the click";
    EXPECT_TRUE(row(rules().table.placeOf(copy)).enabled);
    EXPECT_FALSE(row(rules().table.placeOf(first)).enabled);
    EXPECT_NE(editor().state().warning, QString());
    EXPECT_FALSE(context().hasChanges()) << "it is saved";
    machine.scheduler.advance(30s);
    EXPECT_EQ(editor().state().warning, QString());
}

TEST_F(RuleFeatureEditorTest, TheTableIsReloadedWhenThatIsBroadcast)
{
    look();
    const ManagedObjectPtr rule = insertRule(randomOnce(enp1s0, home));
    rule->setPrimitiveValue(model::rule::name, u"silent"_s);
    ASSERT_EQ(row(0).values.name, home);
    machine.notifications.post(notifications::ruleTable);
    EXPECT_EQ(row(0).values.name, u"silent"_s);
}

TEST_F(RuleFeatureEditorTest, TheWarningComesByBroadcast)
{
    run();
    machine.notifications.post(notifications::showNetworkWarning);
    EXPECT_NE(editor().state().warning, QString());
}

TEST_F(RuleFeatureEditorTest, ItsListOfVendorsIsClosedByBroadcast)
{
    run();
    editor().addRule();
    rules().form.actionSelectionChanged(Rule::changeAddress);
    features().vendors.ruleField.showVendorViewPopover();
    machine.notifications.post(notifications::closeVendorViewPopover);
    EXPECT_FALSE(features().vendors.ruleField.state().popoverShown);
}

TEST_F(RuleFeatureEditorTest, AFormIsUntouchedHoweverItsVendorFieldIsFilled)
{
    run();
    editor().addRule();
    rules().form.actionSelectionChanged(Rule::changeAddress);
    rules().form.setVendor(u"Harbor (02A0B1)"_s);
    editor().cancelRule();
    editor().addLoginRule();
    EXPECT_FALSE(rules().form.isTouched());
    EXPECT_EQ(rules().form.values().vendor, u"Random Address"_s);
    editor().addRule();
    EXPECT_FALSE(rules().form.isTouched());
}

TEST_F(RuleFeatureEditorTest, ARuleThatIsMadeCountsDownOnceItIsOn)
{
    look();
    editor().addRule();
    rules().form.setName(home);
    rules().form.deviceSelectionChanged(placeOfStored(rules().form.state().devices, enp1s0));
    rules().form.actionSelectionChanged(Rule::changeAddress);
    rules().form.timerSelectionChanged(Rule::every);
    rules().form.setMinutes(u"30"_s);
    editor().chooseOK();
    machine.scheduler.advance(1s);
    EXPECT_FALSE(rules().timers.timers().contains(enp1s0)) << "it is off";
    editor().switchRule(row(0).objID, true);
    machine.scheduler.advance(1s);
    EXPECT_TRUE(rules().timers.timers().contains(enp1s0));
    EXPECT_FALSE(isChanged(enp1s0));
    machine.scheduler.advance(30min);
    EXPECT_TRUE(isChanged(enp1s0));
}

} // namespace
} // namespace quillon::test
