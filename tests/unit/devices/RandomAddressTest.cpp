// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "devices/RandomAddress.h"

#include "DeviceFixture.h"
#include "devices/AddressText.h"
#include "fakes/FakeRandomSource.h"

#include <algorithm>

namespace quillon::test {
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
    EXPECT_EQ(randomFirstOctet(255), QLatin1String("FE"));
    EXPECT_EQ(randomFirstOctet(128), QLatin1String("82"));
    EXPECT_EQ(randomFirstOctet(127), QLatin1String("FE"));
    EXPECT_EQ(randomFirstOctet(64), QLatin1String("82"));
    EXPECT_EQ(randomFirstOctet(63), QLatin1String("FE"));
    EXPECT_EQ(randomFirstOctet(32), QLatin1String("82"));
    EXPECT_EQ(randomFirstOctet(4), QLatin1String("12"));
}

TEST(RandomAddressFirstOctet, IsASingleDigitForTheFourSmallestBytes)
{
    EXPECT_EQ(randomFirstOctet(0), QLatin1String("2"));
    EXPECT_EQ(randomFirstOctet(1), QLatin1String("6"));
    EXPECT_EQ(randomFirstOctet(2), QLatin1String("A"));
    EXPECT_EQ(randomFirstOctet(3), QLatin1String("E"));
}

TEST(RandomAddressText, WritesFiveFurtherOctetsWithTwoUpperCaseDigits)
{
    EXPECT_EQ(
        randomAddressText(QByteArray::fromHex("c0abcdef0009")), QLatin1String("C2:AB:CD:EF:00:09"));
}

TEST(RandomAddressText, OfByteZeroHasSixteenCharactersAndIsAnAddress)
{
    const QString address = randomAddressText(QByteArray::fromHex("00abcdef0123"));
    EXPECT_EQ(address, QLatin1String("2:AB:CD:EF:01:23"));
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
    EXPECT_EQ(vendorPrefix(QStringLiteral("Some Maker Inc. (A1B2C3)")), QStringLiteral("A1B2C3"));
    EXPECT_EQ(vendorPrefix(QStringLiteral("Some (Old) Maker (a1b2c3)")), QStringLiteral("a1b2c3"));
}

TEST(RandomAddressVendorPrefix, IsNoneWithoutParenthesis)
{
    EXPECT_EQ(vendorPrefix(QStringLiteral("Random Address")), std::nullopt);
    EXPECT_EQ(vendorPrefix(QString()), std::nullopt);
    EXPECT_EQ(vendorPrefix(QStringLiteral("A1B2C3)")), std::nullopt);
}

TEST(RandomAddressVendorPrefix, OfAMalformedChoiceIsWhatThereIs)
{
    EXPECT_EQ(vendorPrefix(QStringLiteral("(")), QString());
    EXPECT_EQ(vendorPrefix(QStringLiteral("(A)")), QStringLiteral("(A"));
}

TEST(RandomAddressWithPrefix, TakesTheAddressFromItsNinthCharacterOn)
{
    EXPECT_EQ(addressWithPrefix(QStringLiteral("A1B2C3"), QStringLiteral("C2:AB:CD:EF:00:09")),
        QLatin1String("A1:B2:C3:EF:00:09"));
}

TEST(RandomAddressWithPrefix, LacksAColonWhenTheAddressHasSixteenCharacters)
{
    const QString malformed =
        addressWithPrefix(QStringLiteral("A1B2C3"), QStringLiteral("2:AB:CD:EF:01:23"));
    EXPECT_EQ(malformed, QLatin1String("A1:B2:C3EF:01:23"));
    EXPECT_EQ(malformed.size(), 16);
    EXPECT_FALSE(isStringValidHEX(malformed));
}

TEST(RandomAddressWithPrefix, SurvivesTextsThatAreTooShort)
{
    EXPECT_EQ(addressWithPrefix(QStringLiteral("A1B2C3"), QString()), QLatin1String("A1:B2:C3"));
    EXPECT_EQ(addressWithPrefix(QStringLiteral("A1B2C3"), QStringLiteral("2:AB")),
        QLatin1String("A1:B2:C3"));
    EXPECT_EQ(addressWithPrefix(QString(), QString()), QLatin1String("::"));
}

class RandomAddressOfDevice : public DeviceFixture
{
protected:
    RandomAddressOfDevice() { random.put(QByteArray::fromHex("c0abcdef0009")); }

    FakeRandomSource random;
    QString made(const std::optional<QString> &vendor = std::nullopt)
    {
        return maker.addressForDevice(QStringLiteral("en0"), vendor);
    }

    RandomAddress maker{random, table};
};

TEST_F(RandomAddressOfDevice, IsMadeOfTheRandomBytes)
{
    EXPECT_EQ(made(), QLatin1String("C2:AB:CD:EF:00:09"));
}

TEST_F(RandomAddressOfDevice, BeginsWithTheGivenVendor)
{
    EXPECT_EQ(made(QStringLiteral("Some Maker Inc. (A1B2C3)")), QLatin1String("A1:B2:C3:EF:00:09"));
}

TEST_F(RandomAddressOfDevice, KeepsTheCaseOfTheStoredPrefixAndIgnoresTheDisplayCase)
{
    settings.setBool(keys::lowerCaseHEX, true);
    EXPECT_EQ(made(QStringLiteral("Maker (a1B2c3)")), QLatin1String("a1:B2:c3:EF:00:09"));
}

TEST_F(RandomAddressOfDevice, FollowsTheVendorOfTheDeviceWhenNoneIsGiven)
{
    storeRecord(QStringLiteral("en0"), {{record::vendor, QStringLiteral("Maker (0016EA)")}});
    EXPECT_EQ(made(), QLatin1String("00:16:EA:EF:00:09"));
}

TEST_F(RandomAddressOfDevice, PrefersTheGivenVendorToThatOfTheDevice)
{
    storeRecord(QStringLiteral("en0"), {{record::vendor, QStringLiteral("Maker (0016EA)")}});
    EXPECT_EQ(made(QStringLiteral("Random Address")), QLatin1String("C2:AB:CD:EF:00:09"));
}

TEST_F(RandomAddressOfDevice, IsPlainForAVendorWithoutParenthesis)
{
    storeRecord(QStringLiteral("en0"), {{record::vendor, QStringLiteral("Random Address")}});
    EXPECT_EQ(made(), QLatin1String("C2:AB:CD:EF:00:09"));
}

TEST_F(RandomAddressOfDevice, IsEmptyWhenTheRandomSourceFails)
{
    random.fail();
    EXPECT_EQ(made(), QString());
}

TEST_F(RandomAddressOfDevice, IsEmptyWithAVendorTooWhenTheRandomSourceFails)
{
    random.fail();
    EXPECT_EQ(made(QStringLiteral("Maker (A1B2C3)")), QString());
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

} // namespace
} // namespace quillon::test
