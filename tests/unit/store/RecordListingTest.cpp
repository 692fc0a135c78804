// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/RecordListing.h"

#include "unit/store/RecordStoreFixture.h"

#include <QUndoStack>

namespace quillon::test {

using namespace Qt::StringLiterals;

class RecordListingTest : public RecordStoreTest
{
protected:
    RecordListingTest()
    {
        const auto on = [this](auto signal, auto note) {
            QObject::connect(&listing, signal, &listing, note);
        };
        on(&RecordListing::reset, [this] { ++resets; });
        on(&RecordListing::aboutToInsert,
            [this](qsizetype first, qsizetype last) { insertions << std::pair(first, last); });
        on(&RecordListing::aboutToRemove,
            [this](qsizetype first, qsizetype last) { removals << std::pair(first, last); });
        on(&RecordListing::valuesChanged, [this] { ++values; });
        on(&RecordListing::failed, [this] { ++failures; });
    }
    /// A record of the history, `second` seconds after the first.
    ManagedObjectPtr insert(int second, const QString &device = u"wlp2s0"_s)
    {
        auto record = context().insertNewObject(model::Connection);
        record->set(model::connection::date, QDateTime::fromSecsSinceEpoch(second, Qt::UTC));
        record->set(model::connection::device, device);
        return record;
    }
    void fill(int count)
    {
        const ManagedObjectContext::UndoDisabled facts(context());
        for (int second = 0; second < count; ++second) {
            insert(second);
        }
        ASSERT_FALSE(context().save());
        endTurn();
    }
    static FetchRequest newest()
    {
        return {model::Connection, {}, {{model::connection::date, false}}, true};
    }
    static FetchRequest on(const QString &device)
    {
        FetchRequest request = newest();
        request.predicate = Predicate::contains(model::connection::device, device);
        return request;
    }
    void show(const FetchRequest &request)
    {
        listing.show(request);
        endTurn();
    }
    /// The seconds of the records that are listed; -1 for one that is gone.
    QList<int> seconds() const
    {
        QList<int> all;
        for (qsizetype row = 0; row < listing.size(); ++row) {
            const auto record = listing.at(row);
            all << (record ? int(record->get(model::connection::date).toSecsSinceEpoch()) : -1);
        }
        return all;
    }
    /// What another program does to the file.
    void elsewhere(const std::function<void(ManagedObjectContext &)> &work) const
    {
        FakeScheduler another;
        auto opened = ManagedObjectContext::open(quillonModel(), path, another);
        ASSERT_TRUE(opened);
        work(*opened.value());
        ASSERT_FALSE(opened.value()->save());
    }

