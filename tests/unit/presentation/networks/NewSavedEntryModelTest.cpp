// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/networks/NewSavedEntryModel.h"

#include "base/SettingsKeys.h"
#include "unit/networks/NetworkFixture.h"

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

class NewSavedEntryModelTest : public NetworkFixture
{
protected:
    using Kind = NewSavedEntryModel::Kind;
    using Line = NewSavedEntryModel::Line;

    NewSavedEntryModel addresses{settings, Kind::Address};
    NewSavedEntryModel networks{settings, Kind::Network};
    const QString address = u"A4:83:e7:01:02:03"_s;
};

TEST_F(NewSavedEntryModelTest, SavesAnAddressInLowerCaseAsItsOwnName)
{
    EXPECT_FALSE(addresses.state().canAdd);
    EXPECT_TRUE(addresses.editAddress(address));
    EXPECT_TRUE(addresses.state().canAdd);
    settings.clearJournal();
    EXPECT_TRUE(addresses.add());
    EXPECT_EQ(settings.getDictionary(keys::savedAddresses),
        (QVariantMap{
            {address.toLower(), SavedEntry::ofAddress(address.toLower()).toPropertyList()}}));
    EXPECT_EQ(settings.synchronizeCount(), 1);
}

TEST_F(NewSavedEntryModelTest, KeepsAGivenNameDistinct)
{
    saveAddress(u"02:00:00:00:00:01"_s, u"Printer"_s);
    addresses.editAddress(address);
    addresses.editName(u"Printer"_s);
    EXPECT_TRUE(addresses.add());
    EXPECT_EQ(savedAddressEntry(address.toLower()).name, u"Printer (2)"_s);
}

TEST_F(NewSavedEntryModelTest, SavesANetworkUnderItsBssidByItsName)
{
    networks.editAddress(homeBssid.toUpper());
    EXPECT_EQ(networks.state().line.text, u"A network needs its name, too."_s);
    EXPECT_FALSE(networks.add());
    EXPECT_EQ(networks.state().line.kind, Line::Kind::Failure);
    networks.editName(u"Home"_s);
    EXPECT_EQ(networks.state().line, Line());
    EXPECT_TRUE(networks.add());
    EXPECT_EQ(savedNetworkEntry(homeBssid), SavedEntry::ofNetwork(homeBssid, u"Home"_s));
}

TEST_F(NewSavedEntryModelTest, TwoNetworksMayBroadcastTheSameName)
{
    saveNetwork(homeBssid, u"Home"_s, u"Home"_s);
    networks.editName(u"Home"_s);
    networks.editAddress(officeBssid);
    EXPECT_TRUE(networks.add());
    EXPECT_EQ(savedNetworkEntry(officeBssid).name, u"Home"_s);
}

TEST_F(NewSavedEntryModelTest, TakesWhatTheEntryRulesLetIn)
{
    EXPECT_FALSE(addresses.editAddress(u"xy"_s));
    EXPECT_FALSE(addresses.editAddress(u"02:00:00:00:00:001"_s));
    EXPECT_EQ(addresses.state().address, QString());
    EXPECT_TRUE(addresses.editAddress(u"02:"_s));
    EXPECT_EQ(addresses.state().line,
        (Line{Line::Kind::Hint, u"A MAC address has 12 hexadecimal digits."_s}));
    EXPECT_TRUE(addresses.editAddress(u"020000000001"_s));
    EXPECT_EQ(addresses.state().line,
        (Line{Line::Kind::Notice, u"Write it with colons: 02:00:00:00:00:01."_s}));
    EXPECT_FALSE(addresses.state().canAdd);
}

TEST_F(NewSavedEntryModelTest, RefusesWhatIsNoAddress)
{
    const Line refusal{Line::Kind::Failure, u"This is not a MAC address."_s};
    for (const QString &text :
        {u"02:00:00:00:00000"_s, u":::::::::::::::::"_s, u"aaaa:b:c:d:ee:fff"_s}) {
        EXPECT_TRUE(addresses.editAddress(text));
        EXPECT_EQ(addresses.state().line, refusal) << qPrintable(text);
        EXPECT_FALSE(addresses.add());
    }
    addresses.editAddress(u"2:0:0:0:0:1"_s);
    EXPECT_EQ(addresses.state().line.kind, Line::Kind::Hint) << "while it is typed";
    EXPECT_FALSE(addresses.add());
    EXPECT_EQ(addresses.state().line, refusal);
    EXPECT_FALSE(settings.get(keys::savedAddresses).isValid());
}

