// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "rules/RuleReason.h"

#include "unit/rules/RuleFixture.h"

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

const QString home = u"02:00:00:00:aa:01"_s;
const QString office = u"02:00:00:00:aa:02"_s;

class RuleReasonTest : public RuleFixture
{
protected:
    QString reasonOf(const Rule &rule)
    {
        evaluate(allDevices, RuleChange::None);
        return ruleReason(rule, queries, table, settings);
    }
    Rule onWifi(const QString &name, const QString &network)
    {
        return addRule({.name = name, .device = en1, .network = network});
    }
    void join(const QString &bssid)
    {
        joinWifi(u"Net"_s, bssid);
        wifi.updateWiFiNetwork();
    }
};

TEST_F(RuleReasonTest, SaysThatARuleIsInForce)
{
    EXPECT_EQ(reasonOf(addRule({.name = u"a"_s})), u"In force now."_s);
}

TEST_F(RuleReasonTest, SaysThatALinkIsMissing)
{
    const Rule rule = addRule({.name = u"a"_s});
    setRecord(en0, record::status, u"inactive"_s);
    EXPECT_EQ(reasonOf(rule), u"In force, but Ethernet \u00B7 en0 is not connected."_s);
}

TEST_F(RuleReasonTest, SaysThatARuleIsSwitchedOff)
{
    EXPECT_EQ(reasonOf(addRule({.name = u"a"_s, .enabled = false})),
        u"Not in force: it is switched off."_s);
}

TEST_F(RuleReasonTest, SaysThatTheInterfaceIsNotHere)
{
    EXPECT_EQ(reasonOf(addRule({.name = u"a"_s, .device = u"en9"_s})),
        u"Not in force: en9 is not here."_s);
    const Rule unplugged = addRule({.name = u"b"_s});
    host.unplug(en0);
    table.updateNetWorkInterfaces();
    EXPECT_EQ(reasonOf(unplugged), u"Not in force: en0 is not here."_s);
}

TEST_F(RuleReasonTest, SaysWhenALoginRuleActs)
{
    EXPECT_EQ(reasonOf(addRule({.name = u"a"_s, .isLogin = true})),
        u"In force: it acts when Quillon is started at login."_s);
    EXPECT_EQ(reasonOf(addRule({.name = u"b"_s, .device = en1, .isLogin = true})),
        u"Not in force: login rules do not act on Wi-Fi."_s);
}

TEST_F(RuleReasonTest, SaysThatWifiIsOnNoNetwork)
{
    EXPECT_EQ(reasonOf(onWifi(u"a"_s, anyNetwork)), u"Not in force: en1 is on no network."_s);
}

TEST_F(RuleReasonTest, SaysThatAnotherNetworkIsInUse)
{
    join(home);
    EXPECT_EQ(reasonOf(onWifi(u"a"_s, office)), u"Not in force: another network is in use."_s);
    const Rule unknown = onWifi(u"b"_s, anUnknownNetwork);
    EXPECT_EQ(reasonOf(unknown), u"In force now."_s);
    saveNetwork(u"Home"_s, u"Net"_s, home, false);
    EXPECT_EQ(reasonOf(unknown), u"Not in force: the network in use is saved."_s);
}

TEST_F(RuleReasonTest, NamesTheRuleThatIsInForceInstead)
{
    join(home);
    const Rule any = onWifi(u"any"_s, anyNetwork);
    const Rule otherAny = onWifi(u"other"_s, anyNetwork);
    EXPECT_EQ(reasonOf(otherAny), u"“any” is in force instead: it was made first."_s);
    onWifi(u"unknown"_s, anUnknownNetwork);
    EXPECT_EQ(reasonOf(any), u"“unknown” is in force instead: this network is not saved."_s);
    onWifi(u"here"_s, home);
    EXPECT_EQ(reasonOf(any), u"“here” is in force instead: it was made for this network."_s);
}

TEST_F(RuleReasonTest, SaysOfTwoForOneNetworkWhichWasMadeFirst)
{
    join(home);
    onWifi(u"first"_s, home);
    EXPECT_EQ(
        reasonOf(onWifi(u"second"_s, home)), u"“first” is in force instead: it was made first."_s);
    settings.set(keys::savedNetworks, {});
    join(office);
    onWifi(u"unknown"_s, anUnknownNetwork);
    EXPECT_EQ(reasonOf(onWifi(u"copy"_s, anUnknownNetwork)),
        u"“unknown” is in force instead: it was made first."_s);
}

TEST_F(RuleReasonTest, OfNoRuleIsNone)
{
    EXPECT_EQ(reasonOf(Rule()), QString());
}

} // namespace
} // namespace quillon::test
