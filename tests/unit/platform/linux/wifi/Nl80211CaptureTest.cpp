// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "wifi/Nl80211Capture.h"

#include "unit/platform/linux/wifi/ElementBytes.h"

#include <gtest/gtest.h>

#include <cerrno>

namespace quillon::test {

using namespace Qt::StringLiterals;

namespace {

using Table = Nl80211Request::Table;

// The regulatory domain's answer: "UZ".
const QByteArray domain = "1c000000 1c000000 01000000 67120000 1f010000 07002100 555a0000";

QByteArray captureText()
{
    return "# a remark\nfamily 28\n\nask regulatory-domain 2\ndatagram\n  " + domain + "\n";
}

} // namespace

TEST(Nl80211Capture, AnswersTheRequestsThatWereRecorded)
{
    auto capture = Nl80211Capture::fromText(captureText());
    ASSERT_TRUE(capture);
    EXPECT_EQ(capture->ask({Table::RegulatoryDomain, 2}).countryCode, u"UZ"_s);
    EXPECT_EQ(capture->ask({Table::RegulatoryDomain, 1}).error, ENODATA);
    EXPECT_EQ(capture->ask({Table::Interfaces, 0}).error, ENODATA);
}

TEST(Nl80211Capture, WhatIsWrittenIsReadAgain)
{
    Nl80211Capture written(28);
    written.add({Table::RegulatoryDomain, 2}, spanOf(QByteArray::fromHex(domain)));
    written.add({Table::Noises, 3}, spanOf(QByteArray(100, 'x')));
    written.add({Table::Noises, 3}, spanOf(QByteArray(1, 'y')));
    auto read = Nl80211Capture::fromText(written.text());
    ASSERT_TRUE(read);
    EXPECT_EQ(read->text(), written.text());
    EXPECT_EQ(read->ask({Table::RegulatoryDomain, 2}).countryCode, u"UZ"_s);
}

TEST(Nl80211Capture, OtherTextIsNoCapture)
{
    EXPECT_FALSE(Nl80211Capture::fromText(""));
    EXPECT_FALSE(Nl80211Capture::fromText("ask noises 3\n")) << "no family";
    for (const char *line : {"ask weather 3", "ask noises", "ask noises x", "nonsense",
             "datagram\n  0", "datagram\n  0g", "00"}) {
        EXPECT_FALSE(Nl80211Capture::fromText(captureText() + "ask noises 3\n" + line + "\n"))
            << line;
    }
    EXPECT_FALSE(Nl80211Capture::fromText("family 28\ndatagram\n")) << "no request";
}

} // namespace quillon::test
