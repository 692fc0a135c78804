// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/SavedFromMany.h"

#include "base/SettingsKeys.h"
#include "history/HistorySearch.h"
#include "networks/SavedEntries.h"
#include "store/RecordListing.h"
#include "unit/history/HistoryFixture.h"

#include <QFile>

namespace quillon::test {

using namespace Qt::StringLiterals;

class SavedFromManyTest : public HistoryFixture
{
protected:
    SavedFromManyTest()
    {
        QObject::connect(
            &saving, &SavedFromMany::looked, &saving, [this](const auto &found) { news << found; });
        QObject::connect(&saving, &SavedFromMany::ended, &saving,
            [this](qsizetype added, bool hasMore) { ends << std::pair(added, hasMore); });
        QObject::connect(&saving, &SavedFromMany::progressed, &saving,
            [this](qsizetype done, qsizetype of) { progress << std::pair(done, of); });
        QObject::connect(&saving, &SavedFromMany::failed, &saving, [this] { ++failures; });
    }
    void insert(const QString &worn, const QString &ssid = u""_s, const QString &bssid = u""_s)
    {
        const ManagedObjectContext::UndoDisabled facts(context());
        Connection record(context().insertNewObject(model::Connection));
        record.setAddress(worn);
        record.setSsid(ssid);
        record.setBssid(bssid);
    }
    RecordSnapshot all()
    {
        EXPECT_FALSE(context().save());
        listing.show(historyRequest({}, HistoryColumn::Date, true));
        scheduler.runPending();
        return listing.snapshot();
    }
    QVariantMap stored(const QString &list) const { return settings.getDictionary(list); }

