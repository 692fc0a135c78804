// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/settings/XmlPropertyList.h"

#include "AnotherLibrary.h"
#include "EveryKindOfValue.h"

#include <gtest/gtest.h>
#include <plist/plist.h>

#include <string>

namespace quillon {

using namespace Qt::StringLiterals;
namespace {

Result<QVariant> readBody(const QByteArray &body)
{
    return readXmlPropertyList(
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\">" + body + "</plist>");
}

QByteArray nested(int levels)
{
    return QByteArray("<array>").repeated(levels) + QByteArray("</array>").repeated(levels);
}

/// What the other library can carry.
QVariantMap plainValues()
{
    QVariantMap values = test::everyKindOfValue();
    values.remove(u"dates"_s);
    values.insert(u"reals"_s, QVariantList{0.0, -0.5, 1024.25});
    values.insert(
        u"strings"_s, QVariantList{u"plain"_s, QString::fromUtf8("Caf\u00e9 \u6f22 \U0001F600"),
                          QString(200, u'x')});
    values.insert(u"date"_s, QDateTime(QDate(2026, 3, 1), QTime(12, 0), Qt::UTC));
    values.insert(u"before"_s, QDateTime(QDate(1975, 3, 1), QTime(12, 0, 1), Qt::UTC));
    return values;
}

TEST(XmlPropertyList, WhatIsWrittenIsReadBackTheSame)
{
    const QVariantMap written = test::everyKindOfValue();
    const Result<QVariant> read = readXmlPropertyList(xmlPropertyList(written));
    ASSERT_TRUE(read) << read.error().message.toStdString();
    for (const QString &key : written.keys()) {
        EXPECT_TRUE(isSamePropertyList(read.value().toMap().value(key), written.value(key)))
            << key.toStdString();
    }
    EXPECT_EQ(read.value().toMap().keys(), written.keys());
}

TEST(XmlPropertyList, TheSameValuesGiveTheSameText)
{
    EXPECT_EQ(xmlPropertyList(test::everyKindOfValue()), xmlPropertyList(test::everyKindOfValue()));
}

TEST(XmlPropertyList, AnotherLibraryReadsWhatIsWritten)
{
    const QByteArray text = xmlPropertyList({{u"name"_s, QString::fromUtf8("Café <&>")},
        {u"count"_s, 42}, {u"on"_s, true}, {u"size"_s, 0.5}, {u"data"_s, QByteArray("\0\1", 2)},
        {u"date"_s, QDateTime(QDate(2001, 1, 2), QTime(0, 0), Qt::UTC)}});
    plist_t root = nullptr;
    plist_from_xml(text.constData(), static_cast<uint32_t>(text.size()), &root);
    ASSERT_NE(root, nullptr);
    const char *name = plist_get_string_ptr(plist_dict_get_item(root, "name"), nullptr);
    EXPECT_STREQ(name, "Café <&>");
    uint64_t count = 0;
    plist_get_uint_val(plist_dict_get_item(root, "count"), &count);
    EXPECT_EQ(count, 42U);
    uint8_t on = 0;
    plist_get_bool_val(plist_dict_get_item(root, "on"), &on);
    EXPECT_EQ(on, 1);
    double size = 0;
    plist_get_real_val(plist_dict_get_item(root, "size"), &size);
    EXPECT_EQ(size, 0.5);
    uint64_t length = 0;
    EXPECT_EQ(plist_get_data_ptr(plist_dict_get_item(root, "data"), &length)[1], '\1');
    EXPECT_EQ(length, 2U);
    int32_t seconds = 0;
    int32_t microseconds = 0;
    plist_get_date_val(plist_dict_get_item(root, "date"), &seconds, &microseconds);
    EXPECT_EQ(seconds, 86'400);
    plist_free(root);
}

TEST(XmlPropertyList, WhatAnotherLibraryWroteIsRead)
{
    const QVariantMap values = plainValues();
    const QByteArray text = test::madeByAnotherLibrary(values, plist_to_xml);
    ASSERT_NE(text, xmlPropertyList(values)) << "nothing is compared";
    const Result<QVariant> read = readXmlPropertyList(text);
    ASSERT_TRUE(read) << read.error().message.toStdString();
    for (const QString &key : values.keys()) {
        EXPECT_TRUE(isSamePropertyList(read.value().toMap().value(key), values.value(key)))
            << key.toStdString();
    }
}

TEST(XmlPropertyList, FormsOfOtherWritersAreRead)
{
    const Result<QVariant> read =
        readBody("\n<!-- note --><dict><key>a</key> <integer> 0x1F </integer>"
                 "<key>b</key><integer>+7</integer><key>c</key><data>\n\tAAE=\n\t</data>"
                 "<key>d</key><real>nan</real><key>e</key><string><![CDATA[<b>]]></string>"
                 "<key>f</key><true></true><key>a</key><integer>2</integer></dict>\n");
    ASSERT_TRUE(read) << read.error().message.toStdString();
    const QVariantMap map = read.value().toMap();
    EXPECT_EQ(map.value(u"a"_s), QVariant(2LL)) << "the last of two equal keys counts";
    EXPECT_EQ(map.value(u"b"_s), QVariant(7LL));
    EXPECT_EQ(map.value(u"c"_s), QVariant(QByteArray("\0\1", 2)));
    EXPECT_EQ(map.value(u"e"_s), QVariant(u"<b>"_s));
    EXPECT_EQ(map.value(u"f"_s), QVariant(true));
}

TEST(XmlPropertyList, NestingIsBounded)
{
    EXPECT_TRUE(readBody(nested(propertyListDepthLimit + 1)));
    EXPECT_FALSE(readBody(nested(propertyListDepthLimit + 2)));
    EXPECT_FALSE(readBody(nested(1'000'000)));
}

TEST(XmlPropertyList, EntitiesCannotBlowUp)
{
    QByteArray text = "<!DOCTYPE plist [<!ENTITY a0 \"xxxxxxxxxx\">";
    for (int level = 1; level < 9; ++level) {
        const QByteArray inner = "&a" + QByteArray::number(level - 1) + ";";
        text += "<!ENTITY a" + QByteArray::number(level) + " \"" + inner.repeated(10) + "\">";
    }
    EXPECT_FALSE(readXmlPropertyList(text + "]><plist><string>&a8;</string></plist>"));
}

struct Damage
{
    const char *name;
    QByteArray body;
};

void PrintTo(const Damage &damage, std::ostream *out)
{
    *out << damage.name;
}

class XmlPropertyListDamaged : public ::testing::TestWithParam<Damage>
{
};

TEST_P(XmlPropertyListDamaged, IsAnErrorAndNeverAnotherValue)
{
    const Result<QVariant> read = readBody(GetParam().body);
    ASSERT_FALSE(read);
    EXPECT_EQ(read.error().domain, propertyListErrorDomain);
    EXPECT_TRUE(read.error().message.startsWith(u"line "_s)) << read.error().message.toStdString();
}

INSTANTIATE_TEST_SUITE_P(Damages, XmlPropertyListDamaged,
    ::testing::Values(Damage{"Nothing", ""}, Damage{"OnlyText", "text"},
        Damage{"BadInteger", "<integer>12a</integer>"}, Damage{"EmptyInteger", "<integer/>"},
        Damage{"IntegerOutOfRange", "<integer>9223372036854775808</integer>"},
        Damage{"IntegerWithFraction", "<integer>1.5</integer>"},
        Damage{"BadReal", "<real>1,5</real>"}, Damage{"BadDate", "<date>yesterday</date>"},
        Damage{"ImpossibleDate", "<date>2026-02-30T00:00:00Z</date>"},
        Damage{"DateWithoutZone", "<date>2026-02-03T00:00:00</date>"},
        Damage{"BadData", "<data>A=B=</data>"}, Damage{"CutData", "<data>AAA</data>"},
        Damage{"KeyWithoutValue", "<dict><key>a</key></dict>"},
        Damage{"TwoKeys", "<dict><key>a</key><key>b</key><true/></dict>"},
        Damage{"ValueWithoutKey", "<dict><true/></dict>"},
        Damage{"TextInDictionary", "<dict>text<key>a</key><true/></dict>"},
        Damage{"TextInArray", "<array>text</array>"},
        Damage{"BooleanWithContent", "<true>false</true>"},
        Damage{"ElementInString", "<string>a<b/></string>"}, Damage{"UnknownElement", "<set/>"},
        Damage{"TwoValues", "<true/><false/>"}, Damage{"NotClosed", "<dict>"},
        Damage{"WrongEncoding", "<string>\xe9</string>"},
        Damage{"ControlCharacter", "<string>\x01</string>"},
        Damage{"UnknownEntity", "<string>&nbsp;</string>"}),
    [](const auto &damage) { return std::string(damage.param.name); });

TEST(XmlPropertyList, OtherXmlAndTruncatedTextAreErrors)
{
    EXPECT_FALSE(readXmlPropertyList(""));
    EXPECT_FALSE(readXmlPropertyList("hello"));
    EXPECT_FALSE(readXmlPropertyList("<html/>"));
    EXPECT_FALSE(readXmlPropertyList("<plist><true/></plist>trailing"));
    const QByteArray whole = xmlPropertyList({{u"a"_s, QVariantList{1, u"b"_s}}}).trimmed();
    for (qsizetype length = 0; length < whole.size(); ++length) {
        EXPECT_FALSE(readXmlPropertyList(whole.left(length))) << length;
    }
}

} // namespace
} // namespace quillon
