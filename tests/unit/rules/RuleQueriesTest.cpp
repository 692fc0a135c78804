// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "fakes/PredicateFormat.h"
#include "networks/SavedNetworks.h"
#include "unit/rules/RuleFixture.h"

#include <QRegularExpression>

#include <SQLiteCpp/Database.h>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

const QString homeBssid = u"02:00:00:00:aa:01"_s;

class RuleQueriesTest : public RuleFixture
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
        addRule({.name = u"home"_s, .device = en1, .network = homeBssid});
        addRule({.name = u"any"_s, .device = en1, .network = anyNetwork});
        addRule({.name = u"unknown"_s, .device = en1, .network = anUnknownNetwork});
        addRule({.name = u"mesh"_s,
            .device = en1,
            .network = u"02:00:00:00:bb:01"_s,
            .ssid = u"Mesh"_s,
            .ssidDefined = true});
        addRule({.name = u"login"_s, .device = en1, .isLogin = true});
        addRule({.name = u"elsewhere"_s, .device = en0, .network = homeBssid});
    }
};

TEST_F(RuleQueriesTest, FindsTheRulesOfADeviceInTheOrderOfTheirCreation)
{
    addRule({.name = u"b"_s});
    addRule({.name = u"x"_s, .device = en1});
    addRule({.name = u"a"_s});
    RuleList rules = queries.managedRuleArrayForDevice(en0);
    ASSERT_EQ(rules.size(), 2);
    EXPECT_EQ(rules.at(0).name(), u"b"_s);
    EXPECT_EQ(rules.at(1).name(), u"a"_s);
    EXPECT_EQ(queries.managedRuleArrayForDevice(u"all"_s).size(), 3);
    EXPECT_TRUE(queries.managedRuleArrayForDevice(u"EN0"_s).isEmpty());
    EXPECT_TRUE(queries.managedRuleArrayForDevice(QString()).isEmpty());
}

TEST_F(RuleQueriesTest, AsksTheStoreForRules)
{
    EXPECT_EQ(Rule::fetchRequest().entity, u"Rule"_s);
    EXPECT_FALSE(Rule::fetchRequest().predicate);
    EXPECT_TRUE(Rule::fetchRequest().order.isEmpty());
}

TEST_F(RuleQueriesTest, OfAWiredInterfaceSelectsAllOfItsRulesLoginRulesIncluded)
{
    addRule({.name = u"home"_s, .network = homeBssid});
    addRule({.name = u"any"_s});
    addRule({.name = u"login"_s, .isLogin = true});
    addRule({.name = u"x"_s, .device = en1});
    EXPECT_EQ(format(queries.filterPredicateForDevice(en0)), u"device == 'en0'"_s);
    EXPECT_EQ(selected(en0), (QStringList{u"home"_s, u"any"_s, u"login"_s}));
}

TEST_F(RuleQueriesTest, OfAWifiInterfaceThatIsOnNoNetworkIsABareConditionThatNoRuleMeets)
{
    addRuleOfEachKind();
    EXPECT_EQ(format(queries.filterPredicateForDevice(en1)), u"network == 'empty'"_s);
    EXPECT_TRUE(selected(en1).isEmpty());
    beOn(u"Home"_s, QString());
    EXPECT_EQ(format(queries.filterPredicateForDevice(en1)), u"network == 'empty'"_s);
}

TEST_F(RuleQueriesTest, OfAWifiInterfaceOnASavedNetworkIsPrintedInTheUsualNotation)
{
    saveNetwork(u"Home"_s, u"Home"_s, homeBssid, false);
    beOn(u"Home"_s, homeBssid.toUpper());
    EXPECT_EQ(format(queries.filterPredicateForDevice(en1)).toStdString(),
        "(device == 'en1') && ((network == '02:00:00:00:aa:01') || (network == 'Any Network') || "
        "((ssid == 'Home') && (ssidDefined == YES)))");
}

TEST_F(RuleQueriesTest, OfAWifiInterfaceOnAnUnknownNetworkIsPrintedInTheUsualNotation)
{
    beOn(u"Cafe"_s, u"02:00:00:00:cc:01"_s);
    EXPECT_EQ(format(queries.filterPredicateForDevice(en1)).toStdString(),
        "(device == 'en1') && ((network == '02:00:00:00:cc:01') || (network == 'Any Network') || "
        "((ssid == 'Cafe') && (ssidDefined == YES)) || (network == 'An Unknown Network'))");
}

