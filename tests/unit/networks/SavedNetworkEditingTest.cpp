// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "networks/SavedNetworkEditing.h"

#include "NetworkEditingFixture.h"

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

using SavedNetworkEditingTest = NetworkEditingFixture;

TEST_F(SavedNetworkEditingTest, GetsTheTypedName)
{
    editing->changeSavedNetworkName(u"Our house"_s);
    EXPECT_EQ(savedNetwork(homeBssid), networkEntry(homeBssid, u"Home"_s, u"Our house"_s));
    EXPECT_EQ(savedNetwork(officeBssid).value(savedentry::name).toString(), u"Office"_s);
    EXPECT_EQ(settings.journal(), (QStringList{u"set savedNetworks"_s, u"synchronize"_s,
                                      u"set currentWiFiDict"_s, u"synchronize"_s}));
    EXPECT_EQ(finished, 0) << "not in the caller's turn";
    scheduler.runPending();
    EXPECT_EQ(finished, 1);
}

TEST_F(SavedNetworkEditingTest, ShowsItsNewNameInTheWiFiRecord)
{
    editing->changeSavedNetworkName(u"Our house"_s);
    EXPECT_EQ(current(wifirecord::name), u"Our house"_s);
}

TEST_F(SavedNetworkEditingTest, IsNeitherWrittenNorRefreshedForItsOwnName)
{
    editing->changeSavedNetworkName(u"Home"_s);
    EXPECT_TRUE(settings.journal().isEmpty());
    EXPECT_EQ(radio.reads, 0);
    scheduler.runPending();
    EXPECT_EQ(finished, 1) << "the popover closes all the same";
}

TEST_F(SavedNetworkEditingTest, GetsTheNextFreeSuffixForTheNameOfAnother)
{
    editing->changeSavedNetworkName(u"Office (2)"_s);
    EXPECT_EQ(name(), u"Office (2) (2)"_s) << "a suffix is part of a name";
    editing->changeSavedNetworkName(u"Office"_s);
    EXPECT_EQ(name(), u"Office (3)"_s) << "taken both bare and with (2)";
}

TEST_F(SavedNetworkEditingTest, GetsTwoForTheNameOfOneOther)
{
    editing->beginEditing(savedNetworkEntry(cafeBssid));
    editing->changeSavedNetworkName(u"Home"_s);
    EXPECT_EQ(savedNetwork(cafeBssid).value(savedentry::name).toString(), u"Home (2)"_s);
}

TEST_F(SavedNetworkEditingTest, DoesNotCountItsOwnNameAsTaken)
{
    editing->changeSavedNetworkName(u"Away"_s);
    editing->changeSavedNetworkName(u"Home"_s);
    EXPECT_EQ(name(), u"Home"_s);
    // Another computer gave it this name while the popover was open.
    saveNetwork(homeBssid, u"Home"_s, u"Our house"_s);
    editing->changeSavedNetworkName(u"Our house"_s);
    EXPECT_EQ(name(), u"Our house"_s);
}

TEST_F(SavedNetworkEditingTest, ComparesNamesExactly)
{
    editing->changeSavedNetworkName(u"office"_s);
    EXPECT_EQ(name(), u"office"_s);
}

TEST_F(SavedNetworkEditingTest, MayHaveNoNameWhenNoOtherHasNone)
{
    editing->changeSavedNetworkName(QString());
    EXPECT_EQ(name(), QString());
    EXPECT_TRUE(savedNetwork(homeBssid).contains(savedentry::name));
    editing->beginEditing(savedNetworkEntry(officeBssid));
    editing->changeSavedNetworkName(QString());
    EXPECT_EQ(savedNetwork(officeBssid).value(savedentry::name).toString(), u" (2)"_s);
}

TEST_F(SavedNetworkEditingTest, IsTakenOnceWhenTheFieldEndsTwice)
{
    editing->changeSavedNetworkName(u"Our house"_s);
    settings.clearJournal();
    editing->changeSavedNetworkName(u"Our house"_s);
    EXPECT_TRUE(settings.journal().isEmpty());
}

TEST_F(SavedNetworkEditingTest, IsRenamedBesideWhatIsNoEntry)
{
    QVariantMap list = settings.getDictionary(keys::savedNetworks);
    list[u"zz"_s] = u"text"_s;
    list[u"zy"_s] = QVariantMap{{savedentry::name, 5}};
    settings.set(keys::savedNetworks, list);
    editing->changeSavedNetworkName(u"5"_s);
    EXPECT_EQ(name(), u"5"_s);
    EXPECT_EQ(settings.getDictionary(keys::savedNetworks).value(u"zz"_s).toString(), u"text"_s);
}

