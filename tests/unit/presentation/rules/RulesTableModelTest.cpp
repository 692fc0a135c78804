// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/rules/RulesTableModel.h"

#include "unit/presentation/rules/RuleEditorFixture.h"

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

class RulesTableModelTest : public RuleEditorFixture
{
protected:
    std::vector<qsizetype> selected() const { return rows.state().selectedRows; }
};

TEST_F(RulesTableModelTest, StandsByTheirSwitchThenDeviceDownwardsThenName)
{
    addRule({.name = u"off"_s, .device = en1, .enabled = false});
    addRule({.name = u"b"_s});
    addRule({.name = u"a"_s});
    addRule({.name = u"Z"_s});
    addRule({.name = u"radio"_s, .device = en1});
    EXPECT_EQ(names(), (QStringList{u"radio"_s, u"Z"_s, u"a"_s, u"b"_s, u"off"_s}));
}

TEST_F(RulesTableModelTest, IsEmptyUntilSomebodyLooks)
{
    RulesTableModel unseen{{settings, table, queries}};
    addRule({.name = u"a"_s});
    unseen.reload();
    EXPECT_TRUE(unseen.state().rows.isEmpty());
    unseen.begin();
    EXPECT_EQ(unseen.state().rows.size(), 1);
}

TEST_F(RulesTableModelTest, FollowsTheRecords)
{
    const Rule rule = addRule({.name = u"a"_s, .enabled = false});
    ASSERT_EQ(rows.state().rows.size(), 1);
    EXPECT_FALSE(rows.state().rows.first().enabled);
    rule.setEnabled(true);
    evaluate(en0, RuleChange::None);
    EXPECT_TRUE(rows.state().rows.first().enabled);
    EXPECT_TRUE(rows.state().rows.first().active);
    context().deleteObject(rule.object());
    context().processPendingChanges();
    EXPECT_TRUE(rows.state().rows.isEmpty());
}

TEST_F(RulesTableModelTest, SaysWhatARuleDoesInTodaysWords)
{
    addRule({.name = u"a"_s, .device = en1, .network = homeBssid});
    saveNetwork(u"Home"_s, u"H"_s, homeBssid, false);
    EXPECT_EQ(rows.sentenceOf(0), u"On Home, give Wi-Fi \u00B7 en1 a random address once."_s);
    saveNetwork(u"Our house"_s, u"H"_s, homeBssid, false);
    EXPECT_EQ(rows.sentenceOf(0), u"On Our house, give Wi-Fi \u00B7 en1 a random address once."_s);
    EXPECT_EQ(rows.sentenceOf(7), QString());
    EXPECT_EQ(rows.sentenceOf(-1), QString());
}

TEST_F(RulesTableModelTest, SaysWhyARuleIsNotInForce)
{
    addRule({.name = u"a"_s, .enabled = false});
    EXPECT_EQ(rows.reasonOf(0), u"Not in force: it is switched off."_s);
    EXPECT_EQ(rows.reasonOf(7), QString());
}

TEST_F(RulesTableModelTest, KeepsTheSelectionOnItsRules)
{
    addRule({.name = u"b"_s});
    addRule({.name = u"d"_s});
    rows.selectRows({0, 1}, 0);
    addRule({.name = u"a"_s});
    addRule({.name = u"c"_s});
    EXPECT_EQ(selected(), (std::vector<qsizetype>{1, 3}));
    EXPECT_EQ(rows.state().lastSelected, 1);
}

TEST_F(RulesTableModelTest, MovesTheSelectionOnFromARuleThatGoes)
{
    const Rule first = addRule({.name = u"a"_s});
    const Rule second = addRule({.name = u"b"_s});
    rows.selectRow(0);
    context().deleteObject(first.object());
    context().processPendingChanges();
    EXPECT_EQ(selected(), std::vector<qsizetype>{0});
    context().deleteObject(second.object());
    context().processPendingChanges();
    EXPECT_EQ(selected(), std::vector<qsizetype>());
    EXPECT_EQ(rows.state().lastSelected, -1);
}

TEST_F(RulesTableModelTest, SelectsNoRowThatIsNotThere)
{
    addRule({.name = u"a"_s});
    rows.selectRows({-1, 0, 4}, 4);
    EXPECT_EQ(selected(), std::vector<qsizetype>{0});
    EXPECT_EQ(rows.state().lastSelected, 0);
    rows.selectRow(9);
    EXPECT_EQ(selected(), std::vector<qsizetype>{0});
    rows.selectRules({u"junk"_s});
    EXPECT_EQ(selected(), std::vector<qsizetype>());
}

} // namespace
} // namespace quillon::test