TEST_F(NewSavedEntryModelTest, WarnsOfAGroupAddressAndSavesIt)
{
    addresses.editAddress(u"01:00:5e:00:00:01"_s);
    EXPECT_EQ(addresses.state().line,
        (Line{Line::Kind::Notice, u"Group address: most adapters refuse it."_s}));
    EXPECT_TRUE(addresses.add());
}

TEST_F(NewSavedEntryModelTest, TellsOfOneThatIsSavedInWhateverLetters)
{
    saveAddress(address.toUpper(), u"Printer"_s);
    saveNetwork(homeBssid, u"Home"_s, u"My home"_s);
    settings.clearJournal();
    addresses.editAddress(address.toLower());
    EXPECT_EQ(addresses.state().line, (Line{Line::Kind::Notice, u"Printer is saved already."_s}));
    EXPECT_FALSE(addresses.add());
    networks.editName(u"Other"_s);
    networks.editAddress(homeBssid.toUpper());
    EXPECT_EQ(networks.state().line.text, u"My home is saved already."_s);
    EXPECT_FALSE(networks.add());
    EXPECT_TRUE(settings.journal().isEmpty());
}

TEST_F(NewSavedEntryModelTest, NamesByItsAddressWhatHasNoShortName)
{
    saveAddress(address.toLower(), QString(10'000, u'x'));
    addresses.editAddress(address);
    EXPECT_EQ(addresses.state().line.text, address.toLower() + u" is saved already."_s);
    settings.set(keys::savedAddresses, QVariantMap{{address.toLower(), u"no entry"_s}});
    EXPECT_EQ(addresses.state().line.text, address.toLower() + u" is saved already."_s);
    EXPECT_FALSE(addresses.add()) << "what is there stays";
}

TEST_F(NewSavedEntryModelTest, NamesFromOutsideAreSaidAsTheyAre)
{
    const QString hostile = u"%@ <b>free</b> %1 \u202Eoops"_s;
    saveNetwork(homeBssid, hostile, hostile);
    networks.editAddress(homeBssid);
    EXPECT_EQ(networks.state().line.text, hostile + u" is saved already."_s);
    networks.editAddress(officeBssid);
    networks.editName(hostile);
    EXPECT_TRUE(networks.add());
    EXPECT_EQ(savedNetworkEntry(officeBssid).ssid, hostile);
}

TEST_F(NewSavedEntryModelTest, BlanksAreNoName)
{
    addresses.editAddress(address);
    addresses.editName(u"  "_s);
    EXPECT_TRUE(addresses.add());
    EXPECT_EQ(savedAddressEntry(address.toLower()).name, address.toLower());
    networks.editAddress(homeBssid);
    networks.editName(u" "_s);
    EXPECT_FALSE(networks.add());
    EXPECT_EQ(networks.state().line.text, u"A network needs its name, too."_s);
    saveNetwork(homeBssid, u" "_s, u" "_s);
    networks.editName(u"Home"_s);
    EXPECT_EQ(networks.state().line.text, homeBssid + u" is saved already."_s);
}

TEST_F(NewSavedEntryModelTest, FollowsTheListWhileItIsOpen)
{
    addresses.editAddress(address);
    EXPECT_TRUE(addresses.state().canAdd);
    settings.changeFromOutside(keys::savedAddresses,
        QVariantMap{{address.toLower(), QVariantMap{{savedentry::name, u"Theirs"_s}}}});
    scheduler.runPending();
    EXPECT_FALSE(addresses.state().canAdd);
    EXPECT_EQ(addresses.state().line.text, u"Theirs is saved already."_s);
}

TEST_F(NewSavedEntryModelTest, BeginsEmpty)
{
    addresses.editAddress(address);
    addresses.editName(u"Printer"_s);
    addresses.begin();
    EXPECT_EQ(addresses.state().address, QString());
    EXPECT_EQ(addresses.state().name, QString());
    EXPECT_FALSE(addresses.state().canAdd);
}

} // namespace
} // namespace quillon::test
