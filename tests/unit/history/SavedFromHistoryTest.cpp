// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/SavedFromHistory.h"

#include "base/SettingsKeys.h"
#include "networks/SavedEntries.h"
#include "unit/history/HistoryFixture.h"

namespace quillon::test {

using namespace Qt::StringLiterals;

class SavedFromHistoryTest : public HistoryFixture
{
protected:
    Connection record(
        const QString &worn, const QString &ssid = u""_s, const QString &bssid = u""_s)
    {
        Connection connection(context().insertNewObject(model::Connection));
        connection.setAddress(worn);
        connection.setSsid(ssid);
        connection.setBssid(bssid);
        return connection;
    }
    QVariantMap stored(const QString &list) const { return settings.getDictionary(list); }

    SavedFromHistory saved{settings};
    const QString upper = u"A4:83:E7:01:02:03"_s;
    const QString point = u"A4:2B:B0:11:22:33"_s;
};

TEST_F(SavedFromHistoryTest, AnAddressKeepsTheLettersOfItsRecord)
{
    saved.addAddresses({record(upper)});
    EXPECT_EQ(stored(keys::savedAddresses),
        QVariantMap({{upper, QVariantMap{{u"name"_s, upper}, {u"address"_s, upper}}}}));
}

TEST_F(SavedFromHistoryTest, TheSameInOtherLettersIsAnotherAddress)
{
    saved.addAddresses({record(upper), record(upper.toLower())});
    EXPECT_EQ(stored(keys::savedAddresses).keys(), QStringList({upper, upper.toLower()}));
}

TEST_F(SavedFromHistoryTest, TwoRecordsOfOneAddressSaveItOnce)
{
    settings.clearJournal();
    saved.addAddresses({record(upper), record(upper)});
    EXPECT_EQ(stored(keys::savedAddresses).size(), 1);
    EXPECT_EQ(settings.journal(), QStringList({u"set savedAddresses"_s, u"synchronize"_s}));
}

TEST_F(SavedFromHistoryTest, SeveralAreStoredAtOnce)
{
    settings.clearJournal();
    saved.addAddresses({record(u"a"_s), record(u"b"_s), record(u"c"_s)});
    EXPECT_EQ(stored(keys::savedAddresses).size(), 3);
    EXPECT_EQ(settings.writeCount(keys::savedAddresses), 1);
    EXPECT_EQ(settings.synchronizeCount(), 1);
}

TEST_F(SavedFromHistoryTest, WhatIsSavedAlreadyIsNotWrittenAgain)
{
    saveEntry(settings, keys::savedAddresses, upper, {.name = u"Printer"_s, .address = upper});
    settings.clearJournal();
    saved.addAddresses({record(upper)});
    saved.addAddresses({});
    EXPECT_TRUE(settings.journal().isEmpty());
    EXPECT_EQ(savedEntries(settings, keys::savedAddresses)[upper].name, u"Printer"_s);
}

TEST_F(SavedFromHistoryTest, ANetworkIsSavedUnderItsBssidInLowerCase)
{
    saved.addNetworks({record(upper, u"Harbor"_s, point)});
    EXPECT_EQ(stored(keys::savedNetworks),
        QVariantMap({{point.toLower(), QVariantMap{{u"BSSID"_s, point.toLower()},
                                           {u"SSID"_s, u"Harbor"_s}, {u"name"_s, u"Harbor"_s}}}}));
}

TEST_F(SavedFromHistoryTest, RecordsWithoutANetworkSaveOneUnderTheEmptyText)
{
    saved.addNetworks({record(upper), record(u"b"_s), record(u"c"_s, u"Harbor"_s, point)});
    EXPECT_EQ(stored(keys::savedNetworks).keys(), QStringList({u""_s, point.toLower()}));
}

TEST_F(SavedFromHistoryTest, ANetworkThatIsSavedKeepsItsName)
{
    saveEntry(settings, keys::savedNetworks, point.toLower(), {.name = u"Ours"_s});
    settings.clearJournal();
    saved.addNetworks({record(upper, u"Harbor"_s, point)});
    EXPECT_TRUE(settings.journal().isEmpty());
}

TEST_F(SavedFromHistoryTest, AnAddressIsNewUntilItIsSaved)
{
    const QList<Connection> both{record(upper), record(u"b"_s)};
    EXPECT_FALSE(saved.hasNewAddress({}));
    EXPECT_TRUE(saved.hasNewAddress(both));
    saved.addAddresses({both[0]});
    EXPECT_TRUE(saved.hasNewAddress(both));
    saved.addAddresses({both[1]});
    EXPECT_FALSE(saved.hasNewAddress(both));
}

TEST_F(SavedFromHistoryTest, ARecordWithoutABssidIsNoReasonToSaveANetwork)
{
    EXPECT_FALSE(saved.hasNewNetwork({record(upper)}));
    const auto wireless = record(upper, u"Harbor"_s, point);
    EXPECT_TRUE(saved.hasNewNetwork({record(upper), wireless}));
    saved.addNetworks({wireless});
    EXPECT_FALSE(saved.hasNewNetwork({record(upper), wireless}));
}

TEST_F(SavedFromHistoryTest, AListThatIsNoneIsEmpty)
{
    settings.set(keys::savedAddresses, u"nonsense"_s);
    saved.addAddresses({record(upper)});
    EXPECT_EQ(stored(keys::savedAddresses).keys(), QStringList({upper}));
}

} // namespace quillon::test
