// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "devices/RandomAddress.h"

#include "DeviceFixture.h"
#include "devices/AddressText.h"
#include "fakes/FakeRandomSource.h"

#include <algorithm>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

/// The rule as it is told: the numeral's first six characters, "10" appended, read as binary.
QString firstOctetByNumerals(int r)
{
    std::string numeral;
    for (int rest = r; rest > 0; rest /= 2) {
        numeral.insert(numeral.begin(), static_cast<char>('0' + rest % 2));
    }
    if (numeral.empty()) {
        numeral = "0";
    }
    const int value = std::stoi(numeral.substr(0, 6) + "10", nullptr, 2);
    return QString::asprintf("%X", static_cast<unsigned>(value));
}

TEST(RandomAddressFirstOctet, FollowsTheNumeralForEveryByte)
{
    for (int r = 0; r < 256; ++r) {
        EXPECT_EQ(randomFirstOctet(static_cast<quint8>(r)), firstOctetByNumerals(r)) << "r = " << r;
    }
}

TEST(RandomAddressFirstOctet, IsLocallyAdministeredAndUnicastForEveryByte)
{
    for (int r = 0; r < 256; ++r) {
        const int octet = randomFirstOctet(static_cast<quint8>(r)).toInt(nullptr, 16);
        EXPECT_EQ(octet & 3, 2) << "r = " << r;
        EXPECT_LE(octet, 255) << "r = " << r;
    }
}

TEST(RandomAddressFirstOctet, IsUnevenByDesign)
{
    EXPECT_EQ(randomFirstOctet(255), "FE"_L1);
    EXPECT_EQ(randomFirstOctet(128), "82"_L1);
    EXPECT_EQ(randomFirstOctet(127), "FE"_L1);
    EXPECT_EQ(randomFirstOctet(64), "82"_L1);
    EXPECT_EQ(randomFirstOctet(63), "FE"_L1);
    EXPECT_EQ(randomFirstOctet(32), "82"_L1);
    EXPECT_EQ(randomFirstOctet(4), "12"_L1);
}

TEST(RandomAddressFirstOctet, IsASingleDigitForTheFourSmallestBytes)
{
    EXPECT_EQ(randomFirstOctet(0), "2"_L1);
    EXPECT_EQ(randomFirstOctet(1), "6"_L1);
    EXPECT_EQ(randomFirstOctet(2), "A"_L1);
    EXPECT_EQ(randomFirstOctet(3), "E"_L1);
}

TEST(RandomAddressText, WritesFiveFurtherOctetsWithTwoUpperCaseDigits)
{
    EXPECT_EQ(randomAddressText(QByteArray::fromHex("c0abcdef0009")), "C2:AB:CD:EF:00:09"_L1);
}

TEST(RandomAddressText, OfByteZeroHasSixteenCharactersAndIsAnAddress)
{
    const QString address = randomAddressText(QByteArray::fromHex("00abcdef0123"));
    EXPECT_EQ(address, "2:AB:CD:EF:01:23"_L1);
    EXPECT_TRUE(isStringValidHEX(address));
}

TEST(RandomAddressText, NeedsSixBytes)
{
    EXPECT_EQ(randomAddressText({}), QString());
    EXPECT_EQ(randomAddressText(QByteArray::fromHex("0102030405")), QString());
    EXPECT_EQ(randomAddressText(QByteArray::fromHex("01020304050607")), QString());
}

TEST(RandomAddressVendorPrefix, IsWhatStandsBetweenTheParentheses)
{
    EXPECT_EQ(vendorPrefix(u"Some Maker Inc. (A1B2C3)"_s), u"A1B2C3"_s);
    EXPECT_EQ(vendorPrefix(u"Some (Old) Maker (a1b2c3)"_s), u"a1b2c3"_s);
}

TEST(RandomAddressVendorPrefix, IsNoneWithoutParenthesis)
{
    EXPECT_EQ(vendorPrefix(u"Random Address"_s), std::nullopt);
    EXPECT_EQ(vendorPrefix(QString()), std::nullopt);
    EXPECT_EQ(vendorPrefix(u"A1B2C3)"_s), std::nullopt);
}

TEST(RandomAddressVendorPrefix, OfAMalformedChoiceIsWhatThereIs)
{
    EXPECT_EQ(vendorPrefix(u"("_s), QString());
    EXPECT_EQ(vendorPrefix(u"(A)"_s), u"(A"_s);
}

TEST(RandomAddressWithPrefix, TakesTheAddressFromItsNinthCharacterOn)
{
    EXPECT_EQ(addressWithPrefix(u"A1B2C3"_s, u"C2:AB:CD:EF:00:09"_s), "A1:B2:C3:EF:00:09"_L1);
}

