// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/rules/RuleFormModel.h"

#include "base/Languages.h"
#include "unit/presentation/rules/RuleEditorFixture.h"

#include <functional>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

using Kind = RuleFormModel::Kind;

class RuleFormModelTest : public RuleEditorFixture
{
protected:
    const RuleFormModel::State &state() const { return form.state(); }
    void open(Kind kind = Kind::Network) { form.resetAllRuleValues(kind); }
    QString network() const { return state().networks.at(state().network).title; }
    QString address() const { return state().addresses.at(state().address).title; }
    RuleValues onWifi(const QString &network) const
    {
        return {.name = u"Rule"_s,
            .device = en1,
            .network = network,
            .action = Rule::changeAddress,
            .address = u"Random Address"_s,
            .timerMins = 12};
    }
};

TEST_F(RuleFormModelTest, BeginsWithFirstEntriesAndEmptyFields)
{
    open();
    EXPECT_EQ(state().name, QString());
    EXPECT_EQ(state().device, 0);
    EXPECT_EQ(titles(state().devices), (QStringList{u"Wi-Fi \u00B7 en1"_s, u"Ethernet \u00B7 en0"_s,
                                           u"Thunderbolt Bridge \u00B7 bridge0"_s}));
    EXPECT_EQ(network(), u"Any Network"_s);
    EXPECT_EQ(state().action, Rule::doNothing);
    EXPECT_EQ(address(), u"Random Address"_s);
    EXPECT_EQ(state().vendor, u"Random Address"_s);
    EXPECT_EQ(state().repeat, Rule::once);
    EXPECT_EQ(state().minutes, u"30"_s);
    EXPECT_TRUE(state().isNew);
}

TEST_F(RuleFormModelTest, OffersTheNetworkInUseWhereNoneIsSavedAndSaysWhatWillBeStored)
{
    join(u"Cafe"_s, homeBssid);
    open();
    EXPECT_EQ(titles(state().networks),
        (QStringList{u"Any Network"_s, u"An Unknown Network"_s, u"Cafe"_s}));
    EXPECT_EQ(state().notice, QString());
    chooseNetwork(u"Cafe"_s);
    EXPECT_EQ(state().sentence, u"On any network, leave Wi-Fi \u00B7 en1 as it is."_s);
    EXPECT_EQ(state().notice, u"Cafe is not saved: press its heart first."_s);
    EXPECT_EQ(form.values().network, anyNetwork);
    EXPECT_EQ(form.values().ssid, QString());
    ASSERT_TRUE(state().canSaveNetwork);
    form.saveCurrentNetwork();
    EXPECT_EQ(network(), u"Cafe"_s);
    EXPECT_EQ(state().notice, QString());
    EXPECT_EQ(form.values().network, homeBssid);
    EXPECT_EQ(form.values().ssid, u"Cafe"_s);
    EXPECT_EQ(state().sentence, u"On Cafe, leave Wi-Fi \u00B7 en1 as it is."_s);
    EXPECT_FALSE(state().canSaveNetwork);
}

TEST_F(RuleFormModelTest, EnablesWhatTheActionUses)
{
    saveAddress(fixedAddress, u"Lab"_s);
    open();
    EXPECT_FALSE(state().canSelectAddress || state().canSelectVendor || state().canChooseTimerMins);
    form.actionSelectionChanged(Rule::changeAddress);
    EXPECT_TRUE(state().canSelectAddress && state().canSelectVendor);
    EXPECT_FALSE(state().canChooseTimerMins);
    form.timerSelectionChanged(Rule::every);
    EXPECT_TRUE(state().canChooseTimerMins);
    chooseAddress(u"Lab"_s);
    EXPECT_TRUE(state().canSelectAddress);
    EXPECT_FALSE(state().canSelectVendor || state().canChooseTimerMins);
    form.actionSelectionChanged(Rule::doNothing);
    EXPECT_FALSE(state().canSelectAddress || state().canSelectVendor || state().canChooseTimerMins);
    form.actionSelectionChanged(Rule::changeAddress);
    EXPECT_TRUE(state().canSelectAddress);
    EXPECT_FALSE(state().canSelectVendor) << "the address is still a fixed one";
    chooseAddress(u"Random Address"_s);
    EXPECT_TRUE(state().canSelectVendor && state().canChooseTimerMins);
}