    using List = SavedFromMany::List;
    using News = SavedFromMany::News;
    RecordListing listing{*records, scheduler};
    SavedFromMany saving{settings, scheduler};
    QList<News> news;
    QList<std::pair<qsizetype, bool>> ends;
    QList<std::pair<qsizetype, qsizetype>> progress;
    int failures = 0;
    const QString upper = u"A4:83:E7:01:02:03"_s;
    const QString point = u"A4:2B:B0:11:22:33"_s;
};

TEST_F(SavedFromManyTest, SavesEachAddressOnceAsItsRecordHoldsIt)
{
    insert(upper);
    insert(upper);
    insert(upper.toLower());
    const auto picture = all();
    settings.clearJournal();
    saving.add(List::Addresses, picture);
    EXPECT_TRUE(saving.isAdding());
    EXPECT_TRUE(settings.journal().isEmpty()) << "in the background";
    scheduler.runPending();
    EXPECT_FALSE(saving.isAdding());
    EXPECT_EQ(settings.journal(), QStringList({u"set savedAddresses"_s, u"synchronize"_s}));
    EXPECT_EQ(stored(keys::savedAddresses).keys(), QStringList({upper, upper.toLower()}));
    EXPECT_EQ(stored(keys::savedAddresses)[upper],
        QVariant(QVariantMap{{u"name"_s, upper}, {u"address"_s, upper}}));
    EXPECT_EQ(ends, (QList<std::pair<qsizetype, bool>>{{2, false}}));
}

TEST_F(SavedFromManyTest, SavesNetworksInLowerCaseAndOneWithoutABssid)
{
    insert(upper, u"Harbor"_s, point);
    insert(u"b"_s, u"Another name"_s, point.toLower());
    insert(u"c"_s);
    saving.add(List::Networks, all());
    scheduler.runPending();
    EXPECT_EQ(stored(keys::savedNetworks).keys(), QStringList({u""_s, point.toLower()}));
    EXPECT_EQ(stored(keys::savedNetworks)[point.toLower()],
        QVariant(QVariantMap{
            {u"BSSID"_s, point.toLower()}, {u"SSID"_s, u"Harbor"_s}, {u"name"_s, u"Harbor"_s}}));
}

TEST_F(SavedFromManyTest, WhatIsSavedAlreadyOrMeanwhileKeepsItsName)
{
    insert(upper);
    insert(u"b"_s);
    saveEntry(settings, keys::savedAddresses, upper, {.name = u"Printer"_s, .address = upper});
    saving.add(List::Addresses, all());
    saveEntry(settings, keys::savedAddresses, u"b"_s, {.name = u"Late"_s, .address = u"b"_s});
    settings.clearJournal();
    scheduler.runPending();
    EXPECT_TRUE(settings.journal().isEmpty());
    EXPECT_EQ(savedEntries(settings, keys::savedAddresses)[upper].name, u"Printer"_s);
    EXPECT_EQ(savedEntries(settings, keys::savedAddresses)[u"b"_s].name, u"Late"_s);
    EXPECT_EQ(ends, (QList<std::pair<qsizetype, bool>>{{0, false}}));
}

TEST_F(SavedFromManyTest, NoMoreThanAListCanHoldAreAddedAtOnce)
{
    constexpr int more = SavedFromMany::mostAdded + 3;
    for (int number = 0; number < more; ++number) {
        insert(QString::number(number));
    }
    const auto picture = all();
    saving.add(List::Addresses, picture);
    scheduler.runPending();
    EXPECT_EQ(stored(keys::savedAddresses).size(), SavedFromMany::mostAdded);
    EXPECT_EQ(progress.value(0), std::pair(qsizetype{5000}, qsizetype{more}));
    saving.add(List::Addresses, picture);
    scheduler.runPending();
    EXPECT_EQ(stored(keys::savedAddresses).size(), more);
    EXPECT_EQ(
        ends, (QList<std::pair<qsizetype, bool>>{{SavedFromMany::mostAdded, true}, {3, false}}));
}

TEST_F(SavedFromManyTest, CancelledNothingIsAdded)
{
    insert(upper);
    const auto picture = all();
    saving.add(List::Addresses, picture);
    saving.cancel();
    EXPECT_FALSE(saving.isAdding());
    scheduler.runPending();
    EXPECT_TRUE(stored(keys::savedAddresses).isEmpty());
    EXPECT_EQ(ends.size(), 1);
    saving.cancel();
    EXPECT_EQ(ends.size(), 1);
    saving.add(List::Addresses, picture);
    scheduler.runPending();
    EXPECT_EQ(stored(keys::savedAddresses).size(), 1);
}

TEST_F(SavedFromManyTest, OneAtATime)
{
    insert(upper, u"Harbor"_s, point);
    const auto picture = all();
    saving.add(List::Addresses, picture);
    saving.add(List::Networks, picture);
    scheduler.runPending();
    EXPECT_EQ(ends.size(), 1);
    EXPECT_TRUE(stored(keys::savedNetworks).isEmpty());
}

TEST_F(SavedFromManyTest, TellsWhetherThereIsSomethingNew)
{
    insert(upper, u"Harbor"_s, point);
    insert(u"b"_s);
    const auto picture = all();
    saving.look(picture);
    scheduler.runPending();
    EXPECT_EQ(news.value(0), News({true, true}));
    for (const auto list : {List::Addresses, List::Networks}) {
        saving.add(list, picture);
        scheduler.runPending();
    }
    settings.set(keys::savedNetworks,
        QVariantMap{{point.toLower(), stored(keys::savedNetworks)[point.toLower()]}});
    saving.look(picture);
    scheduler.runPending();
    EXPECT_EQ(news.value(1), News({false, false})) << "a record without a BSSID is no reason";
}

TEST_F(SavedFromManyTest, OnlyTheLastQuestionIsAnswered)
{
    insert(upper);
    const auto picture = all();
    saving.look(picture);
    saving.look(picture.of({}));
    scheduler.runPending();
    EXPECT_EQ(news, QList<News>({News()}));
    saving.look(picture);
    saving.stopLooking();
    scheduler.runPending();
    EXPECT_EQ(news.size(), 1);
}

TEST_F(SavedFromManyTest, RecordsThatCannotBeReadAreAFailure)
{
    insert(upper);
    const auto picture = all();
    QFile::rename(file(), file() + u".away"_s);
    saving.add(List::Addresses, picture);
    saving.look(picture);
    scheduler.runPending();
    EXPECT_EQ(failures, 1);
    EXPECT_EQ(news, QList<News>({News()}));
    EXPECT_TRUE(stored(keys::savedAddresses).isEmpty());
}

TEST_F(SavedFromManyTest, ItMayGoInTheMiddle)
{
    insert(upper);
    {
        SavedFromMany brief(settings, scheduler);
        const auto picture = all();
        brief.look(picture);
        brief.add(List::Addresses, picture);
    }
    scheduler.runPending();
    EXPECT_TRUE(stored(keys::savedAddresses).isEmpty());
}

} // namespace quillon::test
