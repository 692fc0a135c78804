// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/wifi/InformationElements.h"

#include "unit/platform/linux/wifi/ElementBytes.h"

#include <gtest/gtest.h>

namespace quillon::test {

using namespace Qt::StringLiterals;

namespace {

InformationElements read(const QByteArray &bytes)
{
    return informationElements(spanOf(bytes));
}

WiFiGeneration generation(const QByteArray &bytes)
{
    return read(ssidElement("x") + bytes).generation;
}

} // namespace

TEST(InformationElements, TellsNameGenerationRatesAndProtection)
{
    const InformationElements found =
        read(ssidElement("Quiet House") + element(1, QByteArray::fromHex("82848b960c")) +
             Rsn{.keys = {2}}.bytes() + element(45, QByteArray(26, 0)));
    EXPECT_TRUE(found.complete);
    EXPECT_EQ(found.ssid, "Quiet House");
    EXPECT_TRUE(found.orthogonalRates);
    EXPECT_EQ(found.generation, WiFiGeneration::HighThroughput);
    ASSERT_TRUE(found.rsn);
    EXPECT_TRUE(found.rsn->intact);
    EXPECT_EQ(found.rsn->authentication, QList<quint32>{0x000FAC02});
    EXPECT_FALSE(found.wpa);
    EXPECT_FALSE(found.otherProtection);
}

TEST(InformationElements, TheNewestGenerationCountsInAnyOrder)
{
    const QByteArray n = element(45, QByteArray(26, 0));
    const QByteArray ac = element(191, QByteArray(12, 0));
    const QByteArray ax = element(255, QByteArray(1, 35));
    const QByteArray be = element(255, QByteArray(1, 108));
    EXPECT_EQ(generation({}), WiFiGeneration::Legacy);
    EXPECT_EQ(generation(n), WiFiGeneration::HighThroughput);
    EXPECT_EQ(generation(ac + n), WiFiGeneration::VeryHighThroughput);
    EXPECT_EQ(generation(n + ax + ac), WiFiGeneration::HighEfficiency);
    EXPECT_EQ(generation(be + ax + n), WiFiGeneration::ExtremelyHighThroughput);
}

TEST(InformationElements, BasicRatesOf11bAreNotOrthogonal)
{
    EXPECT_FALSE(read(element(1, QByteArray::fromHex("82848b96"))).orthogonalRates);
    EXPECT_TRUE(read(element(1, QByteArray::fromHex("8284")) + element(50, QByteArray(1, 0x6c)))
            .orthogonalRates);
    EXPECT_TRUE(read(element(1, QByteArray::fromHex("8c"))).orthogonalRates)
        << "a basic rate of it";
}

TEST(InformationElements, OfSeveralNamesAndProtectionsTheFirstCounts)
{
    const InformationElements found =
        read(ssidElement("One") + ssidElement("Two") + Rsn{.keys = {8}}.bytes() +
             Rsn{.keys = {2}}.bytes() + wpaElement({1}) + wpaElement({2}));
    EXPECT_EQ(found.ssid, "One");
    EXPECT_EQ(found.rsn->authentication, QList<quint32>{0x000FAC08});
    EXPECT_EQ(found.wpa->authentication, QList<quint32>{0x0050F201});
}

TEST(InformationElements, ANameIsAtMost32Octets)
{
    EXPECT_EQ(read(ssidElement(QByteArray(32, 'n'))).ssid.size(), 32);
    EXPECT_EQ(read(ssidElement(QByteArray(33, 'n'))).ssid, "");
    EXPECT_EQ(read(ssidElement(QByteArray(255, 'n'))).ssid, "");
    EXPECT_EQ(read(ssidElement(QByteArray(33, 'n')) + ssidElement("right")).ssid, "right");
}

TEST(InformationElements, ElementsCutShortAnywhereAreNeverComplete)
{
    const QByteArray whole = ssidElement("Quiet House") + Rsn{.keys = {2}}.bytes() +
                             wpaElement({2}) + element(255, QByteArray::fromHex("230d01"));
    EXPECT_TRUE(read(whole).complete);
    int complete = 0;
    for (qsizetype size = 0; size < whole.size(); ++size) {
        QByteArray cut(whole.constData(), size);
        cut.squeeze();
        complete += read(cut).complete;
    }
    EXPECT_EQ(complete, 3) << "after each element but the last";
    EXPECT_FALSE(read({}).complete) << "no beacon is without elements";
}

TEST(InformationElements, VendorElementsThatAreTooShortOrForeignSayNothing)
{
    for (const char *content : {"", "00", "0050f2", "0050f202", "aabbcc01", "506f9a09"}) {
        const InformationElements found = read(element(221, QByteArray::fromHex(content)));
        EXPECT_FALSE(found.wpa) << content;
        EXPECT_FALSE(found.otherProtection) << content;
        EXPECT_FALSE(found.oweTransition) << content;
        EXPECT_TRUE(found.complete) << content;
    }
    EXPECT_TRUE(read(element(221, QByteArray::fromHex("506f9a1c"))).oweTransition);
    EXPECT_TRUE(read(element(221, QByteArray::fromHex("506f9a12"))).otherProtection);
    EXPECT_TRUE(read(element(68, {})).otherProtection);
    EXPECT_EQ(read(element(255, {})).generation, WiFiGeneration::Legacy);
}

TEST(InformationElementsNetworkName, IsUtf8WhereItIsUtf8AndLatin1ElseAndNeverEmptyForOctets)
{
    EXPECT_EQ(networkName("Zukunft \xc3\xbc"), u"Zukunft ü"_s);
    EXPECT_EQ(networkName("\xf0\x9f\x8f\xa0 home"), QString::fromUtf8("\xf0\x9f\x8f\xa0 home"));
    EXPECT_EQ(networkName("caf\xe9"), QString::fromUtf8("caf\xc3\xa9"));
    EXPECT_EQ(networkName("cut \xc3"), QString::fromUtf8("cut \xc3\x83"));
    EXPECT_EQ(networkName("\xff\xfe"), QString::fromUtf8("\xc3\xbf\xc3\xbe"))
        << "no byte order mark";
    EXPECT_EQ(networkName("\xef\xbb\xbf"), QString(QChar(QChar::ByteOrderMark)));
    EXPECT_EQ(networkName(" padded "), u" padded "_s);
}

TEST(InformationElementsNetworkName, ControlCharactersBecomeVisible)
{
    EXPECT_EQ(networkName(QByteArray("a\0b", 3)), QString::fromUtf8("a\xe2\x90\x80"
                                                                    "b"));
    EXPECT_EQ(networkName("line\nend\x7f"), QString::fromUtf8("line\xe2\x90\x8a"
                                                              "end\xe2\x90\xa1"));
    EXPECT_EQ(networkName("\xef\xbf\xbf"), QString(QChar(QChar::ReplacementCharacter)))
        << "no text, and no property list can hold it";
}

TEST(InformationElementsNetworkName, ZerosAreAHiddenName)
{
    EXPECT_EQ(networkName({}), QString());
    EXPECT_EQ(networkName(QByteArray(32, '\0')), QString());
    EXPECT_EQ(networkName(QByteArray(1, '\0')), QString());
}

TEST(InformationElementsNetworkName, DifferentOctetsStayDifferentNames)
{
    EXPECT_NE(networkName("caf\xe9"), networkName("caf\xe8"));
    EXPECT_NE(networkName(QByteArray("a\0", 2)), networkName("a"));
    EXPECT_EQ(networkName(QByteArray(40, 'n')).size(), 32);
}

} // namespace quillon::test
