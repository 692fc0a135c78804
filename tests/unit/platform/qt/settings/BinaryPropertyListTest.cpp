// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/settings/BinaryPropertyList.h"

#include "EveryKindOfValue.h"
#include "platform/qt/settings/XmlPropertyList.h"

#include <QRandomGenerator>
#include <QtEndian>
#include <gtest/gtest.h>
#include <plist/plist.h>

#include <vector>

namespace quillon {
namespace {

/// A binary property list of `objects`, the first of which is the top, laid out by hand.
QByteArray laidOut(const std::vector<QByteArray> &objects, quint64 top = 0)
{
    QByteArray file = "bplist00";
    QByteArray table;
    for (const QByteArray &object : objects) {
        table += static_cast<char>(file.size());
        file += object;
    }
    const quint64 tableAt = static_cast<quint64>(file.size());
    file += table + QByteArray(6, '\0') + "\x01\x01";
    for (const quint64 number : {static_cast<quint64>(objects.size()), top, tableAt}) {
        char bytes[8];
        qToBigEndian(number, bytes);
        file += QByteArray(bytes, 8);
    }
    return file;
}

/// The same values as another library writes them in binary form.
QByteArray madeByAnotherLibrary(const QVariantMap &values)
{
    const QByteArray text = xmlPropertyList(values);
    plist_t root = nullptr;
    plist_from_xml(text.constData(), static_cast<uint32_t>(text.size()), &root);
    char *bytes = nullptr;
    uint32_t length = 0;
    plist_to_bin(root, &bytes, &length);
    QByteArray result(bytes, static_cast<qsizetype>(length));
    plist_to_bin_free(bytes);
    plist_free(root);
    return result;
}

/// What the other library can carry.
QVariantMap plainValues()
{
    QVariantMap values = test::everyKindOfValue();
    values.remove(QStringLiteral("dates"));
    values.remove(QStringLiteral("reals"));
    values.insert(QStringLiteral("reals"), QVariantList{0.0, -0.1, 1e300});
    values.insert(QStringLiteral("strings"),
        QVariantList{QStringLiteral("plain"), QString::fromUtf8("Caf\u00e9 \u6f22 \U0001F600"),
            QString(200, u'x')});
    values.insert(QStringLiteral("date"), QDateTime(QDate(2026, 3, 1), QTime(12, 0), Qt::UTC));
    values.insert(QStringLiteral("before"), QDateTime(QDate(1975, 3, 1), QTime(12, 0, 1), Qt::UTC));
    values.insert(QStringLiteral("many"), QVariantList(300, QVariant(7LL)));
    return values;
}

TEST(BinaryPropertyList, WhatAnotherLibraryWroteIsRead)
{
    const QVariantMap values = plainValues();
    const QByteArray bytes = madeByAnotherLibrary(values);
    ASSERT_TRUE(isBinaryPropertyList(bytes));
    const Result<QVariant> read = readBinaryPropertyList(bytes);
    ASSERT_TRUE(read) << read.error().message.toStdString();
    for (const QString &key : values.keys()) {
        EXPECT_TRUE(isSamePropertyList(read.value().toMap().value(key), values.value(key)))
            << key.toStdString();
    }
}

TEST(BinaryPropertyList, NumbersOfEveryWidthAreRead)
{
    const auto read = readBinaryPropertyList(laidOut({QByteArray("\xA6\x01\x02\x03\x04\x05\x06"),
        QByteArray("\x10\xff"), QByteArray("\x11\xff\xff"), QByteArray("\x12\xff\xff\xff\xff"),
        QByteArray("\x13\xff\xff\xff\xff\xff\xff\xff\xff"), QByteArray("\x22\x3f\xc0\x00\x00", 5),
        QByteArray("\x09")}));
    ASSERT_TRUE(read) << read.error().message.toStdString();
    EXPECT_TRUE(isSamePropertyList(
        read.value(), QVariantList({255LL, 65535LL, 4294967295LL, -1LL, 1.5, true})));
}

TEST(BinaryPropertyList, ObjectsThatContainThemselvesAreRefused)
{
    EXPECT_FALSE(readBinaryPropertyList(laidOut({QByteArray("\xA1\x00", 2)})));
    EXPECT_FALSE(
        readBinaryPropertyList(laidOut({QByteArray("\xA1\x01"), QByteArray("\xA1\x00", 2)})));
}

TEST(BinaryPropertyList, SharedObjectsCannotBlowUp)
{
    std::vector<QByteArray> doubling;
    for (char level = 1; level < 60; ++level) {
        doubling.push_back(QByteArray("\xA2") + level + level);
    }
    doubling.push_back(QByteArray("\x09"));
    EXPECT_FALSE(readBinaryPropertyList(laidOut(doubling)));
}

TEST(BinaryPropertyList, WhatCannotBeHeldIsAnError)
{
    const QByteArray beyond = QByteArray("\x14") + QByteArray(8, '\0') + QByteArray(8, '\xff');
    const QByteArray notANumberDate = QByteArray("\x33\x7f\xf8") + QByteArray(6, '\0');
    const QByteArray numberAsKey("\xD1\x01\x01");
    EXPECT_FALSE(readBinaryPropertyList(laidOut({beyond})));
    EXPECT_FALSE(readBinaryPropertyList(laidOut({notANumberDate})));
    EXPECT_FALSE(readBinaryPropertyList(laidOut({numberAsKey, QByteArray("\x10\x01")})));
    EXPECT_FALSE(readBinaryPropertyList(laidOut({QByteArray("\x80\x01")}))) << "a UID";
    EXPECT_FALSE(readBinaryPropertyList(laidOut({QByteArray("\x00", 1)}))) << "null";
    EXPECT_FALSE(readBinaryPropertyList(laidOut({QByteArray("\x5f\x11\xff\xff")})))
        << "longer than the file";
    EXPECT_FALSE(readBinaryPropertyList(laidOut({QByteArray("\x09")}, 1))) << "no such top object";
}

TEST(BinaryPropertyList, ATruncatedFileIsAnError)
{
    const QByteArray whole =
        madeByAnotherLibrary({{QStringLiteral("a"), QVariantList{1, QStringLiteral("b")}}});
    for (qsizetype length = 0; length < whole.size(); ++length) {
        EXPECT_FALSE(readBinaryPropertyList(whole.left(length))) << length;
    }
}

TEST(BinaryPropertyList, RandomDamageIsSurvived)
{
    const QByteArray whole = madeByAnotherLibrary(plainValues());
    QRandomGenerator random(1);
    int refused = 0;
    for (int round = 0; round < 3000; ++round) {
        QByteArray damaged = whole;
        for (int hit = 0; hit < 3; ++hit) {
            damaged[random.bounded(8, static_cast<int>(whole.size()))] =
                static_cast<char>(random.bounded(256));
        }
        refused += readBinaryPropertyList(damaged) ? 0 : 1;
    }
    EXPECT_GT(refused, 0);
}

} // namespace
} // namespace quillon
