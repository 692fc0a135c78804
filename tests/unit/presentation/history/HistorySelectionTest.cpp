// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/history/HistorySelection.h"

#include "networks/SavedEntries.h"
#include "unit/presentation/history/HistoryFixture.h"

#include <QFile>
#include <QLocale>

namespace quillon::test {

class HistorySelectionTest : public HistoryWindowFixture
{
protected:
    /// So many records that all were given the same address.
    void fillAlike(int count)
    {
        for (int number = 0; number < count; ++number) {
            insert(number);
        }
        save();
    }

    static constexpr int many = HistorySelection::mostAtOnce + 100;
};

TEST_F(HistorySelectionTest, HoldsWhatTheListHas)
{
    fill(4);
    open();
    HistorySelection selection(controller.rows(), settings, scheduler);
    EXPECT_EQ(selection.count(), 0);
    EXPECT_FALSE(selection.first());
    selection.set({{3, 9}, {1, 1}});
    EXPECT_EQ(selection.count(), 2);
    EXPECT_EQ(selection.first(), 1);
    EXPECT_EQ(
        selection.keys(), QList<qint64>({controller.rows().keyAt(3), controller.rows().keyAt(1)}));
    EXPECT_EQ(selection.records(9).size(), 2);
    EXPECT_EQ(selection.records(1).size(), 1);
    selection.clear();
    EXPECT_EQ(selection.count(), 0);
}

TEST_F(HistorySelectionTest, OfManyTheLastIsLookedAtToo)
{
    fillAlike(many);
    insert(-1, u"02:00:00:00:00:99"_s);
    save();
    open();
    select(0, many - 1);
    EXPECT_TRUE(state().addressesEnabled);
    controller.addAddressesToSaved();
    endTurn();
    ASSERT_EQ(savedEntries(settings, keys::savedAddresses).size(), 1);
    EXPECT_FALSE(state().addressesEnabled) << "all of them are saved";
    EXPECT_FALSE(controller.validateUserInterfaceItem(1));
    select(0, many);
    EXPECT_TRUE(state().addressesEnabled);
    EXPECT_TRUE(state().networksEnabled);
    controller.addNetworksToSaved();
    endTurn();
    EXPECT_FALSE(state().networksEnabled);
    EXPECT_EQ(
        savedEntries(settings, keys::savedNetworks).keys(), QStringList({u"a4:2b:b0:11:22:33"_s}));
}

TEST_F(HistorySelectionTest, OfManyIsLookedAtAnewWhenSavedListsOrRecordsChange)
{
    fillAlike(many);
    open();
    select(0, many - 1);
    controller.addAddressesToSaved();
    endTurn();
    ASSERT_FALSE(state().addressesEnabled);
    settings.changeFromOutside(keys::savedAddresses, QVariantMap());
    endTurn();
    EXPECT_TRUE(state().addressesEnabled);
    controller.addAddressesToSaved();
    endTurn();
    ASSERT_FALSE(state().addressesEnabled);
    Connection(controller.rows().at(many - 1)).setAddress(u"changed"_s);
    endTurn();
    EXPECT_TRUE(state().addressesEnabled);
}

TEST_F(HistorySelectionTest, MoreThanAListTakesIsSaidSo)
{
    constexpr int most = SavedFromMany::mostAdded;
    fill(most + 1);
    open();
    select(0, most);
    controller.addAddressesToSaved();
    endTurn();
    EXPECT_EQ(savedEntries(settings, keys::savedAddresses).size(), most);
    EXPECT_EQ(said,
        QStringList({u"%1 were saved. Save again for more."_s.arg(QLocale().toString(most))}));
    EXPECT_TRUE(state().addressesEnabled);
    controller.addAddressesToSaved();
    endTurn();
    EXPECT_EQ(savedEntries(settings, keys::savedAddresses).size(), most + 1);
    EXPECT_FALSE(state().addressesEnabled);
}

TEST_F(HistorySelectionTest, WhatTheFileDoesNotGiveIsToldInTheWindow)
{
    fill(many);
    open();
    select(0, many - 1);
    QFile::rename(path, path + u".away"_s);
    controller.addAddressesToSaved();
    endTurn();
    EXPECT_EQ(state().failure, u"The records could not be read."_s);
    EXPECT_FALSE(state().work);
}

} // namespace quillon::test