TEST_F(RuleFormModelTest, OfALoginRuleHasNeitherActionNorMinutes)
{
    open(Kind::Login);
    EXPECT_TRUE(state().canSelectAddress && state().canSelectVendor);
    EXPECT_FALSE(state().canChooseTimerMins);
    form.setName(u"Clean"_s);
    chooseDevice(en0);
    EXPECT_EQ(form.values(), (RuleValues{.name = u"Clean"_s,
                                 .device = en0,
                                 .isLogin = true,
                                 .action = -1,
                                 .address = u"Random Address"_s,
                                 .vendor = u"Random Address"_s,
                                 .changeAction = -1,
                                 .timerMins = 30}));
    EXPECT_EQ(state().sentence, u"At login, give Ethernet \u00B7 en0 a random address."_s);
    EXPECT_EQ(editedNetwork(), QString());
}

TEST_F(RuleFormModelTest, TakesMinutesOfThreeDigits)
{
    open();
    form.setMinutes(u"1000"_s);
    form.setMinutes(u"x"_s);
    form.setMinutes(u"-1"_s);
    EXPECT_EQ(state().minutes, u"30"_s);
    form.setMinutes(u"999"_s);
    EXPECT_EQ(form.values().timerMins, 999);
    form.setMinutes({});
    EXPECT_EQ(form.values().timerMins, 30) << "the usual ones";
    form.controlTextDidEndEditing();
    EXPECT_EQ(state().minutes, u"1"_s);
    for (const QString &zero : {u"0"_s, u"000"_s}) {
        form.setMinutes(zero);
        form.controlTextDidEndEditing();
        EXPECT_EQ(state().minutes, u"1"_s);
    }
}

TEST_F(RuleFormModelTest, IsWrittenDownOnEveryEdit)
{
    open();
    chooseDevice(en0);
    form.actionSelectionChanged(Rule::changeAddress);
    form.setVendor(u"Harbor (02A0B1)"_s);
    EXPECT_EQ(state().sentence,
        u"On any network, give Ethernet \u00B7 en0 a random address by Harbor once."_s);
    form.timerSelectionChanged(Rule::every);
    EXPECT_EQ(state().sentence,
        u"On any network, give Ethernet \u00B7 en0 a new random address every 30 minutes."_s);
}

TEST_F(RuleFormModelTest, IsFilledWithARule)
{
    saveNetwork(u"Home"_s, u"H"_s, homeBssid, true);
    saveAddress(fixedAddress, u"Lab"_s);
    RuleValues rule = onWifi(homeBssid);
    rule.ssid = u"H"_s;
    rule.ssidDefined = true;
    rule.address = fixedAddress;
    rule.vendor = u"Harbor (02A0B1)"_s;
    rule.changeAction = Rule::every;
    form.fill(rule);
    EXPECT_EQ(network(), u"Home"_s);
    EXPECT_EQ(address(), u"Lab"_s);
    EXPECT_EQ(state().minutes, u"12"_s);
    EXPECT_EQ(state().repeat, Rule::every);
    EXPECT_EQ(form.values(), rule);
    EXPECT_EQ(state().notice, QString());
    EXPECT_FALSE(state().isNew);
    EXPECT_EQ(editedNetwork(), homeBssid);
    rule.network = anUnknownNetwork;
    form.fill(rule);
    EXPECT_EQ(state().network, 1);
    EXPECT_EQ(editedNetwork(), anyNetwork);
}

TEST_F(RuleFormModelTest, ShowsMinutesThatCanBeTyped)
{
    for (const auto &[stored, shown] :
        {std::pair(0, u"1"_s), std::pair(-7, u"1"_s), std::pair(5000, u"999"_s)}) {
        RuleValues rule = onWifi(anyNetwork);
        rule.timerMins = stored;
        form.fill(rule);
        EXPECT_EQ(state().minutes, shown);
        EXPECT_EQ(form.values().timerMins, shown.toInt());
    }
}

