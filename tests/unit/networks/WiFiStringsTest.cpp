// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "networks/WiFiStrings.h"

#include "fakes/QtPrinting.h"
#include "platform/WiFiClient.h"

#include <QStringList>
#include <gtest/gtest.h>

#include <limits>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

QStringList textsOf(QString (*text)(int), int first, int last)
{
    QStringList texts;
    for (int number = first; number <= last; ++number) {
        texts << text(number);
    }
    return texts;
}

void expectOtherwise(QString (*text)(int), const char *otherwise)
{
    for (const int number :
        {-1, 99, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()}) {
        EXPECT_EQ(text(number), QString::fromLatin1(otherwise)) << number;
    }
}

TEST(WiFiStrings, NameTheSecurityTypes)
{
    const QStringList expected = {"None", "WEP", "WPA Personal", "WPA Personal Mixed",
        "WPA2 Personal", "Personal", "Dynamic WEP", "WPA Enterprise", "WPA Enterprise Mixed",
        "WPA2 Enterprise", "Enterprise"};
    EXPECT_EQ(textsOf(securityStringForNetwork, 0, 10), expected);
}

TEST(WiFiStrings, CallSecurityFromElevenOnUnknown)
{
    for (int security = WiFiInterface::WPA3Personal; security <= WiFiInterface::OWETransition;
        ++security) {
        EXPECT_EQ(securityStringForNetwork(security), u"Unknown"_s) << security;
    }
    expectOtherwise(securityStringForNetwork, "Unknown");
}

TEST(WiFiStrings, NameTheBands)
{
    const QStringList expected = {"Unknown", "2.4 GHz", "5 GHz", "6 GHz", "Unknown"};
    EXPECT_EQ(textsOf(bandStringForChannel, 0, 4), expected);
    expectOtherwise(bandStringForChannel, "Unknown");
}

TEST(WiFiStrings, NameTheWidths)
{
    const QStringList expected = {"Unknown", "20 MHz", "40 MHz", "80 MHz", "160 MHz", "Unknown"};
    EXPECT_EQ(textsOf(widthStringForChannel, 0, 5), expected);
    expectOtherwise(widthStringForChannel, "Unknown");
}

TEST(WiFiStrings, CallAnUnknownPHYModeNone)
{
    const QStringList expected = {
        "None", "802.11a", "802.11b", "802.11g", "802.11n", "802.11ac", "802.11ax", "None"};
    EXPECT_EQ(textsOf(phyModeStringForInterface, 0, 7), expected);
    expectOtherwise(phyModeStringForInterface, "None");
}

TEST(WiFiStrings, ReadTheOneOptionalValueOrNothing)
{
    WiFiInterface interface;
    const QString mcsIndex = u"mcsIndex"_s;
    EXPECT_EQ(getValueFromobjectForKey(interface, mcsIndex), QVariant(QString()));
    interface.mcsIndex = 0;
    EXPECT_EQ(getValueFromobjectForKey(interface, mcsIndex), QVariant(qlonglong(0)));
    interface.mcsIndex = 11;
    EXPECT_EQ(getValueFromobjectForKey(interface, mcsIndex), QVariant(qlonglong(11)));
    EXPECT_EQ(getValueFromobjectForKey(interface, u"spatialStreams"_s), QVariant(QString()));
}

} // namespace
} // namespace quillon::test