TEST_F(RuleQueriesTest, OnASavedNetworkSelectsItsRulesAndThoseForAny)
{
    addRuleOfEachKind();
    saveNetwork(u"Home"_s, u"Home"_s, homeBssid, false);
    beOn(u"Home"_s, homeBssid.toUpper());
    EXPECT_EQ(selected(en1), (QStringList{u"home"_s, u"any"_s}));
}

TEST_F(RuleQueriesTest, OnANetworkThatIsNotSavedSelectsThoseForUnknownNetworksToo)
{
    addRuleOfEachKind();
    beOn(u"Cafe"_s, u"02:00:00:00:cc:01"_s);
    EXPECT_EQ(selected(en1), (QStringList{u"any"_s, u"unknown"_s}));
}

TEST_F(RuleQueriesTest, RecognizesANetworkByItsSsidAtAnotherAccessPoint)
{
    addRuleOfEachKind();
    saveNetwork(u"Mesh"_s, u"Mesh"_s, u"02:00:00:00:bb:01"_s, true);
    beOn(u"Mesh"_s, u"02:00:00:00:bb:99"_s);
    EXPECT_EQ(selected(en1), (QStringList{u"any"_s, u"mesh"_s}));
}

TEST_F(RuleQueriesTest, FindsANetworkSavedInUpperCaseUnknownUnlessItsSsidCounts)
{
    addRuleOfEachKind();
    saveNetwork(u"Home"_s, u"Home"_s, homeBssid.toUpper(), false);
    ASSERT_EQ(favoriteNetworks(settings), QStringList{homeBssid.toUpper()});
    beOn(u"Home"_s, homeBssid);
    EXPECT_EQ(selected(en1), (QStringList{u"home"_s, u"any"_s, u"unknown"_s}));
    saveNetwork(u"Home"_s, u"Home"_s, homeBssid.toUpper(), true);
    EXPECT_EQ(selected(en1), (QStringList{u"home"_s, u"any"_s}));
}

TEST_F(RuleQueriesTest, ComparesSsidsExactly)
{
    addRuleOfEachKind();
    saveNetwork(u"Mesh"_s, u"Mesh"_s, u"02:00:00:00:bb:01"_s, true);
    beOn(u"mesh"_s, u"02:00:00:00:bb:99"_s);
    EXPECT_EQ(selected(en1), (QStringList{u"any"_s, u"unknown"_s}));
}

TEST_F(RuleQueriesTest, ReadsSettingsThatAreNoneAsNothing)
{
    addRuleOfEachKind();
    settings.set(keys::savedNetworks, QVariantMap{{homeBssid, QVariant(u"text"_s)}});
    for (const QVariant &record : {QVariant(u"text"_s),
             QVariant(QVariantMap{{wifirecord::BSSID, QVariantMap()}}), QVariant()}) {
        settings.set(keys::currentWiFiDict, record);
        EXPECT_EQ(format(queries.filterPredicateForDevice(en1)), u"network == 'empty'"_s);
    }
    beOn(u"Home"_s, homeBssid);
    EXPECT_EQ(selected(en1).size(), 3);
    settings.set(keys::deviceDict, u"text"_s);
    EXPECT_EQ(format(queries.filterPredicateForDevice(en1)), u"device == 'en1'"_s);
}

TEST_F(RuleQueriesTest, LogsAFetchThatFailsAndFindsNothing)
{
    addRule({.name = u"a"_s});
    ASSERT_FALSE(context().save());
    SQLite::Database(folder.filePath(u"Quillon.sqlite"_s).toStdString(), SQLite::OPEN_READWRITE)
        .exec("DROP TABLE Rule");
    const LogCapture log;
    EXPECT_TRUE(queries.managedRuleArrayForDevice(en0).isEmpty());
    const QStringList lines = LogCapture::taken();
    ASSERT_EQ(lines.size(), 2);
    EXPECT_EQ(lines.at(0), u"quillon.rules: Unable to execute fetch request."_s);
    EXPECT_TRUE(
        QRegularExpression(u"^quillon.rules: \\S+ \\d+, .*Rule.*"_s).match(lines.at(1)).hasMatch())
        << lines.at(1).toStdString();
    evaluate(en0, RuleChange::NetworkRule);
    EXPECT_EQ(hasRule(en0), QVariant(0)) << "as if no rule matched";
}