TEST_F(RuleFormModelTest, KeepsWhatIsChosenWhenTheListsChange)
{
    saveNetwork(u"Home"_s, u"H"_s, homeBssid, false);
    saveAddress(fixedAddress, u"Lab"_s);
    open();
    chooseNetwork(u"Home"_s);
    chooseAddress(u"Lab"_s);
    saveNetwork(u"Cafe"_s, u"C"_s, officeBssid, false);
    saveNetwork(u"Zuhause"_s, u"H"_s, homeBssid, false);
    saveAddress(u"02:00:00:00:00:01"_s, u"Attic"_s);
    settings.set(keys::currentWiFiDict, QVariantMap{{wifirecord::name, u"Other"_s}});
    select(en1);
    EXPECT_EQ(network(), u"Zuhause"_s);
    EXPECT_EQ(address(), u"Lab"_s);
    settings.set(keys::savedNetworks, QVariantMap());
    settings.set(keys::savedAddresses, u"of another type"_s);
    EXPECT_EQ(network(), u"Any Network"_s);
    EXPECT_EQ(address(), u"Random Address"_s);
    EXPECT_EQ(editedNetwork(), anyNetwork) << "what is published follows";
}

TEST_F(RuleFormModelTest, KeepsAnUnknownNetworkWhenTheListsChange)
{
    open();
    form.changeNetwork(1);
    saveNetwork(u"Home"_s, u"H"_s, homeBssid, false);
    EXPECT_EQ(form.values().network, anUnknownNetwork);
}

TEST_F(RuleFormModelTest, PublishesTheNetworkWhileItIsOpen)
{
    saveNetwork(u"Home"_s, u"H"_s, homeBssid, false);
    open();
    EXPECT_EQ(editedNetwork(), anyNetwork);
    chooseNetwork(u"Home"_s);
    EXPECT_EQ(editedNetwork(), homeBssid);
    form.changeNetwork(1);
    EXPECT_EQ(editedNetwork(), anyNetwork);
    form.close();
    EXPECT_FALSE(settings.get(keys::editingRuleNetwork).isValid());
    saveNetwork(u"Cafe"_s, u"C"_s, officeBssid, false);
    EXPECT_FALSE(settings.get(keys::editingRuleNetwork).isValid()) << "it is closed";
}

TEST_F(RuleFormModelTest, SavesTheAddressInUse)
{
    open();
    ASSERT_TRUE(state().canSaveAddress);
    form.saveCurrentAddress();
    EXPECT_FALSE(state().canSaveAddress);
    EXPECT_EQ(
        titles(state().addresses), (QStringList{u"Random Address"_s, u"00:16:3e:11:22:33"_s}));
}

TEST_F(RuleFormModelTest, MakesAnAddressForTheNetworkAndChoosesIt)
{
    saveNetwork(u"Home"_s, u"H"_s, homeBssid, false);
    open();
    chooseNetwork(u"Home"_s);
    form.actionSelectionChanged(Rule::changeAddress);
    form.setVendor(u"Harbor (02A0B1)"_s);
    form.makeAddress();
    EXPECT_EQ(address(), u"Home"_s);
    EXPECT_EQ(form.values().address, u"02:a0:b1:04:05:06"_s);
    EXPECT_EQ(state().sentence, u"On Home, give Wi-Fi \u00B7 en1 the address Home."_s);
    form.makeAddress();
    EXPECT_EQ(address(), u"Home (2)"_s) << "the first one is kept";
}

TEST_F(RuleFormModelTest, NamesANewAddressAfterTheRuleOrTheInterface)
{
    open(Kind::Login);
    form.makeAddress();
    EXPECT_EQ(address(), u"Wi-Fi \u00B7 en1"_s);
    form.setName(u"Start clean"_s);
    form.makeAddress();
    EXPECT_EQ(address(), u"Start clean"_s);
}

TEST_F(RuleFormModelTest, MakesNoAddressWithoutRandomness)
{
    open();
    random.fail();
    form.makeAddress();
    EXPECT_EQ(titles(state().addresses), QStringList{u"Random Address"_s});
}

