// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/rules/RulesListModel.h"

#include "base/Languages.h"
#include "fakes/PredicateFormat.h"
#include "unit/rules/RuleFixture.h"

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

class RulesListModelTest : public RuleFixture
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
    addRule({.name = u"new"_s});
    const RuleList rules = queries.managedRuleArrayForDevice(allDevices);
    ASSERT_EQ(rules.size(), 1);
    const auto change = [](const ManagedObjectPtr &inserted) {
        return ObjectsDidChange{{inserted}, {}, {}};
    };
    model.reloadAfter(change(context().insertNewObject(u"Connection"_s)));
    EXPECT_EQ(names(), QStringList());
    model.reloadAfter(change(rules.first().object()));
    EXPECT_EQ(names(), QStringList{u"new"_s});
}

TEST_F(RulesListModelTest, AreExactlyThoseThatEvaluationConsiders)
{
    addRule({.name = u"mine"_s});
    addRule({.name = u"login"_s, .isLogin = true});
    addRule({.name = u"other"_s, .device = en1});
    model.filterRulesArrayController();
    EXPECT_EQ(model.state().filter, queries.filterPredicateForDevice(en0));
    EXPECT_EQ(names(), (QStringList{u"login"_s, u"mine"_s}));
}

TEST_F(RulesListModelTest, OfAWiredInterfaceStandUnderItsPortAndDevice)
{
    model.filterRulesArrayController();
    EXPECT_EQ(model.state().symbol, u"network"_s);
    EXPECT_EQ(model.state().title, u"Ethernet \u00B7 en0"_s);
}

TEST_F(RulesListModelTest, OfTheWifiInterfaceStandUnderTheNetworksName)
{
    select(en1);
    settings.set(keys::currentWiFiDict, QVariantMap{{wifirecord::name, u"Home"_s}});
    model.filterRulesArrayController();
    EXPECT_EQ(model.state().symbol, u"wifi"_s);
    EXPECT_EQ(model.state().title, u"Home"_s);
    EXPECT_EQ(format(model.state().filter), u"network == 'empty'"_s);
}

TEST_F(RulesListModelTest, OfAWifiInterfaceWithoutNetworkSaySoInTheUsersLanguage)
{
    const UserLanguage german({u"de"_s});
    select(en1);
    settings.set(
        keys::currentWiFiDict, QVariantMap{{wifirecord::name, u"Not currently connected..."_s}});
    model.filterRulesArrayController();
    EXPECT_EQ(model.state().title, u"Derzeit nicht verbunden..."_s);
    settings.set(keys::currentWiFiDict,
        QVariantMap{{wifirecord::name, u"Address"_s}, {wifirecord::BSSID, u"02:00:00:00:00:01"_s}});
    model.filterRulesArrayController();
    EXPECT_EQ(model.state().title, u"Address"_s) << "as the network calls itself";
}

TEST_F(RulesListModelTest, AreThoseOfTheSelectedInterfaceWheneverTheyAreShown)
{
    addRule({.name = u"mine"_s});
    model.toggleRulesPopover();
    EXPECT_TRUE(model.state().popoverShown);
    EXPECT_EQ(names(), QStringList{u"mine"_s});
    model.toggleRulesPopover();
    EXPECT_FALSE(model.state().popoverShown);
    select(en1);
    model.toggleRulesPopover();
    EXPECT_EQ(names(), QStringList());
    model.popoverWillClose();
    EXPECT_FALSE(model.state().popoverShown);
}

TEST_F(RulesListModelTest, StandEnabledFirstAndByName)
{
    addRule({.name = u"b"_s, .enabled = false});
    addRule({.name = u"d"_s, .network = u"x"_s});
    addRule({.name = u"a"_s, .enabled = false});
    addRule({.name = u"C"_s});
    model.filterRulesArrayController();
    EXPECT_EQ(names(), (QStringList{u"C"_s, u"d"_s, u"a"_s, u"b"_s}));
    EXPECT_TRUE(model.state().rows.first().enabled);
    EXPECT_FALSE(model.state().rows.last().enabled);
}

TEST_F(RulesListModelTest, KeepTheirSelectionAndBeginWithTheFirst)
{
    addRule({.name = u"a"_s});
    const Rule b = addRule({.name = u"b"_s, .network = u"x"_s});
    EXPECT_EQ(model.state().selectedRow, -1);
    model.filterRulesArrayController();
    EXPECT_EQ(model.state().selectedRow, 0);
    model.selectRow(1);
    b.setName(u"0"_s);
    model.reload();
    EXPECT_EQ(model.state().selectedRow, 0) << "the same rule, in its new place";
    model.selectRow(2);
    model.selectRow(-1);
    EXPECT_EQ(model.state().selectedRow, 0);
    context().deleteObject(b.object());
    model.reload();
    EXPECT_EQ(names(), QStringList{u"a"_s});
    EXPECT_EQ(model.state().selectedRow, 0);
}

TEST_F(RulesListModelTest, AreSwitchedByABroadcast)
{
    const Rule rule = addRule({.name = u"a"_s, .enabled = false});
    const auto token = notifications.addObserver(notifications::toggleCheckbox,
        [this](const auto &posted) { switches.toggleRule(posted.userInfo); });
    QObject::connect(
        &switches, &RuleSwitches::ruleToggled, [this] { model.filterRulesArrayController(); });
    model.filterRulesArrayController();
    model.toggleRule(rule.objID(), true);
    EXPECT_TRUE(rule.enabled());
    EXPECT_TRUE(model.state().rows.first().enabled);
    EXPECT_TRUE(model.state().rows.first().active);
    model.toggleRule(rule.objID(), false);
    EXPECT_FALSE(rule.enabled());
    int told = 0;
    const auto count =
        notifications.addObserver(notifications::toggleCheckbox, [&told](const auto &) { ++told; });
    select(en1);
    model.filterRulesArrayController();
    model.toggleRule(rule.objID(), true);
    EXPECT_EQ(told, 0) << "it is not listed any more";
    notifications.removeObserver(count);
    notifications.removeObserver(token);
}

} // namespace
} // namespace quillon::test