TEST(RandomAddressWithPrefix, LacksAColonWhenTheAddressHasSixteenCharacters)
{
    const QString malformed = addressWithPrefix(u"A1B2C3"_s, u"2:AB:CD:EF:01:23"_s);
    EXPECT_EQ(malformed, "A1:B2:C3EF:01:23"_L1);
    EXPECT_EQ(malformed.size(), 16);
    EXPECT_FALSE(isStringValidHEX(malformed));
}

TEST(RandomAddressWithPrefix, SurvivesTextsThatAreTooShort)
{
    EXPECT_EQ(addressWithPrefix(u"A1B2C3"_s, QString()), "A1:B2:C3"_L1);
    EXPECT_EQ(addressWithPrefix(u"A1B2C3"_s, u"2:AB"_s), "A1:B2:C3"_L1);
    EXPECT_EQ(addressWithPrefix(QString(), QString()), "::"_L1);
}

class RandomAddressOfDevice : public DeviceFixture
{
protected:
    RandomAddressOfDevice() { random.put(QByteArray::fromHex("c0abcdef0009")); }

    FakeRandomSource random;
    QString made(const std::optional<QString> &vendor = std::nullopt)
    {
        return maker.addressForDevice(u"en0"_s, vendor);
    }

    RandomAddress maker{random, table};
};

TEST_F(RandomAddressOfDevice, IsMadeOfTheRandomBytes)
{
    EXPECT_EQ(made(), "C2:AB:CD:EF:00:09"_L1);
}

TEST_F(RandomAddressOfDevice, BeginsWithTheGivenVendor)
{
    EXPECT_EQ(made(u"Some Maker Inc. (A1B2C3)"_s), "A1:B2:C3:EF:00:09"_L1);
}

TEST_F(RandomAddressOfDevice, KeepsTheCaseOfTheStoredPrefixAndIgnoresTheDisplayCase)
{
    settings.setBool(keys::lowerCaseHEX, true);
    EXPECT_EQ(made(u"Maker (a1B2c3)"_s), "a1:B2:c3:EF:00:09"_L1);
}

TEST_F(RandomAddressOfDevice, FollowsTheVendorOfTheDeviceWhenNoneIsGiven)
{
    storeRecord(u"en0"_s, {{record::vendor, u"Maker (0016EA)"_s}});
    EXPECT_EQ(made(), "00:16:EA:EF:00:09"_L1);
}

TEST_F(RandomAddressOfDevice, PrefersTheGivenVendorToThatOfTheDevice)
{
    storeRecord(u"en0"_s, {{record::vendor, u"Maker (0016EA)"_s}});
    EXPECT_EQ(made(u"Random Address"_s), "C2:AB:CD:EF:00:09"_L1);
}

TEST_F(RandomAddressOfDevice, IsPlainForAVendorWithoutParenthesis)
{
    storeRecord(u"en0"_s, {{record::vendor, u"Random Address"_s}});
    EXPECT_EQ(made(), "C2:AB:CD:EF:00:09"_L1);
}

TEST_F(RandomAddressOfDevice, IsEmptyWhenTheRandomSourceFails)
{
    random.fail();
    EXPECT_EQ(made(), QString());
}

TEST_F(RandomAddressOfDevice, IsEmptyWithAVendorTooWhenTheRandomSourceFails)
{
    random.fail();
    EXPECT_EQ(made(u"Maker (A1B2C3)"_s), QString());
}

TEST_F(RandomAddressOfDevice, HoldsNothingButDigitsAndColonsForEveryFirstByte)
{
    random.bytes(6);
    for (int r = 0; r < 256; ++r) {
        random.put(QByteArray(1, static_cast<char>(r)) + QByteArray::fromHex("0a1bfe00ff"));
        const QString address = made();
        EXPECT_TRUE(std::all_of(address.begin(), address.end(), [](QChar c) {
            return QStringView(u":1234567890ABCDEF").contains(c);
        })) << address.toStdString();
        EXPECT_TRUE(isStringValidHEX(address)) << address.toStdString();
        EXPECT_EQ(address.size(), r < 4 ? 16 : 17);
    }
}

TEST_F(RandomAddressOfDevice, IsPlainForAnEmptyVendorWhateverTheDevicesOwn)
{
    storeRecord(u"en0"_s, {{record::vendor, u"Maker (0016EA)"_s}});
    EXPECT_EQ(made(u""_s), "C2:AB:CD:EF:00:09"_L1);
    random.put(QByteArray::fromHex("c0abcdef0009"));
    EXPECT_EQ(made(QString()), "C2:AB:CD:EF:00:09"_L1) << "given, and empty";
}

} // namespace
} // namespace quillon::test
