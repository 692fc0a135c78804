// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "fakes/PredicateFormat.h"
#include "networks/SavedNetworks.h"
#include "unit/rules/RuleMachine.h"

#include <QRegularExpression>

#include <SQLiteCpp/Database.h>

namespace quillon::test {
namespace {

const QString homeBssid = QStringLiteral("02:00:00:00:aa:01");

class RuleQueriesTest : public RuleMachine
{
protected:
    QStringList selected(const QString &device)
    {
        QStringList names;
        const RuleList rules = queries.rules(queries.filterPredicateForDevice(device));
        for (const Rule &rule : rules) {
            names << rule.name();
        }
        return names;
    }
    void beOn(const QString &ssid, const QString &bssid)
    {
        settings.set(keys::currentWiFiDict,
            QVariantMap{{wifirecord::SSID, ssid}, {wifirecord::BSSID, bssid}});
    }
    /// A rule of the Wi-Fi interface for each kind of network.
    void addRuleOfEachKind()
    {
        addRule({.name = QStringLiteral("home"), .device = en1, .network = homeBssid});
        addRule({.name = QStringLiteral("any"), .device = en1, .network = anyNetwork});
        addRule({.name = QStringLiteral("unknown"), .device = en1, .network = anUnknownNetwork});
        addRule({.name = QStringLiteral("mesh"),
            .device = en1,
            .network = QStringLiteral("02:00:00:00:bb:01"),
            .ssid = QStringLiteral("Mesh"),
            .ssidDefined = true});
        addRule({.name = QStringLiteral("login"), .device = en1, .isLogin = true});
        addRule({.name = QStringLiteral("elsewhere"), .device = en0, .network = homeBssid});
    }
};

TEST_F(RuleQueriesTest, FindsTheRulesOfADeviceInTheOrderOfTheirCreation)
{
    addRule({.name = QStringLiteral("b")});
    addRule({.name = QStringLiteral("x"), .device = en1});
    addRule({.name = QStringLiteral("a")});
    RuleList rules = queries.managedRuleArrayForDevice(en0);
    ASSERT_EQ(rules.size(), 2);
    EXPECT_EQ(rules.at(0).name(), QStringLiteral("b"));
    EXPECT_EQ(rules.at(1).name(), QStringLiteral("a"));
    EXPECT_EQ(queries.managedRuleArrayForDevice(QStringLiteral("all")).size(), 3);
    EXPECT_TRUE(queries.managedRuleArrayForDevice(QStringLiteral("EN0")).isEmpty());
    EXPECT_TRUE(queries.managedRuleArrayForDevice(QString()).isEmpty());
}

TEST_F(RuleQueriesTest, AsksTheStoreForRules)
{
    EXPECT_EQ(Rule::fetchRequest().entity, QStringLiteral("Rule"));
    EXPECT_FALSE(Rule::fetchRequest().predicate);
    EXPECT_TRUE(Rule::fetchRequest().order.isEmpty());
}

TEST_F(RuleQueriesTest, OfAWiredInterfaceSelectsAllOfItsRulesLoginRulesIncluded)
{
    addRule({.name = QStringLiteral("home"), .network = homeBssid});
    addRule({.name = QStringLiteral("any")});
    addRule({.name = QStringLiteral("login"), .isLogin = true});
    addRule({.name = QStringLiteral("x"), .device = en1});
    EXPECT_EQ(format(queries.filterPredicateForDevice(en0)), QStringLiteral("device == 'en0'"));
    EXPECT_EQ(selected(en0),
        (QStringList{QStringLiteral("home"), QStringLiteral("any"), QStringLiteral("login")}));
}

TEST_F(RuleQueriesTest, OfAWifiInterfaceThatIsOnNoNetworkIsABareConditionThatNoRuleMeets)
{
    addRuleOfEachKind();
    EXPECT_EQ(format(queries.filterPredicateForDevice(en1)), QStringLiteral("network == 'empty'"));
    EXPECT_TRUE(selected(en1).isEmpty());
    beOn(QStringLiteral("Home"), QString());
    EXPECT_EQ(format(queries.filterPredicateForDevice(en1)), QStringLiteral("network == 'empty'"));
}

TEST_F(RuleQueriesTest, OfAWifiInterfaceOnASavedNetworkIsPrintedInTheUsualNotation)
{
    saveNetwork(QStringLiteral("Home"), QStringLiteral("Home"), homeBssid, false);
    beOn(QStringLiteral("Home"), homeBssid.toUpper());
    EXPECT_EQ(format(queries.filterPredicateForDevice(en1)).toStdString(),
        "(device == 'en1') && ((network == '02:00:00:00:aa:01') || (network == 'Any Network') || "
        "((ssid == 'Home') && (ssidDefined == YES)))");
}

TEST_F(RuleQueriesTest, OfAWifiInterfaceOnAnUnknownNetworkIsPrintedInTheUsualNotation)
{
    beOn(QStringLiteral("Cafe"), QStringLiteral("02:00:00:00:cc:01"));
    EXPECT_EQ(format(queries.filterPredicateForDevice(en1)).toStdString(),
        "(device == 'en1') && ((network == '02:00:00:00:cc:01') || (network == 'Any Network') || "
        "((ssid == 'Cafe') && (ssidDefined == YES)) || (network == 'An Unknown Network'))");
}

TEST_F(RuleQueriesTest, OnASavedNetworkSelectsItsRulesAndThoseForAny)
{
    addRuleOfEachKind();
    saveNetwork(QStringLiteral("Home"), QStringLiteral("Home"), homeBssid, false);
    beOn(QStringLiteral("Home"), homeBssid.toUpper());
    EXPECT_EQ(selected(en1), (QStringList{QStringLiteral("home"), QStringLiteral("any")}));
}

TEST_F(RuleQueriesTest, OnANetworkThatIsNotSavedSelectsThoseForUnknownNetworksToo)
{
    addRuleOfEachKind();
    beOn(QStringLiteral("Cafe"), QStringLiteral("02:00:00:00:cc:01"));
    EXPECT_EQ(selected(en1), (QStringList{QStringLiteral("any"), QStringLiteral("unknown")}));
}

TEST_F(RuleQueriesTest, RecognisesANetworkByItsSsidAtAnotherAccessPoint)
{
    addRuleOfEachKind();
    saveNetwork(
        QStringLiteral("Mesh"), QStringLiteral("Mesh"), QStringLiteral("02:00:00:00:bb:01"), true);
    beOn(QStringLiteral("Mesh"), QStringLiteral("02:00:00:00:bb:99"));
    EXPECT_EQ(selected(en1), (QStringList{QStringLiteral("any"), QStringLiteral("mesh")}));
}

TEST_F(RuleQueriesTest, FindsANetworkSavedInUpperCaseUnknownUnlessItsSsidCounts)
{
    addRuleOfEachKind();
    saveNetwork(QStringLiteral("Home"), QStringLiteral("Home"), homeBssid.toUpper(), false);
    ASSERT_EQ(favouriteNetworks(settings), QStringList{homeBssid.toUpper()});
    beOn(QStringLiteral("Home"), homeBssid);
    EXPECT_EQ(selected(en1),
        (QStringList{QStringLiteral("home"), QStringLiteral("any"), QStringLiteral("unknown")}));
    saveNetwork(QStringLiteral("Home"), QStringLiteral("Home"), homeBssid.toUpper(), true);
    EXPECT_EQ(selected(en1), (QStringList{QStringLiteral("home"), QStringLiteral("any")}));
}

TEST_F(RuleQueriesTest, ComparesSsidsExactly)
{
    addRuleOfEachKind();
    saveNetwork(
        QStringLiteral("Mesh"), QStringLiteral("Mesh"), QStringLiteral("02:00:00:00:bb:01"), true);
    beOn(QStringLiteral("mesh"), QStringLiteral("02:00:00:00:bb:99"));
    EXPECT_EQ(selected(en1), (QStringList{QStringLiteral("any"), QStringLiteral("unknown")}));
}

TEST_F(RuleQueriesTest, ReadsSettingsThatAreNoneAsNothing)
{
    addRuleOfEachKind();
    settings.set(keys::savedNetworks, QVariantMap{{homeBssid, QVariant(QStringLiteral("text"))}});
    for (const QVariant &record : {QVariant(QStringLiteral("text")),
             QVariant(QVariantMap{{wifirecord::BSSID, QVariantMap()}}), QVariant()}) {
        settings.set(keys::currentWiFiDict, record);
        EXPECT_EQ(
            format(queries.filterPredicateForDevice(en1)), QStringLiteral("network == 'empty'"));
    }
    beOn(QStringLiteral("Home"), homeBssid);
    EXPECT_EQ(selected(en1).size(), 3);
    settings.set(keys::deviceDict, QStringLiteral("text"));
    EXPECT_EQ(format(queries.filterPredicateForDevice(en1)), QStringLiteral("device == 'en1'"));
}

TEST_F(RuleQueriesTest, LogsAFetchThatFailsAndFindsNothing)
{
    addRule({.name = QStringLiteral("a")});
    ASSERT_FALSE(context().save());
    SQLite::Database(
        folder.filePath(QStringLiteral("Quillon.sqlite")).toStdString(), SQLite::OPEN_READWRITE)
        .exec("DROP TABLE Rule");
    const LogCapture log;
    EXPECT_TRUE(queries.managedRuleArrayForDevice(en0).isEmpty());
    const QStringList lines = LogCapture::taken();
    ASSERT_EQ(lines.size(), 2);
    EXPECT_EQ(lines.at(0), QStringLiteral("quillon.rules: Unable to execute fetch request."));
    EXPECT_TRUE(QRegularExpression(QStringLiteral("^quillon.rules: \\S+ \\d+, .*Rule.*"))
                    .match(lines.at(1))
                    .hasMatch())
        << lines.at(1).toStdString();
    evaluate(en0, RuleChange::NetworkRule);
    EXPECT_EQ(hasRule(en0), QVariant(0)) << "as if no rule matched";
}

TEST_F(RuleQueriesTest, GivesRulesByTheirIdentity)
{
    const Rule rule = addRule({.name = QStringLiteral("a")});
    EXPECT_EQ(queries.ruleWithID(rule.objID()), rule);
    ASSERT_FALSE(context().save());
    EXPECT_EQ(queries.ruleWithID(rule.objID()), rule);
    const ManagedObjectPtr connection = context().insertNewObject(QStringLiteral("Connection"));
    for (const QString &text : {QString(), QStringLiteral("text"), connection->uriRepresentation(),
             rule.objID() + QStringLiteral("0")}) {
        EXPECT_TRUE(queries.ruleWithID(text).isNull()) << text.toStdString();
    }
    context().deleteObject(rule.object());
    context().processPendingChanges();
    EXPECT_TRUE(queries.ruleWithID(rule.objID()).isNull());
}

TEST_F(RuleQueriesTest, CollectsTheNamesOnRequest)
{
    addRule({.name = QStringLiteral("b")});
    addRule({.name = QStringLiteral("a"), .device = en1});
    EXPECT_TRUE(queries.namesArray().isEmpty());
    queries.updateNamesArray();
    EXPECT_EQ(queries.namesArray(), (QStringList{QStringLiteral("b"), QStringLiteral("a")}));
    context().deleteObject(queries.managedRuleArrayForDevice(en0).first().object());
    queries.updateNamesArray();
    EXPECT_EQ(queries.namesArray(), QStringList{QStringLiteral("a")});
}

TEST_F(RuleQueriesTest, KeepsEveryAttributeOfARule)
{
    const Rule rule(context().insertNewObject(QStringLiteral("Rule")));
    EXPECT_EQ(rule.action(), 0);
    EXPECT_FALSE(rule.enabled());
    EXPECT_EQ(rule.network(), QString());
    rule.setAction(Rule::notChosen);
    rule.setActive(true);
    rule.setAddress(fixedAddress);
    rule.setChangeAction(Rule::every);
    rule.setDevice(en0);
    rule.setEnabled(true);
    rule.setIsLogin(true);
    rule.setName(QStringLiteral("name"));
    rule.setNetwork(homeBssid);
    rule.setSsid(QStringLiteral("Home"));
    rule.setSsidDefined(true);
    rule.setTimerMins(12);
    rule.setVendor(QStringLiteral("Maker (A1B2C3)"));
    EXPECT_EQ(rule.action(), -1);
    EXPECT_TRUE(rule.active());
    EXPECT_EQ(rule.address(), fixedAddress);
    EXPECT_EQ(rule.changeAction(), 1);
    EXPECT_EQ(rule.device(), en0);
    EXPECT_TRUE(rule.enabled());
    EXPECT_TRUE(rule.isLogin());
    EXPECT_EQ(rule.name(), QStringLiteral("name"));
    EXPECT_EQ(rule.network(), homeBssid);
    EXPECT_EQ(rule.ssid(), QStringLiteral("Home"));
    EXPECT_TRUE(rule.ssidDefined());
    EXPECT_EQ(rule.timerMins(), 12);
    EXPECT_EQ(rule.vendor(), QStringLiteral("Maker (A1B2C3)"));
}

TEST_F(RuleQueriesTest, ToleratesARuleThatIsNone)
{
    const Rule none;
    none.setEnabled(true);
    EXPECT_TRUE(none.isNull());
    EXPECT_FALSE(none.enabled());
    EXPECT_EQ(none.name(), QString());
    EXPECT_EQ(none.objID(), QString());
    EXPECT_TRUE(updateRuledictWithRule({}, none).isEmpty());
}

TEST_F(RuleQueriesTest, FlattensARuleWithItsMinutesUnderTheirOwnKey)
{
    const Rule rule = addRule({.name = QStringLiteral("a"), .timerMins = 7});
    const QVariantMap flat = updateRuledictWithRule({}, rule);
    EXPECT_EQ(flat.keys(),
        (QStringList{QStringLiteral("action"), QStringLiteral("active"), QStringLiteral("address"),
            QStringLiteral("changeAction"), QStringLiteral("device"), QStringLiteral("enabled"),
            QStringLiteral("isLogin"), QStringLiteral("name"), QStringLiteral("network"),
            QStringLiteral("ssid"), QStringLiteral("ssidDefined"), QStringLiteral("timerMinutes"),
            QStringLiteral("vendor")}));
    EXPECT_EQ(flat.value(QStringLiteral("timerMinutes")), QVariant(7));
    EXPECT_EQ(flat.value(QStringLiteral("enabled")), QVariant(1)) << "as the integer too";
    EXPECT_TRUE(isPropertyList(flat));
}

TEST_F(RuleQueriesTest, FlattensIntoADictionaryWhoseOtherKeysStay)
{
    const Rule rule(context().insertNewObject(QStringLiteral("Rule")));
    rule.setName(QStringLiteral("a"));
    const QVariantMap flat = updateRuledictWithRule(
        {{QStringLiteral("note"), 1}, {QStringLiteral("name"), 2}, {QStringLiteral("vendor"), 3}},
        rule);
    EXPECT_EQ(flat,
        (QVariantMap{{QStringLiteral("note"), 1}, {QStringLiteral("name"), QStringLiteral("a")}}))
        << "an attribute that holds nothing has no entry";
}

} // namespace
} // namespace quillon::test
