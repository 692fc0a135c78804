// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/KnownPlaces.h"

#include "unit/history/HistoryFixture.h"

#include <QFile>

namespace quillon::test {

using namespace Qt::StringLiterals;

class KnownPlacesTest : public HistoryFixture
{
protected:
    KnownPlacesTest()
    {
        QObject::connect(places.get(), &KnownPlaces::found, places.get(),
            [this](const KnownPlaces::Found &found) { results << found; });
        QObject::connect(places.get(), &KnownPlaces::failed, places.get(), [this] { ++failures; });
    }
    /// Each later than the one before.
    void record(const QString &worn, const QString &ssid = {}, const QString &bssid = {})
    {
        const ManagedObjectContext::UndoDisabled facts(context());
        Connection connection(context().insertNewObject(model::Connection));
        connection.setDate(QDateTime::fromSecsSinceEpoch(++moment, Qt::UTC));
        connection.setAddress(worn);
        connection.setSsid(ssid);
        connection.setBssid(bssid);
    }
    void save()
    {
        ASSERT_FALSE(context().save());
        scheduler.runPending();
    }
    KnownPlaces::Found search(
        const QStringList &savedAddresses = {}, const QStringList &savedNetworks = {})
    {
        results.clear();
        places->search(savedAddresses, savedNetworks);
        scheduler.runPending();
        EXPECT_EQ(results.size(), 1);
        return results.value(0);
    }
    static QStringList addressesOf(const KnownPlaces::Found &found)
    {
        QStringList addresses;
        for (const SavedEntry &entry : found.addresses) {
            addresses << entry.address.value_or(QString());
        }
        return addresses;
    }

    std::unique_ptr<KnownPlaces> places = std::make_unique<KnownPlaces>(*records, scheduler);
    QList<KnownPlaces::Found> results;
    int failures = 0;
    int moment = 0;
    const QString one = u"02:AA:bb:00:00:01"_s;
    const QString two = u"02:aa:bb:00:00:02"_s;
    const QString point = u"A4:2B:B0:11:22:33"_s;
};

TEST_F(KnownPlacesTest, FindsEachOnceTheLatestFirst)
{
    record(one, u"Old name"_s, point);
    record(two);
    record(two.toUpper());
    record(one.toLower(), u"Harbor"_s, point.toLower());
    save();
    const KnownPlaces::Found found = search();
    EXPECT_EQ(addressesOf(found), (QStringList{one.toLower(), two.toUpper()}));
    EXPECT_EQ(found.addresses[1].name, two.toUpper()) << "in the letters of its record";
    EXPECT_EQ(found.networks, QList{SavedEntry::ofNetwork(point, u"Harbor"_s)});
    EXPECT_EQ(found.networks[0].bssid, point.toLower());
    EXPECT_FALSE(found.hasMore);
    EXPECT_FALSE(places->isSearching());
}

TEST_F(KnownPlacesTest, PassesOverWhatIsSavedInAnyLetters)
{
    record(one, u"Harbor"_s, point);
    save();
    EXPECT_EQ(search({one.toUpper()}, {point.toLower()}), KnownPlaces::Found());
}

TEST_F(KnownPlacesTest, PassesOverRecordsThatNameNone)
{
    record(QString(), u"Wire"_s);
    save();
    EXPECT_EQ(search(), KnownPlaces::Found());
}

TEST_F(KnownPlacesTest, FindsNothingInAnEmptyHistory)
{
    EXPECT_EQ(search(), KnownPlaces::Found());
    EXPECT_EQ(search(), KnownPlaces::Found()) << "and once more";
}

TEST_F(KnownPlacesTest, SeesWhatIsNotSavedYet)
{
    record(one);
    save();
    record(two);
    for (const Connection &connection : recordsOf(context())) {
        if (connection.address() == one) {
            context().deleteObject(connection.record());
        }
    }
    EXPECT_EQ(addressesOf(search()), QStringList{two});
}

TEST_F(KnownPlacesTest, FindsTheNewestOfMany)
{
    const auto number = [](int index) {
        return u"02:00:00:00:%1:%2"_s.arg(index / 100, 2, 10, QChar(u'0'))
            .arg(index % 100, 2, 10, QChar(u'0'));
    };
    for (int index = 0; index < KnownPlaces::most; ++index) {
        record(number(index));
    }
    save();
    EXPECT_FALSE(search().hasMore) << "as many as there is room for";
    record(number(5000), u"Harbor"_s, point);
    save();
    const KnownPlaces::Found found = search();
    EXPECT_TRUE(found.hasMore);
    EXPECT_EQ(found.addresses.size() + found.networks.size(), KnownPlaces::most);
    EXPECT_EQ(addressesOf(found).first(), number(5000));
    EXPECT_FALSE(addressesOf(found).contains(number(0)));
}

TEST_F(KnownPlacesTest, LooksOnceAtATimeAndInTheBackground)
{
    record(one);
    save();
    places->search({}, {});
    places->search({one}, {});
    EXPECT_TRUE(places->isSearching());
    EXPECT_TRUE(results.isEmpty());
    scheduler.runPending();
    ASSERT_EQ(results.size(), 1);
    EXPECT_EQ(addressesOf(results[0]), QStringList{one});
}

TEST_F(KnownPlacesTest, EndsWithItsOwner)
{
    record(one);
    save();
    places->search({}, {});
    places.reset();
    scheduler.runPending();
    EXPECT_TRUE(results.isEmpty());
}

TEST_F(KnownPlacesTest, SaysThatTheRecordsCannotBeRead)
{
    record(one);
    save();
    ASSERT_TRUE(QFile::rename(file(), file() + u".away"_s));
    places->search({}, {});
    scheduler.runPending();
    EXPECT_EQ(failures, 1);
    EXPECT_TRUE(results.isEmpty());
    EXPECT_FALSE(places->isSearching());
    ASSERT_TRUE(QFile::rename(file() + u".away"_s, file()));
    EXPECT_EQ(addressesOf(search()), QStringList{one}) << "later it can";
}

} // namespace quillon::test
