// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "networks/SavedNetworkEditing.h"

#include "NetworkEditingFixture.h"

namespace quillon::test {
namespace {

using SavedNetworkEditingTest = NetworkEditingFixture;

TEST_F(SavedNetworkEditingTest, GetsTheTypedName)
{
    editing->changeSavedNetworkName(QStringLiteral("Our house"));
    EXPECT_EQ(savedNetwork(homeBssid),
        networkEntry(homeBssid, QStringLiteral("Home"), QStringLiteral("Our house")));
    EXPECT_EQ(
        savedNetwork(officeBssid).value(savedentry::name).toString(), QStringLiteral("Office"));
    EXPECT_EQ(settings.journal(),
        (QStringList{QStringLiteral("set savedNetworks"), QStringLiteral("synchronize"),
            QStringLiteral("set currentWiFiDict"), QStringLiteral("synchronize")}));
    EXPECT_EQ(finished, 0) << "not in the caller's turn";
    scheduler.runPending();
    EXPECT_EQ(finished, 1);
}

TEST_F(SavedNetworkEditingTest, ShowsItsNewNameInTheWiFiRecord)
{
    editing->changeSavedNetworkName(QStringLiteral("Our house"));
    EXPECT_EQ(current(wifirecord::name), QStringLiteral("Our house"));
}

TEST_F(SavedNetworkEditingTest, IsNeitherWrittenNorRefreshedForItsOwnName)
{
    editing->changeSavedNetworkName(QStringLiteral("Home"));
    EXPECT_TRUE(settings.journal().isEmpty());
    EXPECT_EQ(radio.reads, 0);
    scheduler.runPending();
    EXPECT_EQ(finished, 1) << "the popover closes all the same";
}

TEST_F(SavedNetworkEditingTest, GetsTheNextFreeSuffixForTheNameOfAnother)
{
    editing->changeSavedNetworkName(QStringLiteral("Office (2)"));
    EXPECT_EQ(name(), QStringLiteral("Office (2) (2)")) << "a suffix is part of a name";
    editing->changeSavedNetworkName(QStringLiteral("Office"));
    EXPECT_EQ(name(), QStringLiteral("Office (3)")) << "taken both bare and with (2)";
}

TEST_F(SavedNetworkEditingTest, GetsTwoForTheNameOfOneOther)
{
    editing->beginEditing(savedNetworkEntry(cafeBssid));
    editing->changeSavedNetworkName(QStringLiteral("Home"));
    EXPECT_EQ(
        savedNetwork(cafeBssid).value(savedentry::name).toString(), QStringLiteral("Home (2)"));
}

TEST_F(SavedNetworkEditingTest, DoesNotCountItsOwnNameAsTaken)
{
    editing->changeSavedNetworkName(QStringLiteral("Away"));
    editing->changeSavedNetworkName(QStringLiteral("Home"));
    EXPECT_EQ(name(), QStringLiteral("Home"));
    // Another computer gave it this name while the popover was open.
    saveNetwork(homeBssid, QStringLiteral("Home"), QStringLiteral("Our house"));
    editing->changeSavedNetworkName(QStringLiteral("Our house"));
    EXPECT_EQ(name(), QStringLiteral("Our house"));
}

TEST_F(SavedNetworkEditingTest, ComparesNamesExactly)
{
    editing->changeSavedNetworkName(QStringLiteral("office"));
    EXPECT_EQ(name(), QStringLiteral("office"));
}

TEST_F(SavedNetworkEditingTest, MayHaveNoNameWhenNoOtherHasNone)
{
    editing->changeSavedNetworkName(QString());
    EXPECT_EQ(name(), QString());
    EXPECT_TRUE(savedNetwork(homeBssid).contains(savedentry::name));
    editing->beginEditing(savedNetworkEntry(officeBssid));
    editing->changeSavedNetworkName(QString());
    EXPECT_EQ(savedNetwork(officeBssid).value(savedentry::name).toString(), QStringLiteral(" (2)"));
}

TEST_F(SavedNetworkEditingTest, IsTakenOnceWhenTheFieldEndsTwice)
{
    editing->changeSavedNetworkName(QStringLiteral("Our house"));
    settings.clearJournal();
    editing->changeSavedNetworkName(QStringLiteral("Our house"));
    EXPECT_TRUE(settings.journal().isEmpty());
}

TEST_F(SavedNetworkEditingTest, IsRenamedBesideWhatIsNoEntry)
{
    QVariantMap list = settings.getDictionary(keys::savedNetworks);
    list[QStringLiteral("zz")] = QStringLiteral("text");
    list[QStringLiteral("zy")] = QVariantMap{{savedentry::name, 5}};
    settings.set(keys::savedNetworks, list);
    editing->changeSavedNetworkName(QStringLiteral("5"));
    EXPECT_EQ(name(), QStringLiteral("5"));
    EXPECT_EQ(settings.getDictionary(keys::savedNetworks).value(QStringLiteral("zz")).toString(),
        QStringLiteral("text"));
}

TEST_F(SavedNetworkEditingTest, IsRemovedAndTheNetworkRefreshed)
{
    editing->changeSavedNetworkName(QStringLiteral("Our house"));
    scheduler.runPending();
    finished = 0;
    settings.clearJournal();
    editing->removeSavedNetwork();
    EXPECT_FALSE(settings.getDictionary(keys::savedNetworks).contains(homeBssid));
    EXPECT_EQ(settings.getDictionary(keys::savedNetworks).size(), 2);
    EXPECT_EQ(settings.journal(),
        (QStringList{QStringLiteral("set savedNetworks"), QStringLiteral("synchronize"),
            QStringLiteral("set currentWiFiDict"), QStringLiteral("synchronize")}));
    EXPECT_EQ(current(wifirecord::name), QStringLiteral("Home")) << "its SSID again";
    EXPECT_FALSE(editing->editingNetworkDict());
    EXPECT_EQ(finished, 0) << "not in the caller's turn";
    scheduler.runPending();
    EXPECT_EQ(finished, 1);
}

TEST_F(SavedNetworkEditingTest, IsNoneAfterTheEnd)
{
    editing->endEditing();
    editing->changeSavedNetworkName(QStringLiteral("Late"));
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
    saveNetwork(homeBssid, QStringLiteral("Home"), QStringLiteral("Changed elsewhere"));
    EXPECT_EQ(editing->editingNetworkDict()->name, QStringLiteral("Home"));
}

TEST_F(SavedNetworkEditingTest, IsRecognisedBySSIDOnceItsButtonIsChosen)
{
    editing->updateNetworkDefinition(QStringLiteral("ssidbutton"));
    QVariantMap expected = networkEntry(homeBssid, QStringLiteral("Home"), QStringLiteral("Home"));
    expected[QStringLiteral("ssidDefined")] = true;
    EXPECT_EQ(savedNetwork(homeBssid), expected);
    EXPECT_EQ(editing->editingNetworkDict(), SavedEntry::fromPropertyList(expected));
    EXPECT_TRUE(editing->isSsidDefined());
    EXPECT_EQ(settings.journal(),
        (QStringList{QStringLiteral("set savedNetworks"), QStringLiteral("synchronize")}));
}

TEST_F(SavedNetworkEditingTest, IsRecognisedByBSSIDWithoutAMark)
{
    editing->updateNetworkDefinition(SavedNetworkEditing::ssidButton);
    editing->updateNetworkDefinition(QStringLiteral("bssidbutton"));
    EXPECT_EQ(savedNetwork(homeBssid),
        networkEntry(homeBssid, QStringLiteral("Home"), QStringLiteral("Home")));
    EXPECT_FALSE(editing->isSsidDefined());
}

TEST_F(SavedNetworkEditingTest, ShowsItsModeBeforeItIsStored)
{
    QStringList heard;
    QObject::connect(editing.get(), &SavedNetworkEditing::networkDefinitionChanged, [&] {
        heard << (editing->isSsidDefined() ? QStringLiteral("ssid") : QStringLiteral("bssid"))
              << QString::number(settings.writeCount(keys::savedNetworks));
    });
    editing->updateNetworkDefinition(SavedNetworkEditing::ssidButton);
    EXPECT_EQ(heard, (QStringList{QStringLiteral("ssid"), QStringLiteral("0")}));
}

TEST_F(SavedNetworkEditingTest, SaysItsModeOnceItIsStored)
{
    editing->updateNetworkDefinition(SavedNetworkEditing::ssidButton);
    editing->updateNetworkDefinition(QStringLiteral("bssidbutton"));
    EXPECT_EQ(modes,
        (QStringList{homeBssid + QStringLiteral(" ssid"), homeBssid + QStringLiteral(" bssid")}));
}

TEST_F(SavedNetworkEditingTest, KeepsItsModeWhenItIsRenamed)
{
    editing->updateNetworkDefinition(SavedNetworkEditing::ssidButton);
    editing->changeSavedNetworkName(QStringLiteral("Our house"));
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
