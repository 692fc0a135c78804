// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/rules/RuleFormNotice.h"

#include "unit/presentation/rules/RuleEditorFixture.h"

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

using Kind = RuleFormModel::Kind;

class RuleFormNoticeTest : public RuleEditorFixture
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
    /// A new rule that changes an address.
    void openForChange()
    {
        open();
        form.actionSelectionChanged(Rule::changeAddress);
    }
};

TEST_F(RuleFormNoticeTest, ShowsAndStoresTheFirstEntryForWhatIsLostAndSaysSo)
{
    form.fill(onWifi(homeBssid));
    EXPECT_EQ(network(), u"Any Network"_s);
    EXPECT_EQ(form.values().network, anyNetwork);
    EXPECT_EQ(
        state().notice, u"The rule was made for 02:00:00:00:aa:01, which is not saved any more."_s);
    form.changeNetwork(1);
    EXPECT_EQ(state().notice, QString()) << "the user has chosen";

    RuleValues rule = onWifi(anyNetwork);
    rule.address = fixedAddress;
    form.fill(rule);
    EXPECT_EQ(address(), u"Random Address"_s);
    EXPECT_EQ(form.values().address, u"Random Address"_s);
    EXPECT_EQ(
        state().notice, u"The rule was made for 02:00:00:00:00:77, which is not saved any more."_s);

    rule = onWifi(anyNetwork);
    rule.device = u"en9"_s;
    form.fill(rule);
    EXPECT_EQ(form.values().device, en1);
    EXPECT_EQ(state().notice, u"The rule was made for en9, which is not here any more."_s);
}

TEST_F(RuleFormNoticeTest, SaysThatAChosenNetworkHasGoneMeanwhile)
{
    saveNetwork(u"Home"_s, u"H"_s, homeBssid, false);
    open();
    chooseNetwork(u"Home"_s);
    EXPECT_EQ(state().notice, QString());
    settings.set(keys::savedNetworks, QVariantMap());
    EXPECT_EQ(network(), u"Any Network"_s);
    EXPECT_EQ(state().notice, u"The rule was made for Home, which is not saved any more."_s);
    chooseDevice(en0);
    EXPECT_EQ(state().notice, QString()) << "a wired interface is on any network";
}

TEST_F(RuleFormNoticeTest, SaysThatTheInterfaceIsNotKnownAnyMore)
{
    open();
    chooseDevice(en0);
    QVariantMap devices = settings.getDictionary(keys::deviceDict);
    devices.remove(en0);
    settings.set(keys::deviceDict, devices);
    EXPECT_NE(form.values().device, en0);
    EXPECT_EQ(state().notice, u"The rule was made for en0, which is not here any more."_s);
}

TEST_F(RuleFormNoticeTest, SaysThatThereIsNoInterface)
{
    settings.set(keys::deviceDict, QVariantMap());
    open();
    EXPECT_EQ(state().notice, u"No interface here can be changed."_s);
    EXPECT_FALSE(state().canSaveRule);
}

TEST_F(RuleFormNoticeTest, SaysThatALoginRuleDoesNotActOnWifi)
{
    open(Kind::Login);
    EXPECT_EQ(state().notice, u"Login rules do not act on Wi-Fi."_s);
    chooseDevice(en0);
    EXPECT_EQ(state().notice, QString());
    open();
    EXPECT_EQ(state().notice, QString());
}

TEST_F(RuleFormNoticeTest, SaysThatWhatIsTypedIsNoVendor)
{
    openForChange();
    for (const QString &typed : {u"har"_s, u"Harbor ("_s, u"Harbor (lab)"_s, u"<b>"_s}) {
        form.setVendor(typed);
        EXPECT_EQ(state().notice, u"“%1” is no vendor: choose one from the list."_s.arg(typed));
    }
    for (const QString &chosen : {u"Harbor (02A0B1)"_s, u"Random Address"_s, QString()}) {
        form.setVendor(chosen);
        EXPECT_EQ(state().notice, QString());
    }
    form.setVendor(u"har"_s);
    form.actionSelectionChanged(Rule::doNothing);
    EXPECT_EQ(state().notice, QString()) << "the vendor has no say";
}

TEST_F(RuleFormNoticeTest, SaysThatARepeatedAddressHasAnotherVendor)
{
    openForChange();
    form.setVendor(u"Harbor (02A0B1)"_s);
    form.timerSelectionChanged(Rule::every);
    EXPECT_EQ(
        state().notice, u"Repeated addresses have the vendor of the main window, not this one."_s);
    form.setVendor(u"Random Address"_s);
    EXPECT_EQ(state().notice, QString());
}

} // namespace
} // namespace quillon::test
