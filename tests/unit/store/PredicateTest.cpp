// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "RecordsFixture.h"
#include "fakes/PredicateFormat.h"

#include <QDateTime>

namespace quillon::test {

namespace {

const QString ssid = QStringLiteral("ssid");
const QString device = QStringLiteral("device");

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
        record->setValue(model::rule::vendor, QStringLiteral("another"));
        EXPECT_EQ(isFound(), whileNew) << "changed: " << format(predicate).toStdString();
        return whileNew;
    }
};

TEST_F(PredicateTest, EqualComparesTextsExactly)
{
    const Predicate isHome = Predicate::equal(ssid, QStringLiteral("Home"));
    EXPECT_TRUE(holds(isHome, {{ssid, QStringLiteral("Home")}}));
    EXPECT_FALSE(holds(isHome, {{ssid, QStringLiteral("home")}}));
    EXPECT_FALSE(holds(isHome, {{ssid, QStringLiteral("Home ")}}));
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
    EXPECT_FALSE(holds(Predicate::equal(device, 1), {{device, QStringLiteral("1")}}));
    EXPECT_FALSE(holds(Predicate::equal(minutes, QStringLiteral("1")), {{minutes, 1}}));
    EXPECT_FALSE(holds(Predicate::contains(minutes, QStringLiteral("1")), {{minutes, 1}}));
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
    const QVariantMap record{{ssid, QStringLiteral("Café Central")}};
    EXPECT_TRUE(holds(Predicate::contains(ssid, QStringLiteral("Cent")), record));
    EXPECT_FALSE(holds(Predicate::contains(ssid, QStringLiteral("cent")), record));
    EXPECT_FALSE(holds(Predicate::contains(ssid, QStringLiteral("Cafe")), record));
}

TEST_F(PredicateTest, BeginsWithIgnoresCaseAndDiacritics)
{
    const QVariantMap record{{ssid, QStringLiteral("Éclair Ünlimited")}};
    EXPECT_TRUE(holds(Predicate::beginsWith(ssid, QStringLiteral("eCL")), record));
    EXPECT_TRUE(holds(Predicate::beginsWith(ssid, QStringLiteral("E\u0301clair u")), record));
    EXPECT_FALSE(holds(Predicate::beginsWith(ssid, QStringLiteral("clair")), record));
    EXPECT_TRUE(
        holds(Predicate::beginsWith(ssid, QStringLiteral("ΌΣ")), {{ssid, QStringLiteral("ος")}}));
}

TEST_F(PredicateTest, OfNoPartsAllIsTrueAndAnyIsFalse)
{
    EXPECT_TRUE(holds(Predicate::all({}), {}));
    EXPECT_FALSE(holds(Predicate::any({}), {}));
}

TEST_F(PredicateTest, PartsCombine)
{
    const auto isHome = Predicate::equal(ssid, QStringLiteral("Home"));
    const auto isWired = Predicate::equal(device, QStringLiteral("eth0"));
    const QVariantMap wiredOffice{
        {ssid, QStringLiteral("Office")}, {device, QStringLiteral("eth0")}};
    EXPECT_TRUE(holds(Predicate::any({isHome, isWired}), wiredOffice));
    EXPECT_FALSE(holds(Predicate::all({isHome, isWired}), wiredOffice));
}

TEST(PredicateFormat, IsTheUsualNotation)
{
    EXPECT_EQ(
        format(Predicate::equal(device, QStringLiteral("en0"))), QStringLiteral("device == 'en0'"));
    EXPECT_EQ(format(Predicate::equal(QStringLiteral("isLogin"), true)),
        QStringLiteral("isLogin == YES"));
    EXPECT_EQ(format(Predicate::equal(QStringLiteral("isLogin"), false)),
        QStringLiteral("isLogin == NO"));
    EXPECT_EQ(format(Predicate::equal(QStringLiteral("timerMins"), 30)),
        QStringLiteral("timerMins == 30"));
    EXPECT_EQ(format(Predicate::equal(device, QVariant())), QStringLiteral("device == nil"));
    EXPECT_EQ(format(Predicate::contains(ssid, QStringLiteral("ome"))),
        QStringLiteral("ssid CONTAINS 'ome'"));
    EXPECT_EQ(format(Predicate::beginsWith(ssid, QStringLiteral("ho"))),
        QStringLiteral("ssid BEGINSWITH[cd] 'ho'"));
    EXPECT_EQ(format(Predicate::equal(QStringLiteral("date"),
                  QDateTime::fromMSecsSinceEpoch(1'750'000'000'125, Qt::UTC))),
        QStringLiteral("date == 2025-06-15T15:06:40.125Z"));
}

TEST(PredicateFormat, PutsPartsIntoParentheses)
{
    const QString network = QStringLiteral("network");
    const auto either = Predicate::any({Predicate::equal(network, QStringLiteral("aa:bb")),
        Predicate::all({Predicate::equal(ssid, QStringLiteral("Home")),
            Predicate::equal(QStringLiteral("ssidDefined"), true)})});
    EXPECT_EQ(format(Predicate::all({Predicate::equal(device, QStringLiteral("en0")), either})),
        QStringLiteral("(device == 'en0') && ((network == 'aa:bb') || ((ssid == 'Home') && "
                       "(ssidDefined == YES)))"));
    EXPECT_EQ(format(Predicate::all({Predicate::equal(ssid, QStringLiteral("x"))})),
        QStringLiteral("ssid == 'x'"));
    EXPECT_EQ(format(Predicate::all({})), QStringLiteral("TRUEPREDICATE"));
    EXPECT_EQ(format(Predicate::any({})), QStringLiteral("FALSEPREDICATE"));
}

TEST(PredicateFormat, EscapesQuotes)
{
    EXPECT_EQ(format(Predicate::equal(ssid, QStringLiteral("Joe's \\ net %1"))),
        QStringLiteral("ssid == 'Joe\\'s \\\\ net %1'"));
}

} // namespace quillon::test
