// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "devices/AddressText.h"

#include <gtest/gtest.h>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

bool isAddress(const char *text)
{
    return isStringValidHEX(QString::fromUtf8(text));
}

TEST(AddressText, AcceptsSixOctetsInEitherCase)
{
    EXPECT_TRUE(isAddress("3E:A1:07:5C:D2:19"));
    EXPECT_TRUE(isAddress("3e:a1:07:5c:d2:19"));
}

TEST(AddressText, AcceptsOneDigitFirstGroup)
{
    EXPECT_TRUE(isAddress("2:AB:CD:EF:01:23"));
}

TEST(AddressText, IsLooseAboutLettersAndLengthsOfGroups)
{
    EXPECT_TRUE(isAddress("zz:ZZ:zz:ZZ:zz:ZZ"));
    EXPECT_TRUE(isAddress("a._%+-:1:2:3:4:55"));
    EXPECT_TRUE(isAddress("a:b.:c-:.:-:..--"));
    EXPECT_TRUE(isAddress("aaaaaaaaaaaaaaaaaaaa:b:c:d:e:ff"));
}

TEST(AddressText, TakesTwoToFourCharactersInTheLastGroup)
{
    EXPECT_FALSE(isAddress("a:b:c:d:e:f"));
    EXPECT_TRUE(isAddress("a:b:c:d:e:ff"));
    EXPECT_TRUE(isAddress("a:b:c:d:e:ffff"));
    EXPECT_FALSE(isAddress("a:b:c:d:e:fffff"));
}

TEST(AddressText, AdmitsPunctuationOnlyWhereItBelongs)
{
    EXPECT_FALSE(isAddress("aa:b_:cc:dd:ee:ff"));
    EXPECT_FALSE(isAddress("aa:bb:c%:dd:ee:ff"));
    EXPECT_FALSE(isAddress("aa:bb:cc:d+:ee:ff"));
    EXPECT_FALSE(isAddress("aa:bb:cc:dd:ee:f_"));
    EXPECT_FALSE(isAddress("a a:bb:cc:dd:ee:ff"));
}

TEST(AddressText, AsksForExactlyFiveColonsAndNoEmptyGroup)
{
    EXPECT_FALSE(isAddress(""));
    EXPECT_FALSE(isAddress("a1b2c3d4e5f6"));
    EXPECT_FALSE(isAddress("no colons"));
    EXPECT_FALSE(isAddress("aa:bb:cc:dd:ee"));
    EXPECT_FALSE(isAddress("aa:bb:cc:dd:ee:ff:00"));
    EXPECT_FALSE(isAddress(":bb:cc:dd:ee:ff"));
    EXPECT_FALSE(isAddress("aa::cc:dd:ee:ff"));
    EXPECT_FALSE(isAddress("aa:bb:cc:dd:ee:"));
}

TEST(AddressText, HasToMatchFromTheFirstCharacterToTheLast)
{
    EXPECT_FALSE(isAddress("aa:bb:cc:dd:ee:ff\n"));
    EXPECT_FALSE(isAddress("\naa:bb:cc:dd:ee:ff"));
    EXPECT_FALSE(isAddress(" aa:bb:cc:dd:ee:ff"));
    EXPECT_FALSE(isAddress("aa:bb:cc:dd:ee:ff "));
    EXPECT_FALSE(isAddress("x\naa:bb:cc:dd:ee:ff"));
    EXPECT_FALSE(isStringValidHEX(u"aa:bb:cc:dd:ee:ff"_s + QChar(u'\0')));
}

TEST(AddressText, KnowsNoLettersAndDigitsBeyondAscii)
{
    EXPECT_FALSE(isAddress("\u00e4\u00e4:bb:cc:dd:ee:ff"));
    EXPECT_FALSE(isAddress("aa:bb:cc:dd:ee:\u00e4\u00e4"));
    EXPECT_FALSE(isAddress("aa:bb:\u0661\u0662:dd:ee:ff"));
    EXPECT_FALSE(isAddress("aa:bb:cc\uff1add:ee:ff"));
}

TEST(AddressTextSame, CountsNeitherCaseNorLeadingZeros)
{
    EXPECT_TRUE(isSameAddress(u"02:aa:bb:0c:dd:01"_s, u"02:AA:BB:0C:DD:01"_s));
    EXPECT_TRUE(isSameAddress(u"2:AA:BB:C:DD:1"_s, u"02:aa:bb:0c:dd:01"_s));
    EXPECT_FALSE(isSameAddress(u"02:aa:bb:0c:dd:01"_s, u"02:aa:bb:0c:dd:02"_s));
    EXPECT_FALSE(isSameAddress(u"02:aa:bb:0c:dd:01"_s, u"20:aa:bb:0c:dd:01"_s));
}

TEST(AddressTextSame, IsNoneThatIsNoAddress)
{
    for (const QString &text : {QString(), u"Random Address"_s, u"02:aa:bb:cc:dd"_s,
             u"02:aa:bb:cc:dd:0g"_s, u"002:aa:bb:cc:dd:01"_s, u"02:aa:bb:cc:dd:01\n"_s}) {
        EXPECT_FALSE(isSameAddress(text, text)) << text.toStdString();
    }
}

} // namespace
} // namespace quillon::test
