// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "contract/Validation.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace quillon::contract {
namespace {

using namespace std::string_view_literals;

struct Sample
{
    const char *name;
    std::string_view text;
};

std::string nameOf(const testing::TestParamInfo<Sample> &info)
{
    return info.param.name;
}

class ValidationAcceptedDevice : public testing::TestWithParam<Sample>
{
};

TEST_P(ValidationAcceptedDevice, mayBeLookedUp)
{
    EXPECT_TRUE(isValidDeviceName(GetParam().text));
}

INSTANTIATE_TEST_SUITE_P(, ValidationAcceptedDevice,
    testing::Values(Sample{"wired", "enp3s0"}, Sample{"wireless", "wlp2s0"},
        Sample{"bridge", "br0"}, Sample{"oneLetter", "e"},
        Sample{"fifteenBytes", "abcdefghijklmno"}, Sample{"vlanWithPoint", "eth0.100"},
        Sample{"hyphenInside", "br-lan"}, Sample{"underscore", "vm_net"},
        Sample{"threePoints", "..."}, Sample{"capitals", "EthZ9"}),
    nameOf);

class ValidationRefusedDevice : public testing::TestWithParam<Sample>
{
};

TEST_P(ValidationRefusedDevice, isNeverLookedUp)
{
    EXPECT_FALSE(isValidDeviceName(GetParam().text));
}

INSTANTIATE_TEST_SUITE_P(, ValidationRefusedDevice,
    testing::Values(Sample{"empty", ""}, Sample{"point", "."}, Sample{"twoPoints", ".."},
        Sample{"argument", "-a"}, Sample{"longArgument", "--help"}, Sample{"traversal", "../x"},
        Sample{"slash", "a/b"}, Sample{"sixteenBytes", "abcdefghijklmnop"},
        Sample{"zeroByte", "eth0\0"sv}, Sample{"zeroByteInside", "eth\0x"sv},
        Sample{"newline", "eth0\n"}, Sample{"carriageReturn", "eth0\r"}, Sample{"space", "eth 0"},
        Sample{"tab", "eth\t0"},
        Sample{"notAscii", "et\xc3\xa9"
                           "0"},
        Sample{"highByte", "eth\xff"}, Sample{"delete_", "eth\x7f"}, Sample{"colon", "eth0:1"},
        Sample{"percent", "eth%d"}, Sample{"semicolon", "a;reboot"}, Sample{"dollar", "$(id)"},
        Sample{"backquote", "`id`"}, Sample{"quote", "a'b"}, Sample{"star", "eth*"},
        Sample{"equals", "a=b"}, Sample{"atSign", "eth0@if3"}),
    nameOf);

TEST(ValidationDeviceName, everyByteIsEitherSafeOrRefused)
{
    const std::string safe = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789._-";
    for (int byte = 0; byte < 256; ++byte) {
        const std::string name{'e', static_cast<char>(byte)};
        EXPECT_EQ(isValidDeviceName(name), safe.find(static_cast<char>(byte)) != std::string::npos)
            << byte;
    }
}

TEST(ValidationDeviceName, aMegabyteIsRefused)
{
    EXPECT_FALSE(isValidDeviceName(std::string(1 << 20, 'a')));
}

class ValidationRefusedAddress : public testing::TestWithParam<Sample>
{
};

TEST_P(ValidationRefusedAddress, isNone)
{
    EXPECT_EQ(unicastAddress(GetParam().text), std::nullopt);
}

INSTANTIATE_TEST_SUITE_P(, ValidationRefusedAddress,
    testing::Values(Sample{"empty", ""}, Sample{"zero", "00:00:00:00:00:00"},
        Sample{"shortZero", "0:0:0:0:0:0"}, Sample{"broadcast", "ff:ff:ff:ff:ff:ff"},
        Sample{"multicast", "01:00:5e:00:00:01"}, Sample{"oneDigitMulticast", "1:2:3:4:5:6"},
        Sample{"localMulticast", "33:33:00:00:00:01"}, Sample{"fiveOctets", "02:00:00:00:01"},
        Sample{"sevenOctets", "02:00:00:00:00:00:01"}, Sample{"threeDigits", "02:00:00:00:00:001"},
        Sample{"emptyOctet", "02::00:00:00:01"}, Sample{"emptyFirst", ":00:00:00:00:01"},
        Sample{"emptyLast", "02:00:00:00:00:"}, Sample{"trailingColon", "02:00:00:00:00:01:"},
        Sample{"hyphens", "02-00-00-00-00-01"}, Sample{"noSeparators", "020000000001"},
        Sample{"notHexadecimal", "02:00:00:00:00:0g"}, Sample{"sign", "02:00:00:00:00:-1"},
        Sample{"prefix", "0x:00:00:00:00:01"}, Sample{"space", "02:00:00:00:00: 1"},
        Sample{"leadingSpace", " 2:00:00:00:00:01"}, Sample{"newline", "02:00:00:00:00:01\n"},
        Sample{"zeroByte", "02:00:00:00:00:01\0"sv},
        Sample{"zeroByteInside", "02:00:\0000:00:01"sv},
        Sample{"fullwidthDigit", "02:00:00:00:00:\xef\xbc\x91"}, Sample{"words", "not an address"}),
    nameOf);

TEST(ValidationAddress, aMegabyteIsRefused)
{
    EXPECT_EQ(unicastAddress(std::string(1 << 20, ':')), std::nullopt);
    EXPECT_EQ(unicastAddress(std::string(1 << 20, '0')), std::nullopt);
}

TEST(ValidationAddress, octetsMayHaveOneOrTwoDigitsInEitherCase)
{
    EXPECT_EQ(unicastAddress("2:0:a:B:0c:Ff"), (LinkLayerAddress{2, 0, 10, 11, 12, 255}));
    EXPECT_EQ(unicastAddress("F0:18:98:00:00:01"), (LinkLayerAddress{0xf0, 0x18, 0x98, 0, 0, 1}));
}

TEST(ValidationAddress, everyEvenFirstOctetIsUnicastAndEveryOddOneRefused)
{
    for (unsigned octet = 0; octet < 256; ++octet) {
        const LinkLayerAddress address{static_cast<std::uint8_t>(octet), 1, 2, 3, 4, 5};
        EXPECT_EQ(unicastAddress(addressText(address)).has_value(), octet % 2 == 0) << octet;
    }
}

TEST(ValidationAddress, isWrittenWithTwoDigitsInLowerCase)
{
    EXPECT_EQ(addressText({2, 0, 10, 11, 12, 255}), "02:00:0a:0b:0c:ff");
}

} // namespace
} // namespace quillon::contract
