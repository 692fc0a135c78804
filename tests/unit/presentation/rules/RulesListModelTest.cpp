// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/rules/RulesListModel.h"

#include "fakes/PredicateFormat.h"
#include "unit/rules/RuleMachine.h"

namespace quillon::test {
namespace {

class RulesListModelTest : public RuleMachine
{
protected:
    QStringList names() const
    {
        QStringList names;
        for (const RulesListModel::Row &row : model.state().rows) {
            names << row.name;
        }
        return names;
    }
    RulesListModel model{{settings, notifications, current, queries}};
};

TEST_F(RulesListModelTest, AreFetchedAgainOnlyWhenARuleIsAmongTheChangedRecords)
{
    model.filterRulesArrayController();
    addRule({.name = QStringLiteral("new")});
    const RuleList rules = queries.managedRuleArrayForDevice(allDevices);
    ASSERT_EQ(rules.size(), 1);
    const auto change = [](const ManagedObjectPtr &inserted) {
        return ObjectsDidChange{{inserted}, {}, {}};
    };
    model.reloadAfter(change(context().insertNewObject(QStringLiteral("Connection"))));
    EXPECT_EQ(names(), QStringList());
    model.reloadAfter(change(rules.first().object()));
    EXPECT_EQ(names(), QStringList{QStringLiteral("new")});
}

TEST_F(RulesListModelTest, AreExactlyThoseThatEvaluationConsiders)
{
    addRule({.name = QStringLiteral("mine")});
    addRule({.name = QStringLiteral("login"), .isLogin = true});
    addRule({.name = QStringLiteral("other"), .device = en1});
    model.filterRulesArrayController();
    EXPECT_EQ(model.state().filter, queries.filterPredicateForDevice(en0));
    EXPECT_EQ(names(), (QStringList{QStringLiteral("login"), QStringLiteral("mine")}));
}

TEST_F(RulesListModelTest, OfAWiredInterfaceStandUnderItsPortAndDevice)
{
    model.filterRulesArrayController();
    EXPECT_EQ(model.state().symbol, QStringLiteral("network"));
    EXPECT_EQ(model.state().title, QStringLiteral("Ethernet \u00B7 en0"));
}

TEST_F(RulesListModelTest, OfTheWifiInterfaceStandUnderTheNetworksName)
{
    select(en1);
    settings.set(keys::currentWiFiDict, QVariantMap{{wifirecord::name, QStringLiteral("Home")}});
    model.filterRulesArrayController();
    EXPECT_EQ(model.state().symbol, QStringLiteral("wifi"));
    EXPECT_EQ(model.state().title, QStringLiteral("Home"));
    EXPECT_EQ(format(model.state().filter), QStringLiteral("network == 'empty'"));
}

TEST_F(RulesListModelTest, StandEnabledFirstAndByName)
{
    addRule({.name = QStringLiteral("b"), .enabled = false});
    addRule({.name = QStringLiteral("d"), .network = QStringLiteral("x")});
    addRule({.name = QStringLiteral("a"), .enabled = false});
    addRule({.name = QStringLiteral("C")});
    model.filterRulesArrayController();
    EXPECT_EQ(names(), (QStringList{QStringLiteral("C"), QStringLiteral("d"), QStringLiteral("a"),
                           QStringLiteral("b")}));
    EXPECT_TRUE(model.state().rows.first().enabled);
    EXPECT_FALSE(model.state().rows.last().enabled);
}

TEST_F(RulesListModelTest, KeepTheirSelectionAndBeginWithTheFirst)
{
    addRule({.name = QStringLiteral("a")});
    const Rule b = addRule({.name = QStringLiteral("b"), .network = QStringLiteral("x")});
    EXPECT_EQ(model.state().selectedRow, -1);
    model.filterRulesArrayController();
    EXPECT_EQ(model.state().selectedRow, 0);
    model.selectRow(1);
    b.setName(QStringLiteral("0"));
    model.reload();
    EXPECT_EQ(model.state().selectedRow, 0) << "the same rule, in its new place";
    model.selectRow(2);
    model.selectRow(-1);
    EXPECT_EQ(model.state().selectedRow, 0);
    context().deleteObject(b.object());
    model.reload();
    EXPECT_EQ(names(), QStringList{QStringLiteral("a")});
    EXPECT_EQ(model.state().selectedRow, 0);
}

TEST_F(RulesListModelTest, AreSwitchedByABroadcast)
{
    const Rule rule = addRule({.name = QStringLiteral("a"), .enabled = false});
    const auto token = notifications.addObserver(notifications::toggleCheckbox,
        [this](const auto &posted) { switches.toggleRule(posted.userInfo); });
    QObject::connect(
        &switches, &RuleSwitches::ruleToggled, [this] { model.filterRulesArrayController(); });
    model.filterRulesArrayController();
    model.toggle(0, true);
    EXPECT_TRUE(rule.enabled());
    EXPECT_TRUE(model.state().rows.first().enabled);
    EXPECT_TRUE(model.state().rows.first().active);
    model.toggle(7, true);
    model.toggle(-1, true);
    notifications.removeObserver(token);
}

} // namespace
} // namespace quillon::test
