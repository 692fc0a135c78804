// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "RecordsFixture.h"

#include <SQLiteCpp/Database.h>

namespace quillon::test {

using namespace Qt::StringLiterals;

class Fetch : public RecordsTest
{
protected:
    static FetchRequest where(const Predicate &predicate) { return {model::Rule, predicate, {}}; }
    static FetchRequest ordered(const QList<SortDescriptor> &order)
    {
        return {model::Rule, {}, order};
    }
    static Predicate named(const QString &name)
    {
        return Predicate::equal(model::rule::name, name);
    }
    QString errorOf(const FetchRequest &request)
    {
        const auto result = context().fetch(request);
        return result ? u"(no error)"_s : result.error().message;
    }
};

TEST_F(Fetch, ComesInTheOrderOfCreationWithUnsavedRecordsLast)
{
    rule(u"b"_s);
    rule(u"a"_s);
    save();
    rule(u"d"_s);
    rule(u"c"_s);
    EXPECT_EQ(names(), QStringList({u"b"_s, u"a"_s, u"d"_s, u"c"_s}));
    save();
    EXPECT_EQ(names(), QStringList({u"b"_s, u"a"_s, u"d"_s, u"c"_s}));
    quit();
    EXPECT_EQ(names(), QStringList({u"b"_s, u"a"_s, u"d"_s, u"c"_s}));
}

TEST_F(Fetch, SortsTextsByCodePointsAndNothingFirst)
{
    for (const QString &name : {u"b"_s, u"\U0001F600"_s, u"B"_s, u"\uFFFD"_s, u""_s, u"é"_s}) {
        rule(name);
    }
    context().insertNewObject(model::Rule);
    const QStringList ascending{
        QString(), u""_s, u"B"_s, u"b"_s, u"é"_s, u"\uFFFD"_s, u"\U0001F600"_s};
    EXPECT_EQ(names(ordered({{model::rule::name, true}})), ascending);
    save();
    EXPECT_EQ(names(ordered({{model::rule::name, true}})), ascending);
    EXPECT_EQ(names(ordered({{model::rule::name, false}})),
        QStringList(ascending.rbegin(), ascending.rend()));
}

TEST_F(Fetch, EqualRecordsKeepTheOrderOfCreation)
{
    for (const QString &name : {u"c"_s, u"a"_s, u"b"_s}) {
        rule(name)->setValue(model::rule::timerMins, 5);
    }
    rule(u"first"_s)->setValue(model::rule::timerMins, 4);
    const QList<SortDescriptor> byMinutes{{model::rule::timerMins, true}};
    EXPECT_EQ(names(ordered(byMinutes)), QStringList({u"first"_s, u"c"_s, u"a"_s, u"b"_s}));
    save();
    EXPECT_EQ(names(ordered(byMinutes)), QStringList({u"first"_s, u"c"_s, u"a"_s, u"b"_s}));
    EXPECT_EQ(names(ordered({{model::rule::timerMins, false}, {model::rule::name, false}})),
        QStringList({u"c"_s, u"b"_s, u"a"_s, u"first"_s}));
}

TEST_F(Fetch, SeesUnsavedChangesOverTheFile)
{
    const auto home = rule(u"Home"_s);
    const auto cafe = rule(u"Cafe"_s);
    save();
    home->setValue(model::rule::name, u"House"_s);
    context().deleteObject(cafe);
    rule(u"Office"_s);
    EXPECT_EQ(names(where(named(u"Home"_s))), QStringList());
    EXPECT_EQ(names(where(named(u"House"_s))), QStringList(u"House"_s));
    EXPECT_EQ(names(where(named(u"Cafe"_s))), QStringList());
    EXPECT_EQ(names(where(named(u"Office"_s))), QStringList(u"Office"_s));
    EXPECT_EQ(names(), QStringList({u"House"_s, u"Office"_s}));
    EXPECT_EQ(names(ordered({{model::rule::name, false}})), QStringList({u"Office"_s, u"House"_s}));
}

TEST_F(Fetch, AChangedRecordTakesItsPlaceInTheOrder)
{
    ManagedObjectList rules;
    for (const QString &name : {u"b"_s, u"d"_s, u"f"_s, u"h"_s}) {
        rules << rule(name);
    }
    save();
    rules[3]->setValue(model::rule::name, u"a"_s);
    rules[0]->setValue(model::rule::name, u"e"_s);
    rule(u"g"_s);
    EXPECT_EQ(names(ordered({{model::rule::name, true}})),
        QStringList({u"a"_s, u"d"_s, u"e"_s, u"f"_s, u"g"_s}));
    EXPECT_EQ(names(ordered({{model::rule::name, false}})),
        QStringList({u"g"_s, u"f"_s, u"e"_s, u"d"_s, u"a"_s}));
    EXPECT_EQ(names(), QStringList({u"e"_s, u"d"_s, u"f"_s, u"a"_s, u"g"_s}));
}

TEST_F(Fetch, GivesTheSameObjectForTheSameRecord)
{
    rule(u"Home"_s);
    save();
    quit();
    const auto once = context().fetch({model::Rule, {}, {}}).value();
    const auto again = context().fetch(where(named(u"Home"_s))).value();
    EXPECT_EQ(once, again);
    EXPECT_EQ(context().objectWithURI(once[0]->uriRepresentation()), once[0]);
}

TEST_F(Fetch, OfAnEntityThatTheModelDoesNotHaveIsAnError)
{
    EXPECT_EQ(errorOf({u"History"_s, {}, {}}), u"There is no entity named \"History\"."_s);
    EXPECT_EQ(context().fetch({u"History"_s, {}, {}}).error().code,
        static_cast<int>(RecordFileError::UnknownName));
}

TEST_F(Fetch, ByAnAttributeThatTheEntityDoesNotHaveIsAnError)
{
    const QString expected = u"The entity \"Rule\" has no attribute \"bssid\"."_s;
    EXPECT_EQ(errorOf(where(Predicate::equal(u"bssid"_s, u"x"_s))), expected);
    EXPECT_EQ(errorOf(where(Predicate::any({Predicate::contains(u"bssid"_s, u"x"_s)}))), expected);
    EXPECT_EQ(errorOf(ordered({{u"bssid"_s, true}})), expected);
}

TEST_F(Fetch, NoTextBecomesSql)
{
    rule(u"Home"_s);
    save();
    for (const QString &text :
        {u"' OR 1=1 --"_s, u"\" OR 1=1 --"_s, u"?"_s, u"x'); DROP TABLE Rule;"_s}) {
        EXPECT_EQ(names(where(named(text))), QStringList());
        EXPECT_EQ(names(where(Predicate::beginsWith(model::rule::name, text))), QStringList());
        EXPECT_NE(errorOf(where(Predicate::equal(text, text))), u"(no error)"_s);
        EXPECT_NE(errorOf(ordered({{text, true}})), u"(no error)"_s);
    }
    EXPECT_EQ(names(), QStringList(u"Home"_s));
}

// MARK: lazily

class FetchLazily : public Fetch
{
protected:
    void sql(const std::string &script)
    {
        SQLite::Database(path.toStdString(), SQLite::OPEN_READWRITE).exec(script);
    }
    /// `count` saved rules named by their number, and nobody who holds them.
    void fill(int count)
    {
        context();
        quit();
        sql("WITH RECURSIVE counted(number) AS (SELECT 0 UNION ALL SELECT number + 1 FROM counted "
            "WHERE number + 1 < " +
            std::to_string(count) +
            ") INSERT INTO Rule (uuid, name) SELECT randomblob(16), number FROM counted");
    }
    FetchedRecords lazily(const FetchRequest &request = {model::Rule, {}, {}})
    {
        const auto records = context().fetchLazily(request);
        EXPECT_TRUE(records) << (records ? "" : records.error().message.toStdString());
        return records ? records.value() : FetchedRecords();
    }
};

TEST_F(FetchLazily, KnowsItsLengthAndReadsOnlyThePagesAskedFor)
{
    constexpr int all = 100'000;
    fill(all);
    const FetchedRecords records = lazily();
    EXPECT_EQ(records.size(), all);
    const auto first = records.at(0);
    EXPECT_EQ(nameOf(first), u"0"_s);
    sql("UPDATE Rule SET name = 'renamed'"); // shows who has looked at it, and who has not yet
    EXPECT_EQ(nameOf(records.at(99)), u"99"_s) << "read with the first page";
    EXPECT_EQ(nameOf(records.at(100)), u"renamed"_s) << "not read before it was asked for";
    EXPECT_EQ(nameOf(records.at(all - 1)), u"renamed"_s);
    EXPECT_EQ(records.at(all), nullptr);
    EXPECT_EQ(records.at(-1), nullptr);
}

TEST_F(FetchLazily, ForgetsPagesNotUsedForAWhile)
{
    fill(2'000);
    const FetchedRecords records = lazily();
    std::weak_ptr<ManagedObject> first = records.at(0);
    EXPECT_FALSE(first.expired());
    for (int index = 0; index < 2'000; ++index) {
        EXPECT_EQ(nameOf(records.at(index)), QString::number(index));
    }
    EXPECT_TRUE(first.expired());
    EXPECT_EQ(nameOf(records.at(0)), u"0"_s);
}

TEST_F(FetchLazily, KeepsThePageThatIsUsed)
{
    fill(2'000);
    const FetchedRecords records = lazily();
    std::weak_ptr<ManagedObject> first = records.at(0);
    for (int page = 1; page < 20; ++page) {
        records.at(page * 100);
        records.at(1);
    }
    EXPECT_FALSE(first.expired());
}

TEST_F(FetchLazily, IsAPictureOfItsMomentInWhichChangesShow)
{
    fill(3);
    const FetchedRecords records = lazily();
    rule(u"later"_s);
    EXPECT_EQ(records.size(), 3);
    records.at(1)->setValue(model::rule::name, u"changed"_s);
    EXPECT_EQ(nameOf(records.at(1)), u"changed"_s);
    context().deleteObject(records.at(2));
    EXPECT_EQ(records.at(2), nullptr);
    save();
    EXPECT_EQ(records.at(2), nullptr);
    EXPECT_EQ(records.size(), 3);
}

TEST_F(FetchLazily, HoldsUnsavedRecordsInTheirPlaces)
{
    fill(300);
    const auto changed = lazily().at(250);
    changed->setValue(model::rule::name, u"0999"_s);
    const auto added = rule(u"0998"_s);
    const FetchedRecords records = lazily(ordered({{model::rule::name, true}}));
    EXPECT_EQ(records.size(), 301);
    EXPECT_EQ(nameOf(records.at(0)), u"0"_s);
    EXPECT_EQ(records.at(1), added);
    EXPECT_EQ(records.at(2), changed);
    EXPECT_EQ(nameOf(records.at(3)), u"1"_s);
    EXPECT_EQ(nameOf(records.at(300)), u"99"_s);
    save();
    EXPECT_EQ(records.at(1), added);
}

TEST_F(FetchLazily, OutlivedByNothingOfItsContext)
{
    fill(3);
    const FetchedRecords records = lazily();
    quit();
    EXPECT_EQ(records.size(), 3);
    EXPECT_EQ(records.at(0), nullptr);
    EXPECT_EQ(FetchedRecords().size(), 0);
    EXPECT_EQ(FetchedRecords().at(0), nullptr);
}

} // namespace quillon::test