TEST_F(SavedNetworkEditingTest, IsRemovedAndTheNetworkRefreshed)
{
    editing->changeSavedNetworkName(u"Our house"_s);
    scheduler.runPending();
    finished = 0;
    settings.clearJournal();
    editing->removeSavedNetwork();
    EXPECT_FALSE(settings.getDictionary(keys::savedNetworks).contains(homeBssid));
    EXPECT_EQ(settings.getDictionary(keys::savedNetworks).size(), 2);
    EXPECT_EQ(settings.journal(), (QStringList{u"set savedNetworks"_s, u"synchronize"_s,
                                      u"set currentWiFiDict"_s, u"synchronize"_s}));
    EXPECT_EQ(current(wifirecord::name), u"Home"_s) << "its SSID again";
    EXPECT_FALSE(editing->editingNetworkDict());
    EXPECT_EQ(finished, 0) << "not in the caller's turn";
    scheduler.runPending();
    EXPECT_EQ(finished, 1);
}

TEST_F(SavedNetworkEditingTest, IsNoneAfterTheEnd)
{
    editing->endEditing();
    editing->changeSavedNetworkName(u"Late"_s);
    editing->removeSavedNetwork();
    editing->updateNetworkDefinition(SavedNetworkEditing::ssidButton);
    scheduler.runPending();
    EXPECT_TRUE(settings.journal().isEmpty());
    EXPECT_EQ(finished, 0);
    EXPECT_TRUE(modes.isEmpty());
    EXPECT_FALSE(editing->isSsidDefined());
}

TEST_F(SavedNetworkEditingTest, IsACopyOfTheListsEntry)
{
    saveNetwork(homeBssid, u"Home"_s, u"Changed elsewhere"_s);
    EXPECT_EQ(editing->editingNetworkDict()->name, u"Home"_s);
}

TEST_F(SavedNetworkEditingTest, IsRecognizedBySSIDOnceItsButtonIsChosen)
{
    editing->updateNetworkDefinition(u"ssidbutton"_s);
    QVariantMap expected = networkEntry(homeBssid, u"Home"_s, u"Home"_s);
    expected[u"ssidDefined"_s] = true;
    EXPECT_EQ(savedNetwork(homeBssid), expected);
    EXPECT_EQ(editing->editingNetworkDict(), SavedEntry::fromPropertyList(expected));
    EXPECT_TRUE(editing->isSsidDefined());
    EXPECT_EQ(settings.journal(), (QStringList{u"set savedNetworks"_s, u"synchronize"_s}));
}

TEST_F(SavedNetworkEditingTest, IsRecognizedByBSSIDWithoutAMark)
{
    editing->updateNetworkDefinition(SavedNetworkEditing::ssidButton);
    editing->updateNetworkDefinition(u"bssidbutton"_s);
    EXPECT_EQ(savedNetwork(homeBssid), networkEntry(homeBssid, u"Home"_s, u"Home"_s));
    EXPECT_FALSE(editing->isSsidDefined());
}

TEST_F(SavedNetworkEditingTest, ShowsItsModeBeforeItIsStored)
{
    QStringList heard;
    QObject::connect(editing.get(), &SavedNetworkEditing::networkDefinitionChanged, [&] {
        heard << (editing->isSsidDefined() ? u"ssid"_s : u"bssid"_s)
              << QString::number(settings.writeCount(keys::savedNetworks));
    });
    editing->updateNetworkDefinition(SavedNetworkEditing::ssidButton);
    EXPECT_EQ(heard, (QStringList{u"ssid"_s, u"0"_s}));
}

TEST_F(SavedNetworkEditingTest, SaysItsModeOnceItIsStored)
{
    editing->updateNetworkDefinition(SavedNetworkEditing::ssidButton);
    editing->updateNetworkDefinition(u"bssidbutton"_s);
    EXPECT_EQ(modes, (QStringList{homeBssid + u" ssid"_s, homeBssid + u" bssid"_s}));
}

TEST_F(SavedNetworkEditingTest, KeepsItsModeWhenItIsRenamed)
{
    editing->updateNetworkDefinition(SavedNetworkEditing::ssidButton);
    editing->changeSavedNetworkName(u"Our house"_s);
    EXPECT_TRUE(savedNetwork(homeBssid).contains(savedentry::ssidDefined));
}

TEST_F(SavedNetworkEditingTest, MayBeGoneWhenItsTurnComes)
{
    editing->removeSavedNetwork();
    editing.reset();
    scheduler.runPending();
    EXPECT_EQ(finished, 0);
}

} // namespace
} // namespace quillon::test
