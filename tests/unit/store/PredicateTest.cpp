// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "RecordsFixture.h"
#include "fakes/PredicateFormat.h"

#include <QDateTime>

namespace quillon::test {

using namespace Qt::StringLiterals;

namespace {

const QString ssid = u"ssid"_s;
const QString device = u"device"_s;

} // namespace

class PredicateTest : public RecordsTest
{
protected:
    /// Whether a fetch finds a rule of these values: new, saved, and changed after that.
    bool holds(const Predicate &predicate, const QVariantMap &values)
    {
        const auto record = context().insertNewObject(model::Rule);
        for (auto value = values.begin(); value != values.end(); ++value) {
            record->setValue(value.key(), value.value());
        }
        const auto isFound = [&] {
            return context().fetch({model::Rule, predicate, {}}).value().contains(record);
        };
        const bool whileNew = isFound();
        save();
        EXPECT_EQ(isFound(), whileNew) << "saved: " << format(predicate).toStdString();
        record->setValue(model::rule::vendor, u"another"_s);
        EXPECT_EQ(isFound(), whileNew) << "changed: " << format(predicate).toStdString();
        return whileNew;
    }
};

TEST_F(PredicateTest, EqualComparesTextsExactly)
{
    const Predicate isHome = Predicate::equal(ssid, u"Home"_s);
    EXPECT_TRUE(holds(isHome, {{ssid, u"Home"_s}}));
    EXPECT_FALSE(holds(isHome, {{ssid, u"home"_s}}));
    EXPECT_FALSE(holds(isHome, {{ssid, u"Home "_s}}));
}

TEST_F(PredicateTest, ABooleanEqualsTheNumberThatItIsStoredAs)
{
    const QString minutes = model::rule::timerMins;
    EXPECT_TRUE(holds(Predicate::equal(model::rule::enabled, 1), {{model::rule::enabled, true}}));
    EXPECT_TRUE(holds(Predicate::equal(minutes, true), {{minutes, 1}}));
    EXPECT_FALSE(holds(Predicate::equal(minutes, true), {{minutes, 0}}));
    EXPECT_FALSE(
        holds(Predicate::equal(model::rule::enabled, true), {{model::rule::enabled, false}}));
}

TEST_F(PredicateTest, ANumberIsNotTheTextThatShowsIt)
{
    const QString minutes = model::rule::timerMins;
    EXPECT_FALSE(holds(Predicate::equal(device, 1), {{device, u"1"_s}}));
    EXPECT_FALSE(holds(Predicate::equal(minutes, u"1"_s), {{minutes, 1}}));
    EXPECT_FALSE(holds(Predicate::contains(minutes, u"1"_s), {{minutes, 1}}));
}

TEST_F(PredicateTest, WhatHoldsNothingSatisfiesNoComparison)
{
    const QVariantMap empty;
    EXPECT_FALSE(holds(Predicate::equal(ssid, QString()), empty));
    EXPECT_FALSE(holds(Predicate::equal(ssid, QVariant()), empty));
    EXPECT_FALSE(holds(Predicate::contains(ssid, QString()), empty));
    EXPECT_FALSE(holds(Predicate::beginsWith(ssid, QString()), empty));
}

TEST_F(PredicateTest, ContainsDistinguishesCapitals)
{
    const QVariantMap record{{ssid, u"Café Central"_s}};
    EXPECT_TRUE(holds(Predicate::contains(ssid, u"Cent"_s), record));
    EXPECT_FALSE(holds(Predicate::contains(ssid, u"cent"_s), record));
    EXPECT_FALSE(holds(Predicate::contains(ssid, u"Cafe"_s), record));
}

TEST_F(PredicateTest, BeginsWithIgnoresCaseAndDiacritics)
{
    const QVariantMap record{{ssid, u"Éclair Ünlimited"_s}};
    EXPECT_TRUE(holds(Predicate::beginsWith(ssid, u"eCL"_s), record));
    EXPECT_TRUE(holds(Predicate::beginsWith(ssid, u"E\u0301clair u"_s), record));
    EXPECT_FALSE(holds(Predicate::beginsWith(ssid, u"clair"_s), record));
    EXPECT_TRUE(holds(Predicate::beginsWith(ssid, u"ΌΣ"_s), {{ssid, u"ος"_s}}));
    EXPECT_TRUE(holds(Predicate::beginsWith(ssid, u"strasse"_s), {{ssid, u"Straße 7"_s}}));
    EXPECT_TRUE(holds(Predicate::beginsWith(ssid, u"straße"_s), {{ssid, u"STRASSE 7"_s}}));
}

TEST_F(PredicateTest, OfNoPartsAllIsTrueAndAnyIsFalse)
{
    EXPECT_TRUE(holds(Predicate::all({}), {}));
    EXPECT_FALSE(holds(Predicate::any({}), {}));
}

TEST_F(PredicateTest, PartsCombine)
{
    const auto isHome = Predicate::equal(ssid, u"Home"_s);
    const auto isWired = Predicate::equal(device, u"eth0"_s);
    const QVariantMap wiredOffice{{ssid, u"Office"_s}, {device, u"eth0"_s}};
    EXPECT_TRUE(holds(Predicate::any({isHome, isWired}), wiredOffice));
    EXPECT_FALSE(holds(Predicate::all({isHome, isWired}), wiredOffice));
}

TEST(PredicateFormat, IsTheUsualNotation)
{
    EXPECT_EQ(format(Predicate::equal(device, u"en0"_s)), u"device == 'en0'"_s);
    EXPECT_EQ(format(Predicate::equal(u"isLogin"_s, true)), u"isLogin == YES"_s);
    EXPECT_EQ(format(Predicate::equal(u"isLogin"_s, false)), u"isLogin == NO"_s);
    EXPECT_EQ(format(Predicate::equal(u"timerMins"_s, 30)), u"timerMins == 30"_s);
    EXPECT_EQ(format(Predicate::equal(device, QVariant())), u"device == nil"_s);
    EXPECT_EQ(format(Predicate::contains(ssid, u"ome"_s)), u"ssid CONTAINS 'ome'"_s);
    EXPECT_EQ(format(Predicate::beginsWith(ssid, u"ho"_s)), u"ssid BEGINSWITH[cd] 'ho'"_s);
    EXPECT_EQ(format(Predicate::equal(
                  u"date"_s, QDateTime::fromMSecsSinceEpoch(1'750'000'000'125, Qt::UTC))),
        u"date == 2025-06-15T15:06:40.125Z"_s);
}

TEST(PredicateFormat, PutsPartsIntoParentheses)
{
    const QString network = u"network"_s;
    const auto either = Predicate::any(
        {Predicate::equal(network, u"aa:bb"_s), Predicate::all({Predicate::equal(ssid, u"Home"_s),
                                                    Predicate::equal(u"ssidDefined"_s, true)})});
    EXPECT_EQ(format(Predicate::all({Predicate::equal(device, u"en0"_s), either})),
        u"(device == 'en0') && ((network == 'aa:bb') || ((ssid == 'Home') && "
        u"(ssidDefined == YES)))"_s);
    EXPECT_EQ(format(Predicate::all({Predicate::equal(ssid, u"x"_s)})), u"ssid == 'x'"_s);
    EXPECT_EQ(format(Predicate::all({})), u"TRUEPREDICATE"_s);
    EXPECT_EQ(format(Predicate::any({})), u"FALSEPREDICATE"_s);
}

TEST(PredicateFormat, EscapesQuotes)
{
    EXPECT_EQ(
        format(Predicate::equal(ssid, u"Joe's \\ net %1"_s)), u"ssid == 'Joe\\'s \\\\ net %1'"_s);
}

} // namespace quillon::test
