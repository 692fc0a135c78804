// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "vendors/RuleVendor.h"

#include "VendorFixture.h"
#include "app/features/Features.h"

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

/// The vendor field of the rule editor, with its form.
class RuleVendorTest : public VendorFixture
{
protected:
    RuleVendorTest()
    {
        makeLive(registryOf({{"02A0B1", "Harbor"}, {"02A0B2", "Alder"}, {"02A0B3", "Harvest"}}));
        form.resetAllRuleValues(RuleFormModel::Kind::Network);
        form.actionSelectionChanged(Rule::changeAddress);
    }
    const VendorFieldModel::State &shown() const { return ruleField.state(); }

    VendorFieldModel &ruleField = feature.ruleField;
    RuleFormModel &form = program.features().rules.form;
};

TEST_F(RuleVendorTest, IsTheRowThatIsChosen)
{
    EXPECT_EQ(shown().text, u"Random Address"_s);
    ruleField.controlTextDidChange(u"har"_s);
    scheduler.runPending();
    EXPECT_EQ(form.values().vendor, u"har"_s) << "what the field shows";
    ASSERT_EQ(ruleField.rowCount(), 2);
    ruleField.tableViewShouldSelectRow(0);
    EXPECT_EQ(shown().text, u"Harbor (02A0B1)"_s);
    EXPECT_EQ(form.values().vendor, u"Harbor (02A0B1)"_s);
}

TEST_F(RuleVendorTest, IsTheOneBeforeWhenTypingIsGivenUp)
{
    ruleField.controlTextDidChange(u"har"_s);
    ruleField.giveUpTyping();
    EXPECT_EQ(shown().text, u"Random Address"_s);
    EXPECT_EQ(form.values().vendor, u"Random Address"_s);
}

TEST_F(RuleVendorTest, IsEnteredByTheArrowKey)
{
    ruleField.controlDoCommandBySelector(VendorFieldModel::Command::MoveDown);
    scheduler.runPending();
    EXPECT_TRUE(shown().popoverShown);
    EXPECT_EQ(form.values().vendor, u"Alder (02A0B2)"_s);
}

TEST_F(RuleVendorTest, IsThatOfTheRuleInTheForm)
{
    RuleValues rule = form.values();
    rule.vendor = u"Gone (02A0B9)"_s;
    ruleField.controlTextDidChange(u"typed"_s);
    form.fill(rule);
    EXPECT_EQ(shown().text, u"Gone (02A0B9)"_s);
    EXPECT_EQ(form.values().vendor, u"Gone (02A0B9)"_s) << "as it is stored";
}

TEST_F(RuleVendorTest, CannotBeChosenWhereTheAddressIsNotRandom)
{
    form.setVendor(u"Harbor (02A0B1)"_s);
    form.actionSelectionChanged(Rule::doNothing);
    EXPECT_FALSE(shown().enabled);
    EXPECT_EQ(shown().whyDisabled, u"Only a random address has a vendor"_s);
    form.actionSelectionChanged(Rule::changeAddress);
    EXPECT_TRUE(shown().enabled);
    EXPECT_EQ(form.values().vendor, shown().text);
}

TEST_F(RuleVendorTest, LeavesTheFieldOfTheMainWindowAlone)
{
    const QString before = field.state().text;
    ruleField.controlTextDidChange(u"har"_s);
    EXPECT_EQ(field.state().text, before);
    EXPECT_FALSE(field.state().popoverShown);
}

} // namespace
} // namespace quillon::test