TEST_F(RuleFormModelTest, WritesANameOnOneLine)
{
    open();
    form.setName(u"a\nb\tc\u2028<b>d</b>"_s);
    EXPECT_EQ(form.values().name, u"a b c <b>d</b>"_s);
    const QString longName(10000, u'x');
    form.setName(longName);
    EXPECT_EQ(form.values().name, longName);
}

TEST_F(RuleFormModelTest, FollowsARuleThatIsChangedElsewhereUntilTheUserEdits)
{
    form.fill(onWifi(anyNetwork));
    RuleValues other = onWifi(anUnknownNetwork);
    form.followRule(other);
    EXPECT_EQ(form.values().network, anUnknownNetwork);
    form.setName(u"mine"_s);
    form.followRule(onWifi(anyNetwork));
    EXPECT_EQ(form.values().network, anUnknownNetwork);
    EXPECT_EQ(form.values().name, u"mine"_s);
}

TEST_F(RuleFormModelTest, StoresTheWordsOfTheUsersLanguage)
{
    const UserLanguage german({u"de"_s});
    open();
    form.actionSelectionChanged(Rule::changeAddress);
    EXPECT_EQ(form.values().address, address());
    EXPECT_NE(form.values().address, u"Random Address"_s);
    EXPECT_EQ(form.values().network, u"Any Network"_s) << "in English, as it is compared";
}

TEST_F(RuleFormModelTest, IgnoresPlacesThatAreNotThere)
{
    open();
    const auto before = state();
    for (const qsizetype place : {-1, 99}) {
        form.deviceSelectionChanged(place);
        form.changeNetwork(place);
        form.addressSelectionChanged(place);
    }
    EXPECT_EQ(state(), before);
}

TEST_F(RuleFormModelTest, ChoosesTheNetworkAgainWhenTheUserComesBackToTheRadio)
{
    saveNetwork(u"Home"_s, u"H"_s, homeBssid, false);
    open();
    chooseNetwork(u"Home"_s);
    chooseDevice(en0);
    EXPECT_EQ(network(), u"Any Network"_s);
    EXPECT_EQ(editedNetwork(), anyNetwork);
    chooseDevice(en1);
    EXPECT_EQ(network(), u"Home"_s);
    EXPECT_EQ(editedNetwork(), homeBssid);
}

TEST_F(RuleFormModelTest, SelectsTheNetworkThatIsPublishedWhenTheListsChange)
{
    saveNetwork(u"Home"_s, u"H"_s, homeBssid, false);
    settings.set(keys::editingRuleNetwork, homeBssid);
    open();
    EXPECT_EQ(network(), u"Any Network"_s) << "a form is opened with its own";
    settings.set(keys::editingRuleNetwork, homeBssid);
    saveNetwork(u"Office"_s, u"O"_s, officeBssid, false);
    EXPECT_EQ(network(), u"Home"_s);
    EXPECT_EQ(form.values().network, homeBssid);
    settings.set(keys::editingRuleNetwork, 7);
    saveNetwork(u"Zoo"_s, u"Z"_s, u"02:00:00:00:aa:03"_s, false);
    EXPECT_EQ(network(), u"Home"_s) << "what names none is nobody's choice";
    EXPECT_EQ(editedNetwork(), homeBssid);
}

TEST_F(RuleFormModelTest, ChoosesAgainWhatComesBack)
{
    saveNetwork(u"Home"_s, u"H"_s, homeBssid, false);
    saveAddress(fixedAddress, u"Lab"_s);
    open();
    chooseNetwork(u"Home"_s);
    chooseAddress(u"Lab"_s);
    const QVariant savedNets = settings.get(keys::savedNetworks);
    const QVariant saved = settings.get(keys::savedAddresses);
    settings.set(keys::savedNetworks, {});
    settings.set(keys::savedAddresses, {});
    EXPECT_EQ(form.values().network, anyNetwork);
    settings.set(keys::savedNetworks, savedNets);
    settings.set(keys::savedAddresses, saved);
    EXPECT_EQ(form.values().network, homeBssid);
    EXPECT_EQ(form.values().address, fixedAddress);
}

