// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/rules/RuleFormChoices.h"

#include "unit/presentation/rules/RuleEditorFixture.h"

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

using Kind = RuleFormModel::Kind;

class RuleFormChoicesTest : public RuleEditorFixture
{
protected:
    const RuleFormModel::State &state() const { return form.state(); }
    void open(Kind kind = Kind::Network) { form.resetAllRuleValues(kind); }
};

TEST_F(RuleFormChoicesTest, OffersAWiredInterfaceAnyNetworkOnly)
{
    saveNetwork(u"Home"_s, u"Home"_s, homeBssid, false);
    open();
    EXPECT_EQ(titles(state().networks),
        (QStringList{u"Any Network"_s, u"An Unknown Network"_s, u"Home"_s}));
    chooseNetwork(u"Home"_s);
    chooseDevice(en0);
    EXPECT_EQ(titles(state().networks), QStringList{u"Any Network"_s});
    EXPECT_EQ(state().network, 0);
    EXPECT_EQ(form.values().network, anyNetwork);
}

TEST_F(RuleFormChoicesTest, OffersTheSavedNetworksByNameIgnoringCase)
{
    saveNetwork(u"office"_s, u"W"_s, officeBssid, false);
    saveNetwork(u"Zoo"_s, u"Z"_s, u"02:00:00:00:aa:03"_s, false);
    saveNetwork(u"Home"_s, u"H"_s, homeBssid, false);
    join(u"Cafe"_s, u"02:00:00:00:aa:04"_s);
    open();
    EXPECT_EQ(titles(state().networks),
        (QStringList{u"Any Network"_s, u"An Unknown Network"_s, u"Home"_s, u"office"_s, u"Zoo"_s}));
}

TEST_F(RuleFormChoicesTest, StoresWhatItShowsAlsoWhereNamesAreShared)
{
    saveNetwork(u"Home"_s, u"H"_s, homeBssid, false);
    saveNetwork(u"Home"_s, u"H2"_s, officeBssid, true);
    saveNetwork(u"Any Network"_s, u"H3"_s, u"02:00:00:00:aa:03"_s, false);
    saveAddress(fixedAddress, u"Random Address"_s);
    open();
    form.changeNetwork(3);
    EXPECT_EQ(state().networks.at(3).detail, homeBssid);
    EXPECT_EQ(form.values().network, homeBssid);
    EXPECT_FALSE(form.values().ssidDefined);
    form.changeNetwork(4);
    EXPECT_EQ(form.values().network, officeBssid);
    EXPECT_TRUE(form.values().ssidDefined);
    form.changeNetwork(0);
    EXPECT_EQ(form.values().network, anyNetwork);
    EXPECT_EQ(form.values().address, u"Random Address"_s);
    form.addressSelectionChanged(1);
    EXPECT_EQ(form.values().address, fixedAddress);
}

TEST_F(RuleFormChoicesTest, HoldsNoInterfaceWhereThereIsNone)
{
    settings.set(keys::deviceDict, QVariantMap());
    open();
    EXPECT_EQ(form.values().device, QString());
    EXPECT_EQ(titles(state().networks), QStringList{u"Any Network"_s});
}

TEST_F(RuleFormChoicesTest, CallsAnEntryWithoutANameByWhatItIs)
{
    saveNetwork(u" "_s, u"H"_s, homeBssid, false);
    saveAddress(fixedAddress, QString());
    saveNetwork(u"Home"_s, u"H2"_s, officeBssid, false);
    open();
    EXPECT_EQ(state().networks.at(2).detail, homeBssid);
    EXPECT_EQ(state().networks.at(3).detail, QString());
    EXPECT_EQ(state().addresses.at(1).detail, fixedAddress);
}

TEST_F(RuleFormChoicesTest, LeavesOutWhatARuleCouldNotBeFor)
{
    settings.set(keys::savedNetworks,
        QVariantMap{{u"a"_s, QVariantMap{{savedentry::name, u"No BSSID"_s}}}, {u"b"_s, 7},
            {homeBssid,
                QVariantMap{{savedentry::name, u"Empty"_s}, {savedentry::BSSID, QString()}}}});
    settings.set(keys::savedAddresses,
        QVariantMap{{fixedAddress, QVariantMap{{savedentry::name, u"No address"_s}}}});
    open();
    EXPECT_EQ(titles(state().networks), (QStringList{u"Any Network"_s, u"An Unknown Network"_s}));
    EXPECT_EQ(titles(state().addresses), QStringList{u"Random Address"_s});
}

TEST_F(RuleFormChoicesTest, DoesNotOfferTheNetworkInUseBesideSavedOnes)
{
    saveNetwork(u"Home"_s, u"H"_s, homeBssid, false);
    join(u"Cafe"_s, officeBssid);
    open();
    EXPECT_EQ(titles(state().networks),
        (QStringList{u"Any Network"_s, u"An Unknown Network"_s, u"Home"_s}));
}

TEST_F(RuleFormChoicesTest, OffersTheSavedAddressesByNameIgnoringCase)
{
    saveAddress(u"02:00:00:00:00:01"_s, u"beta"_s);
    saveAddress(u"02:00:00:00:00:02"_s, u"Gamma"_s);
    saveAddress(u"02:00:00:00:00:03"_s, u"Alpha"_s);
    for (const Kind kind : {Kind::Network, Kind::Login}) {
        open(kind);
        EXPECT_EQ(titles(state().addresses),
            (QStringList{u"Random Address"_s, u"Alpha"_s, u"beta"_s, u"Gamma"_s}));
        EXPECT_EQ(state().address, 0);
    }
}

} // namespace
} // namespace quillon::test
