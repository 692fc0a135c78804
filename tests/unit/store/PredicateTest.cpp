// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/model/Predicate.h"

#include "fakes/QtPrinting.h"

#include <QDateTime>
#include <QVariantMap>
#include <gtest/gtest.h>

namespace quillon::test {

namespace {

bool holds(const Predicate &predicate, const QVariantMap &record)
{
    return predicate.evaluate([&record](const QString &name) { return record.value(name); });
}

const QString ssid = QStringLiteral("ssid");
const QString device = QStringLiteral("device");

} // namespace

TEST(Predicate, EqualComparesTextsExactly)
{
    const Predicate isHome = Predicate::equal(ssid, QStringLiteral("Home"));
    EXPECT_TRUE(holds(isHome, {{ssid, QStringLiteral("Home")}}));
    EXPECT_FALSE(holds(isHome, {{ssid, QStringLiteral("home")}}));
    EXPECT_FALSE(holds(isHome, {{ssid, QStringLiteral("Home ")}}));
}

TEST(Predicate, ABooleanEqualsTheNumberThatItIsStoredAs)
{
    EXPECT_TRUE(holds(Predicate::equal(device, 1), {{device, true}}));
    EXPECT_TRUE(holds(Predicate::equal(device, true), {{device, qlonglong{1}}}));
    EXPECT_FALSE(holds(Predicate::equal(device, true), {{device, false}}));
}

TEST(Predicate, ANumberIsNotTheTextThatShowsIt)
{
    EXPECT_FALSE(holds(Predicate::equal(device, 1), {{device, QStringLiteral("1")}}));
    EXPECT_FALSE(holds(Predicate::contains(device, QStringLiteral("1")), {{device, 1}}));
}

TEST(Predicate, WhatHoldsNothingSatisfiesNoComparison)
{
    const QVariantMap empty;
    EXPECT_FALSE(holds(Predicate::equal(ssid, QString()), empty));
    EXPECT_FALSE(holds(Predicate::equal(ssid, QVariant()), empty));
    EXPECT_FALSE(holds(Predicate::contains(ssid, QString()), empty));
    EXPECT_FALSE(holds(Predicate::beginsWith(ssid, QString()), empty));
}

TEST(Predicate, ContainsDistinguishesCapitals)
{
    const QVariantMap record{{ssid, QStringLiteral("Café Central")}};
    EXPECT_TRUE(holds(Predicate::contains(ssid, QStringLiteral("Cent")), record));
    EXPECT_FALSE(holds(Predicate::contains(ssid, QStringLiteral("cent")), record));
    EXPECT_FALSE(holds(Predicate::contains(ssid, QStringLiteral("Cafe")), record));
}

TEST(Predicate, BeginsWithIgnoresCaseAndDiacritics)
{
    const QVariantMap record{{ssid, QStringLiteral("Éclair Ünlimited")}};
    EXPECT_TRUE(holds(Predicate::beginsWith(ssid, QStringLiteral("eCL")), record));
    EXPECT_TRUE(holds(Predicate::beginsWith(ssid, QStringLiteral("E\u0301clair u")), record));
    EXPECT_FALSE(holds(Predicate::beginsWith(ssid, QStringLiteral("clair")), record));
    EXPECT_TRUE(
        holds(Predicate::beginsWith(ssid, QStringLiteral("ΌΣ")), {{ssid, QStringLiteral("ος")}}));
}

TEST(Predicate, OfNoPartsAllIsTrueAndAnyIsFalse)
{
    EXPECT_TRUE(holds(Predicate::all({}), {}));
    EXPECT_FALSE(holds(Predicate::any({}), {}));
}

TEST(Predicate, PartsCombine)
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
    EXPECT_EQ(Predicate::equal(device, QStringLiteral("en0")).format(),
        QStringLiteral("device == 'en0'"));
    EXPECT_EQ(Predicate::equal(QStringLiteral("isLogin"), true).format(),
        QStringLiteral("isLogin == YES"));
    EXPECT_EQ(Predicate::equal(QStringLiteral("isLogin"), false).format(),
        QStringLiteral("isLogin == NO"));
    EXPECT_EQ(Predicate::equal(QStringLiteral("timerMins"), 30).format(),
        QStringLiteral("timerMins == 30"));
    EXPECT_EQ(Predicate::equal(device, QVariant()).format(), QStringLiteral("device == nil"));
    EXPECT_EQ(Predicate::contains(ssid, QStringLiteral("ome")).format(),
        QStringLiteral("ssid CONTAINS 'ome'"));
    EXPECT_EQ(Predicate::beginsWith(ssid, QStringLiteral("ho")).format(),
        QStringLiteral("ssid BEGINSWITH[cd] 'ho'"));
    EXPECT_EQ(Predicate::equal(QStringLiteral("date"),
                  QDateTime::fromMSecsSinceEpoch(1'750'000'000'125, Qt::UTC))
                  .format(),
        QStringLiteral("date == 2025-06-15T15:06:40.125Z"));
}

TEST(PredicateFormat, PutsPartsIntoParentheses)
{
    const QString network = QStringLiteral("network");
    const auto either = Predicate::any({Predicate::equal(network, QStringLiteral("aa:bb")),
        Predicate::all({Predicate::equal(ssid, QStringLiteral("Home")),
            Predicate::equal(QStringLiteral("ssidDefined"), true)})});
    EXPECT_EQ(Predicate::all({Predicate::equal(device, QStringLiteral("en0")), either}).format(),
        QStringLiteral("(device == 'en0') && ((network == 'aa:bb') || ((ssid == 'Home') && "
                       "(ssidDefined == YES)))"));
    EXPECT_EQ(Predicate::all({Predicate::equal(ssid, QStringLiteral("x"))}).format(),
        QStringLiteral("ssid == 'x'"));
    EXPECT_EQ(Predicate::all({}).format(), QStringLiteral("TRUEPREDICATE"));
    EXPECT_EQ(Predicate::any({}).format(), QStringLiteral("FALSEPREDICATE"));
}

TEST(PredicateFormat, EscapesQuotes)
{
    EXPECT_EQ(Predicate::equal(ssid, QStringLiteral("Joe's \\ net %1")).format(),
        QStringLiteral("ssid == 'Joe\\'s \\\\ net %1'"));
}

} // namespace quillon::test