    RecordListing listing{store, scheduler};
    int resets = 0;
    QList<std::pair<qsizetype, qsizetype>> insertions; ///< first and last row
    QList<std::pair<qsizetype, qsizetype>> removals;
    int values = 0;
    int failures = 0;
};

TEST_F(RecordListingTest, ListsTheNewestFirst)
{
    fill(4);
    listing.show(newest());
    EXPECT_FALSE(listing.isComplete()) << "whether there are more is found in the background";
    endTurn();
    EXPECT_EQ(seconds(), QList<int>({3, 2, 1, 0}));
    EXPECT_TRUE(listing.isComplete());
    EXPECT_EQ(listing.total(), 4);
}

TEST_F(RecordListingTest, OfEqualDatesTheLatestMadeComesFirst)
{
    insert(1, u"a"_s);
    insert(1, u"b"_s);
    ASSERT_FALSE(context().save());
    show(newest());
    EXPECT_EQ(listing.at(0)->get(model::connection::device), u"b"_s);
    EXPECT_EQ(listing.at(1)->get(model::connection::device), u"a"_s);
}

TEST_F(RecordListingTest, AnEmptyStoreIsAListWithoutRecords)
{
    show(newest());
    EXPECT_EQ(listing.size(), 0);
    EXPECT_TRUE(listing.isComplete());
    EXPECT_EQ(listing.total(), 0);
    EXPECT_EQ(listing.at(0), nullptr);
}

TEST_F(RecordListingTest, ALongListComesInPartsTheFirstOfWhichIsAPage)
{
    fill(1000);
    show(newest());
    EXPECT_EQ(resets, 1);
    ASSERT_FALSE(insertions.isEmpty());
    EXPECT_EQ(insertions.first().first, 50) << "the first 50 stood already";
    EXPECT_EQ(listing.size(), 1000);
    EXPECT_EQ(listing.at(0)->get(model::connection::date).toSecsSinceEpoch(), 999);
    EXPECT_EQ(listing.at(999)->get(model::connection::date).toSecsSinceEpoch(), 0);
    EXPECT_EQ(listing.at(1000), nullptr);
    EXPECT_EQ(listing.at(-1), nullptr);
}

TEST_F(RecordListingTest, TellsOfAllRecordsWhateverWasAskedFor)
{
    fill(3);
    insert(9, u"enp1s0"_s);
    ASSERT_FALSE(context().save());
    show(on(u"enp"_s));
    EXPECT_EQ(seconds(), QList<int>({9}));
    EXPECT_EQ(listing.total(), 4);
    show(on(u"nothing"_s));
    EXPECT_EQ(listing.size(), 0);
    EXPECT_TRUE(listing.isComplete());
    EXPECT_EQ(listing.total(), 4);
}

TEST_F(RecordListingTest, KeepsWhatItHasUntilTheFirstIsFound)
{
    fill(3);
    show(newest());
    listing.show(on(u"nothing"_s));
    EXPECT_EQ(listing.size(), 3);
    endTurn();
    EXPECT_EQ(listing.size(), 0);
}

TEST_F(RecordListingTest, AnOutdatedSearchIsNotHeardAnyMore)
{
    fill(3);
    listing.show(newest());
    listing.show(on(u"nothing"_s));
    endTurn();
    EXPECT_EQ(listing.size(), 0);
    EXPECT_EQ(resets, 2) << "the first page of each";
}

TEST_F(RecordListingTest, APageThatIsFoundQuicklyStandsBeforeTheCallReturns)
{
    fill(1000);
    listing.show(newest());
    EXPECT_EQ(listing.size(), 50);
    EXPECT_FALSE(listing.isComplete());
    ASSERT_NE(listing.at(0), nullptr);
    EXPECT_EQ(listing.at(0)->get(model::connection::date).toSecsSinceEpoch(), 999);
    insert(2000);
    listing.show(newest());
    EXPECT_EQ(listing.at(0)->get(model::connection::date).toSecsSinceEpoch(), 2000)
        << "what is not saved belongs to it";
}

TEST_F(RecordListingTest, WhatTakesLongerIsLeftToTheBackground)
{
    fill(20'000);
    insert(-1, u"enp1s0"_s);
    ASSERT_FALSE(context().save());
    listing.show(on(u"enp"_s));
    EXPECT_EQ(listing.size(), 0);
    endTurn();
    EXPECT_EQ(seconds(), QList<int>({-1}));
}

TEST_F(RecordListingTest, APageThatSomebodyChangedMeanwhileIsReplaced)
{
    fill(60);
    listing.show(newest());
    elsewhere([](ManagedObjectContext &other) {
        other.deleteObject(other.fetch(newest()).value().first());
    });
    endTurn();
    EXPECT_EQ(listing.size(), 59);
    EXPECT_EQ(seconds().first(), 58);
    EXPECT_FALSE(seconds().contains(-1));
}

TEST_F(RecordListingTest, APageThatSomebodyShortenedMeanwhileGetsShorter)
{
    fill(2);
    listing.show(newest());
    elsewhere([](ManagedObjectContext &other) {
        other.deleteObject(other.fetch(newest()).value().last());
    });
    endTurn();
    EXPECT_EQ(seconds(), QList<int>({1}));
    EXPECT_TRUE(listing.isComplete());
}

TEST_F(RecordListingTest, WhatIsDeletedWhileTheRestIsReadDoesNotComeBackEither)
{
    fill(60);
    listing.show(newest());
    context().deleteObject(listing.at(1));
    context().processPendingChanges();
    EXPECT_EQ(listing.size(), 49);
    endTurn();
    EXPECT_EQ(listing.size(), 59);
    EXPECT_FALSE(seconds().contains(58));
    EXPECT_FALSE(seconds().contains(-1));
}

TEST_F(RecordListingTest, WhatIsNotSavedIsListedToo)
{
    fill(2);
    context().deleteObject(context().fetch(newest()).value().first());
    insert(7);
    insert(-5);
    endTurn();
    show(newest());
    EXPECT_EQ(seconds(), QList<int>({7, 0, -5}));
    EXPECT_EQ(listing.total(), 3);
}

TEST_F(RecordListingTest, ANewRecordComesInAtItsPlaceAndMovesNothingElse)
{
    fill(3);
    show(newest());
    const auto held = listing.at(0);
    resets = 0;
    insert(10);
    ASSERT_FALSE(context().save());
    endTurn();
    EXPECT_EQ(seconds(), QList<int>({10, 2, 1, 0}));
    EXPECT_EQ(resets, 0);
    EXPECT_EQ(insertions.last(), std::pair(qsizetype{0}, qsizetype{0}));
    EXPECT_EQ(listing.at(1), held);
    EXPECT_EQ(listing.total(), 4);
}

TEST_F(RecordListingTest, ARecordThatIsSavedLaterKeepsItsPlace)
{
    fill(2);
    show(newest());
    insert(1);
    endTurn();
    ASSERT_EQ(listing.size(), 3);
    ASSERT_FALSE(context().save());
    endTurn();
    EXPECT_EQ(seconds(), QList<int>({1, 1, 0}));
}

TEST_F(RecordListingTest, ADeletedRecordGoesAtOnceAndComesBackByUndo)
{
    fill(4);
    show(newest());
    context().deleteObject(listing.at(1));
    context().processPendingChanges();
    EXPECT_EQ(seconds(), QList<int>({3, 1, 0}));
    EXPECT_EQ(removals.size(), 1);
    EXPECT_EQ(listing.total(), 3);
    endTurn();
    EXPECT_EQ(seconds(), QList<int>({3, 1, 0}));
    store.undo();
    endTurn();
    EXPECT_EQ(seconds(), QList<int>({3, 2, 1, 0}));
    EXPECT_EQ(listing.total(), 4);
    EXPECT_EQ(resets, 1) << "that of the beginning";
}

TEST_F(RecordListingTest, WhatIsDeletedWhileItIsReadDoesNotComeBack)
{
    fill(3);
    show(newest());
    store.recordsMerged();
    // The search for what became of the list has looked already, and is not heard yet.
    scheduler.onMain([this] {
        context().deleteObject(listing.at(0));
        context().processPendingChanges();
    });
    endTurn();
    EXPECT_EQ(seconds(), QList<int>({1, 0}));
    EXPECT_EQ(insertions.size(), 0);
    EXPECT_EQ(resets, 1);
}

TEST_F(RecordListingTest, ManyScatteredDeletionsAreOneReset)
{
    fill(100);
    show(newest());
    QList<ManagedObjectPtr> even;
    for (qsizetype row = 0; row < listing.size(); row += 2) {
        even << listing.at(row);
    }
    resets = 0;
    for (const auto &object : even) {
        context().deleteObject(object);
    }
    endTurn();
    EXPECT_EQ(resets, 1);
    EXPECT_TRUE(removals.isEmpty());
    EXPECT_EQ(listing.size(), 50);
    EXPECT_FALSE(seconds().contains(-1));
}

TEST_F(RecordListingTest, ARecordThatFitsNoMoreGoes)
{
    fill(2);
    show(on(u"wlp"_s));
    ASSERT_EQ(listing.size(), 2);
    listing.at(0)->set(model::connection::device, u"enp1s0"_s);
    endTurn();
    EXPECT_EQ(seconds(), QList<int>({0}));
    store.undo();
    endTurn();
    EXPECT_EQ(seconds(), QList<int>({1, 0}));
}

TEST_F(RecordListingTest, ChangesOfRulesAreNoneOfItsOwn)
{
    fill(2);
    show(newest());
    values = 0;
    insertRule(u"Home"_s);
    endTurn();
    EXPECT_EQ(values, 0);
}

TEST_F(RecordListingTest, FollowsWhatOthersDidToTheFile)
{
    fill(3);
    show(newest());
    elsewhere([](ManagedObjectContext &other) {
        const auto all = other.fetch(newest()).value();
        other.deleteObject(all[1]);
        all[2]->set(model::connection::notes, u"theirs"_s);
    });
    context().mergeChangesFromStore();
    EXPECT_EQ(listing.at(1), nullptr) << "gone, and not yet known to the list";
    endTurn();
    EXPECT_EQ(seconds(), QList<int>({2, 0}));
    EXPECT_EQ(listing.at(1)->get(model::connection::notes), u"theirs"_s);
    EXPECT_EQ(listing.total(), 2);
}

TEST_F(RecordListingTest, FollowsAnotherContext)
{
    fill(3);
    show(newest());
    store.refreshPersistentContainer();
    EXPECT_NE(listing.at(0), nullptr);
    endTurn();
    EXPECT_EQ(seconds(), QList<int>({2, 1, 0}));
    context().deleteObject(listing.at(0));
    endTurn();
    EXPECT_EQ(seconds(), QList<int>({1, 0})) << "they are the objects of the new one";
}

TEST_F(RecordListingTest, ClearedItForgetsEverythingAndFollowsNothing)
{
    fill(3);
    show(newest());
    listing.clear();
    EXPECT_EQ(listing.size(), 0);
    EXPECT_FALSE(listing.total());
    insert(5);
    endTurn();
    EXPECT_EQ(listing.size(), 0);
    show(newest());
    EXPECT_EQ(listing.size(), 4);
}

TEST_F(RecordListingTest, WhatCannotBeAskedForIsTold)
{
    fill(1);
    show({model::Connection, Predicate::contains(u"colour"_s, u"red"_s), {}});
    EXPECT_EQ(failures, 1);
    EXPECT_EQ(listing.size(), 0);
    EXPECT_TRUE(listing.isComplete());
}

TEST_F(RecordListingTest, ItMayGoInTheMiddleOfASearch)
{
    fill(3);
    {
        RecordListing brief(store, scheduler);
        brief.show(newest());
    }
    endTurn();
    SUCCEED();
}

TEST_F(RecordListingTest, APictureOfItKeepsItsRecordsAndTheirUnsavedValues)
{
    fill(3);
    show(newest());
    listing.at(1)->set(model::connection::notes, u"mine"_s);
    const RecordSnapshot picture = listing.snapshot();
    context().deleteObject(listing.at(0));
    endTurn();
    ASSERT_EQ(listing.size(), 2);
    QStringList notes;
    const qsizetype column = picture.entity().indexOf(model::connection::notes);
    ASSERT_FALSE(picture.read([&](const QVariantList &read) {
        notes << read[column].toString();
        return true;
    }));
    EXPECT_EQ(notes, QStringList({QString(), u"mine"_s, QString()}));
}

TEST_F(RecordListingTest, APictureIsReadOnlySoFarAsIsWanted)
{
    fill(3);
    show(newest());
    int seen = 0;
    ASSERT_FALSE(listing.snapshot().read([&seen](const QVariantList &) { return ++seen < 2; }));
    EXPECT_EQ(seen, 2);
}

} // namespace quillon::test