TEST_F(RuleQueriesTest, GivesRulesByTheirIdentity)
{
    const Rule rule = addRule({.name = u"a"_s});
    EXPECT_EQ(queries.ruleWithID(rule.objID()), rule);
    ASSERT_FALSE(context().save());
    EXPECT_EQ(queries.ruleWithID(rule.objID()), rule);
    const ManagedObjectPtr connection = context().insertNewObject(u"Connection"_s);
    for (const QString &text :
        {QString(), u"text"_s, connection->uriRepresentation(), rule.objID() + u"0"_s}) {
        EXPECT_TRUE(queries.ruleWithID(text).isNull()) << text.toStdString();
    }
    context().deleteObject(rule.object());
    context().processPendingChanges();
    EXPECT_TRUE(queries.ruleWithID(rule.objID()).isNull());
}

TEST_F(RuleQueriesTest, CollectsTheNamesOnRequest)
{
    addRule({.name = u"b"_s});
    addRule({.name = u"a"_s, .device = en1});
    EXPECT_TRUE(queries.namesArray().isEmpty());
    queries.updateNamesArray();
    EXPECT_EQ(queries.namesArray(), (QStringList{u"b"_s, u"a"_s}));
    context().deleteObject(queries.managedRuleArrayForDevice(en0).first().object());
    queries.updateNamesArray();
    EXPECT_EQ(queries.namesArray(), QStringList{u"a"_s});
}

TEST_F(RuleQueriesTest, KeepsEveryAttributeOfARule)
{
    const Rule rule(context().insertNewObject(u"Rule"_s));
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
    rule.setName(u"name"_s);
    rule.setNetwork(homeBssid);
    rule.setSsid(u"Home"_s);
    rule.setSsidDefined(true);
    rule.setTimerMins(12);
    rule.setVendor(u"Maker (A1B2C3)"_s);
    EXPECT_EQ(rule.action(), -1);
    EXPECT_TRUE(rule.active());
    EXPECT_EQ(rule.address(), fixedAddress);
    EXPECT_EQ(rule.changeAction(), 1);
    EXPECT_EQ(rule.device(), en0);
    EXPECT_TRUE(rule.enabled());
    EXPECT_TRUE(rule.isLogin());
    EXPECT_EQ(rule.name(), u"name"_s);
    EXPECT_EQ(rule.network(), homeBssid);
    EXPECT_EQ(rule.ssid(), u"Home"_s);
    EXPECT_TRUE(rule.ssidDefined());
    EXPECT_EQ(rule.timerMins(), 12);
    EXPECT_EQ(rule.vendor(), u"Maker (A1B2C3)"_s);
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
    const Rule rule = addRule({.name = u"a"_s, .timerMins = 7});
    const QVariantMap flat = updateRuledictWithRule({}, rule);
    EXPECT_EQ(flat.keys(), (QStringList{u"action"_s, u"active"_s, u"address"_s, u"changeAction"_s,
                               u"device"_s, u"enabled"_s, u"isLogin"_s, u"name"_s, u"network"_s,
                               u"ssid"_s, u"ssidDefined"_s, u"timerMinutes"_s, u"vendor"_s}));
    EXPECT_EQ(flat.value(u"timerMinutes"_s), QVariant(7));
    EXPECT_EQ(flat.value(u"enabled"_s), QVariant(1)) << "as the integer too";
    EXPECT_TRUE(isPropertyList(flat));
}

TEST_F(RuleQueriesTest, FlattensIntoADictionaryWhoseOtherKeysStay)
{
    const Rule rule(context().insertNewObject(u"Rule"_s));
    rule.setName(u"a"_s);
    const QVariantMap flat =
        updateRuledictWithRule({{u"note"_s, 1}, {u"name"_s, 2}, {u"vendor"_s, 3}}, rule);
    EXPECT_EQ(flat, (QVariantMap{{u"note"_s, 1}, {u"name"_s, u"a"_s}}))
        << "an attribute that holds nothing has no entry";
}

} // namespace
} // namespace quillon::test
