// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/textual/InterfaceQueryText.h"

#include "fakes/QtPrinting.h"
#include "unit/platform/textual/RecordedOutput.h"

namespace quillon::test {
namespace {

TEST(InterfaceQueryText, TellsTheFirstOfEach)
{
    const InterfaceInfo info = interfaceInfo(recordedOutput(QStringLiteral("ifconfig-en0.txt")));
    EXPECT_EQ(info.ipAddress, QLatin1String("198.51.100.7"));
    EXPECT_EQ(info.macAddress, QLatin1String("02:16:3e:44:55:66"));
    EXPECT_EQ(info.status, QLatin1String("active"));
}

TEST(InterfaceQueryText, AnInet6LineIsNoInetLine)
{
    EXPECT_EQ(interfaceInfo(QStringLiteral("\tinet6 fe80::1 prefixlen 64\n")).ipAddress, QString());
}

TEST(InterfaceQueryText, WhatIsAbsentIsEmpty)
{
    EXPECT_EQ(interfaceInfo(QString()), InterfaceInfo{});
    EXPECT_EQ(interfaceInfo(QStringLiteral("lo0: flags=8049<UP>\n")), InterfaceInfo{});
}

TEST(InterfaceQueryText, APartWithoutTerminatorRunsToTheEnd)
{
    EXPECT_EQ(
        interfaceInfo(QStringLiteral("inet 192.0.2.1")).ipAddress, QLatin1String("192.0.2.1"));
    EXPECT_EQ(interfaceInfo(QStringLiteral("ether 02:00")).macAddress, QLatin1String("02:00"));
    EXPECT_EQ(interfaceInfo(QStringLiteral("status: inactive")).status, QLatin1String("inactive"));
}

TEST(InterfaceQueryText, AnAddressEndsAtABlankAndNothingElse)
{
    EXPECT_EQ(interfaceInfo(QStringLiteral("inet 192.0.2.1\n\tnext line")).ipAddress,
        QLatin1String("192.0.2.1\n\tnext"));
}

TEST(InterfaceQueryText, NothingIsTrimmed)
{
    const InterfaceInfo info =
        interfaceInfo(QStringLiteral("ether 02:00 \nstatus:  no carrier \r\nstatus: active\n"));
    EXPECT_EQ(info.macAddress, QLatin1String("02:00 "));
    EXPECT_EQ(info.status, QLatin1String(" no carrier "));
}

} // namespace
} // namespace quillon::test
