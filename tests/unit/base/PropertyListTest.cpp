// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/PropertyList.h"

#include <QDateTime>
#include <QPoint>
#include <QTimeZone>
#include <gtest/gtest.h>

#include <limits>

namespace quillon {

using namespace Qt::StringLiterals;
namespace {

const QDateTime noon = QDateTime(QDate(2026, 3, 1), QTime(12, 0), Qt::UTC);

QVariant nested(int levels)
{
    QVariant value = 1;
    for (int level = 0; level < levels; ++level) {
        value = QVariantList{value};
    }
    return value;
}

TEST(PropertyList, KnowsTheTypeOfEveryKindOfValue)
{
    EXPECT_EQ(propertyListType(true), PropertyListType::Boolean);
    EXPECT_EQ(propertyListType(1), PropertyListType::Integer);
    EXPECT_EQ(propertyListType(1U), PropertyListType::Integer);
    EXPECT_EQ(propertyListType(1LL), PropertyListType::Integer);
    EXPECT_EQ(propertyListType(1.5F), PropertyListType::Real);
    EXPECT_EQ(propertyListType(1.5), PropertyListType::Real);
    EXPECT_EQ(propertyListType(u"text"_s), PropertyListType::String);
    EXPECT_EQ(propertyListType(noon), PropertyListType::Date);
    EXPECT_EQ(propertyListType(QByteArray("\0\1", 2)), PropertyListType::Data);
    EXPECT_EQ(propertyListType(QVariantList()), PropertyListType::Array);
    EXPECT_EQ(propertyListType(QStringList()), PropertyListType::Array);
    EXPECT_EQ(propertyListType(QVariantMap()), PropertyListType::Dictionary);
}

TEST(PropertyList, OtherValuesHaveNoType)
{
    EXPECT_FALSE(propertyListType(QVariant()));
    EXPECT_FALSE(propertyListType(QPoint(1, 2)));
    EXPECT_FALSE(propertyListType(QDateTime()));
    EXPECT_FALSE(propertyListType(noon.addYears(8000)))
        << "a date of five-figure year has no text form";
    EXPECT_FALSE(isPropertyList(QVariant()));
}

TEST(PropertyList, ContainersMustHoldPropertyListDataThroughout)
{
    EXPECT_TRUE(isPropertyList(QVariantList{1, QVariantMap{{u"a"_s, 2.5}}}));
    EXPECT_FALSE(isPropertyList(QVariantList{1, QVariantMap{{u"a"_s, QPoint()}}}));
    EXPECT_FALSE(isPropertyList(QVariantList{QVariant()}));
}

TEST(PropertyList, NestsToTheLimitAndNoDeeper)
{
    EXPECT_TRUE(isPropertyList(nested(propertyListDepthLimit)));
    EXPECT_FALSE(isPropertyList(nested(propertyListDepthLimit + 1)));
}

TEST(PropertyList, NormalizedNumbersHaveOneTypeEach)
{
    const QVariantMap map =
        normalizedPropertyList(QVariantMap{{u"list"_s, QVariantList{7, 7U, 1.5F}}}).toMap();
    const QVariantList list = map.value(u"list"_s).toList();
    EXPECT_EQ(list.at(0).typeId(), QMetaType::LongLong);
    EXPECT_EQ(list.at(1).typeId(), QMetaType::LongLong);
    EXPECT_EQ(list.at(2).typeId(), QMetaType::Double);
}

TEST(PropertyList, NormalizedDatesAreWholeSecondsInUtc)
{
    const QDateTime local(QDate(2026, 3, 1), QTime(13, 0, 0, 750), Qt::OffsetFromUTC, 3600);
    const QDateTime normalized = normalizedPropertyList(local).toDateTime();
    EXPECT_EQ(normalized.toMSecsSinceEpoch(), noon.toMSecsSinceEpoch());
    EXPECT_EQ(normalized.timeSpec(), Qt::UTC);
    const QDateTime before1970 = QDateTime::fromMSecsSinceEpoch(-500, Qt::UTC);
    EXPECT_EQ(normalizedPropertyList(before1970).toDateTime().toMSecsSinceEpoch(), -1000);
}

TEST(PropertyList, CharactersThatAFileCannotCarryAreReplaced)
{
    const QString kept = QString::fromUtf8("tab\t line\n return\r  é 漢 😀");
    EXPECT_EQ(normalizedPropertyList(kept).toString(), kept);
    const QChar replacement = QChar::ReplacementCharacter;
    EXPECT_EQ(normalizedPropertyList(QString::fromLatin1("a\0b\x07", 4)).toString(),
        u"a"_s + replacement + u"b"_s + replacement);
    const QString loneHalves = QString(QChar(0xD83D)) + u"x"_s + QChar(0xDE00);
    EXPECT_EQ(
        normalizedPropertyList(loneHalves).toString(), QString(replacement) + u"x"_s + replacement);
    const QString noncharacter = QString(QChar(0xFFFE));
    EXPECT_EQ(normalizedPropertyList(noncharacter).toString(), QString(replacement));
    const QVariantMap map = normalizedPropertyList(QVariantMap{{u"\x01"_s, 1}}).toMap();
    EXPECT_EQ(map.firstKey(), QString(replacement));
}

TEST(PropertyList, SameMeansTheSameTypeAndValueThroughout)
{
    EXPECT_TRUE(isSamePropertyList(QVariant(), QVariant()));
    EXPECT_FALSE(isSamePropertyList(QVariant(), false));
    EXPECT_TRUE(isSamePropertyList(1LL, 1LL));
    EXPECT_FALSE(isSamePropertyList(1LL, true));
    EXPECT_FALSE(isSamePropertyList(1LL, 1.0));
    EXPECT_FALSE(isSamePropertyList(u"1"_s, 1LL));
    EXPECT_FALSE(isSamePropertyList(u"a"_s, QByteArray("a")));
    const double nan = std::numeric_limits<double>::quiet_NaN();
    EXPECT_TRUE(isSamePropertyList(nan, nan));
    const QVariantMap one{{u"list"_s, QVariantList{1LL, nan}}};
    const QVariantMap longer{{u"list"_s, QVariantList{1LL, nan, nan}}};
    const QVariantMap otherKey{{u"liste"_s, QVariantList{1LL, nan}}};
    const QVariantMap otherType{{u"list"_s, QVariantList{true, nan}}};
    EXPECT_TRUE(isSamePropertyList(one, QVariantMap(one)));
    EXPECT_FALSE(isSamePropertyList(one, longer));
    EXPECT_FALSE(isSamePropertyList(longer, one));
    EXPECT_FALSE(isSamePropertyList(one, otherKey));
    EXPECT_FALSE(isSamePropertyList(one, otherType));
}

} // namespace
} // namespace quillon
