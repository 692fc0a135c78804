// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "rules/RuleSentence.h"

#include "base/Languages.h"
#include "rules/RuleValues.h"
#include "unit/rules/RuleFixture.h"

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

const QString home = u"02:00:00:00:aa:01"_s;
const QString fixed = u"02:00:5e:00:53:01"_s;

RuleNames names()
{
    return {.networks = {{home, u"Our house"_s}},
        .addresses = {{fixed, u"Lab printer"_s}},
        .devices = {{u"wlp2s0"_s, u"Wi-Fi · wlp2s0"_s}}};
}

RuleValues rule(const QString &network)
{
    return {.device = u"wlp2s0"_s,
        .network = network,
        .action = Rule::changeAddress,
        .address = u"Random Address"_s,
        .timerMins = 30};
}

QString say(const RuleValues &rule)
{
    return ruleSentence(rule, names());
}

TEST(RuleSentenceTest, SaysWhere)
{
    EXPECT_EQ(say(rule(home)), u"On Our house, give Wi-Fi · wlp2s0 a random address once."_s);
    EXPECT_EQ(
        say(rule(anyNetwork)), u"On any network, give Wi-Fi · wlp2s0 a random address once."_s);
    EXPECT_EQ(say(rule(anUnknownNetwork)),
        u"On an unknown network, give Wi-Fi · wlp2s0 a random address once."_s);
}

TEST(RuleSentenceTest, SaysThatNothingIsDone)
{
    RuleValues nothing = rule(home);
    for (const int action : {0, -1, 2, 7}) {
        nothing.action = action;
        EXPECT_EQ(say(nothing), u"On Our house, leave Wi-Fi · wlp2s0 as it is."_s);
    }
    nothing.network = anyNetwork;
    EXPECT_EQ(say(nothing), u"On any network, leave Wi-Fi · wlp2s0 as it is."_s);
    nothing.network = anUnknownNetwork;
    EXPECT_EQ(say(nothing), u"On an unknown network, leave Wi-Fi · wlp2s0 as it is."_s);
}

TEST(RuleSentenceTest, NamesTheVendorThatAddressesAreTakenFromAndNoOther)
{
    RuleValues of = rule(anyNetwork);
    of.vendor = u"Harbor (Works) Ltd. (02A0B1)"_s;
    EXPECT_EQ(say(of), u"On any network, give Wi-Fi · wlp2s0 a random address by Harbor (Works) "
                       "Ltd. once."_s);
    for (const QString &none : {u""_s, u"Random Address"_s, u"Harb"_s}) {
        of.vendor = none;
        EXPECT_EQ(say(of), u"On any network, give Wi-Fi · wlp2s0 a random address once."_s);
    }
}

TEST(RuleSentenceTest, LeavesOutTheVendorWhereItIsIgnored)
{
    RuleValues every = rule(home);
    every.vendor = u"Harbor (02A0B1)"_s;
    every.changeAction = Rule::every;
    EXPECT_EQ(
        say(every), u"On Our house, give Wi-Fi · wlp2s0 a new random address every 30 minutes."_s);
    every.timerMins = 1;
    EXPECT_EQ(
        say(every), u"On Our house, give Wi-Fi · wlp2s0 a new random address every minute."_s);
}

TEST(RuleSentenceTest, NamesAFixedAddressAndIgnoresHowOften)
{
    RuleValues given = rule(anUnknownNetwork);
    given.address = fixed;
    given.changeAction = Rule::every;
    given.vendor = u"Harbor (02A0B1)"_s;
    EXPECT_EQ(say(given), u"On an unknown network, give Wi-Fi · wlp2s0 the address Lab printer."_s);
    given.address = u"02:00:5e:00:53:99"_s;
    EXPECT_EQ(
        say(given), u"On an unknown network, give Wi-Fi · wlp2s0 the address 02:00:5e:00:53:99."_s);
}

TEST(RuleSentenceTest, OfALoginRuleSaysWhatItDoesOnce)
{
    RuleValues login = rule({});
    login.isLogin = true;
    login.action = Rule::notChosen;
    login.changeAction = Rule::notChosen;
    EXPECT_EQ(say(login), u"At login, give Wi-Fi · wlp2s0 a random address."_s);
    login.vendor = u"Harbor (02A0B1)"_s;
    EXPECT_EQ(say(login), u"At login, give Wi-Fi · wlp2s0 a random address by Harbor."_s);
    login.address = fixed;
    EXPECT_EQ(say(login), u"At login, give Wi-Fi · wlp2s0 the address Lab printer."_s);
}

TEST(RuleSentenceTest, CallsWhatHasNoNameAsItIsStored)
{
    RuleValues lost = rule(u"02:00:00:00:aa:09"_s);
    lost.device = u"enp9s0"_s;
    EXPECT_EQ(say(lost), u"On 02:00:00:00:aa:09, give enp9s0 a random address once."_s);
    lost.ssid = u"Harbor"_s;
    EXPECT_EQ(say(lost), u"On Harbor, give enp9s0 a random address once."_s);
}

TEST(RuleSentenceTest, TakesPlaceholdersInNamesAsTheyAre)
{
    RuleNames odd = names();
    odd.networks[home] = u"%@ <b>%d"_s;
    EXPECT_EQ(ruleSentence(rule(home), odd),
        u"On %@ <b>%d, give Wi-Fi · wlp2s0 a random address once."_s);
}

TEST(RuleSentenceTest, UnderstandsARandomAddressOfAnotherLanguage)
{
    RuleValues german = rule(anyNetwork);
    {
        const UserLanguage language({u"de"_s});
        german.address = QCoreApplication::translate("Quillon", "Random Address");
    }
    ASSERT_NE(german.address, u"Random Address"_s);
    EXPECT_EQ(say(german), u"On any network, give Wi-Fi · wlp2s0 a random address once."_s);
}

class RuleSentenceNamesTest : public RuleFixture
{
};

TEST_F(RuleSentenceNamesTest, AreThoseOfTheSavedListsAndThePorts)
{
    saveNetwork(u"Our house"_s, u"Home"_s, home, false);
    settings.set(keys::savedAddresses,
        QVariantMap{{fixed, QVariantMap{{savedentry::address, fixed}, {savedentry::name, u"P"_s}}},
            {u"junk"_s, 7}});
    const RuleNames found = RuleNames::of(settings, table);
    EXPECT_EQ(found.networks, (QMap<QString, QString>{{home, u"Our house"_s}}));
    EXPECT_EQ(found.addresses, (QMap<QString, QString>{{fixed, u"P"_s}}));
    EXPECT_EQ(found.devices.value(en0), u"Ethernet \u00B7 en0"_s);
    EXPECT_EQ(found.devices.value(en1), u"Wi-Fi \u00B7 en1"_s);
}

} // namespace
} // namespace quillon::test