TEST_F(RuleFormModelTest, LosesANetworkThatWasNotSavedWithItsNetwork)
{
    join(u"Cafe"_s, homeBssid);
    open();
    chooseNetwork(u"Cafe"_s);
    join(u"Bar"_s, officeBssid);
    EXPECT_EQ(network(), u"Any Network"_s) << "nobody has chosen Bar";
    form.saveCurrentNetwork();
    EXPECT_EQ(form.values().network, anyNetwork);
}

TEST_F(RuleFormModelTest, SaysTheUsualMinutesOfTheMomentForAnEmptyField)
{
    open();
    form.actionSelectionChanged(Rule::changeAddress);
    form.timerSelectionChanged(Rule::every);
    form.setMinutes({});
    settings.set(keys::defaultTimerMinutes, 17);
    EXPECT_EQ(state().sentence,
        u"On any network, give Wi-Fi \u00B7 en1 a new random address every 17 minutes."_s);
    EXPECT_EQ(form.values().timerMins, 17);
}

TEST_F(RuleFormModelTest, IsTouchedByTheUserOnly)
{
    saveNetwork(u"Home"_s, u"H"_s, homeBssid, false);
    open();
    EXPECT_FALSE(form.isTouched());
    settings.set(keys::savedNetworks, QVariantMap());
    form.setVendor(state().vendor);
    EXPECT_FALSE(form.isTouched());
    form.setName(u"a"_s);
    EXPECT_TRUE(form.isTouched());
    form.fill(onWifi(anyNetwork));
    EXPECT_FALSE(form.isTouched());
    const QList<std::function<void()>> edits{[this] { form.deviceSelectionChanged(1); },
        [this] { form.changeNetwork(1); }, [this] { form.actionSelectionChanged(0); },
        [this] { form.addressSelectionChanged(0); }, [this] { form.timerSelectionChanged(1); },
        [this] { form.setMinutes(u"4"_s); }, [this] { form.setVendor(u"x"_s); }};
    for (const auto &edit : edits) {
        form.fill(onWifi(anyNetwork));
        edit();
        EXPECT_TRUE(form.isTouched());
    }
}

TEST_F(RuleFormModelTest, FollowsItsRuleAlsoAfterTheListsHaveChanged)
{
    saveNetwork(u"Home"_s, u"H"_s, homeBssid, false);
    form.fill(onWifi(homeBssid));
    settings.set(keys::savedNetworks, QVariantMap());
    form.followRule(onWifi(anUnknownNetwork));
    EXPECT_EQ(form.values().network, anUnknownNetwork);
}

TEST_F(RuleFormModelTest, WritesDownAtOnceWhatItPublishes)
{
    saveNetwork(u"Home"_s, u"H"_s, homeBssid, false);
    open();
    settings.clearJournal();
    chooseNetwork(u"Home"_s);
    EXPECT_EQ(settings.journal(), (QStringList{u"set editingRuleNetwork"_s, u"synchronize"_s}));
    settings.clearJournal();
    form.close();
    EXPECT_EQ(settings.journal(), (QStringList{u"remove editingRuleNetwork"_s, u"synchronize"_s}));
}

TEST_F(RuleFormModelTest, CanSaveWhatIsInUseAndNotSavedYet)
{
    open();
    EXPECT_FALSE(state().canSaveNetwork) << "there is none";
    join(u"Home"_s, homeBssid);
    EXPECT_TRUE(state().canSaveNetwork);
    saveNetwork(u"Home"_s, u"Home"_s, homeBssid, false);
    EXPECT_FALSE(state().canSaveNetwork);
    settings.set(keys::currentInterfaceDict, {});
    EXPECT_FALSE(state().canSaveAddress) << "there is none";
    select(en1);
    EXPECT_TRUE(state().canSaveAddress);
    saveAddress(storedRecord(en1).value(record::current).toString().toLower(), u"Mine"_s);
    EXPECT_FALSE(state().canSaveAddress);
}

} // namespace
} // namespace quillon::test
