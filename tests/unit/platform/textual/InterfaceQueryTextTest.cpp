// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/textual/InterfaceQueryText.h"

#include "fakes/QtPrinting.h"
#include "unit/platform/textual/RecordedOutput.h"

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

TEST(InterfaceQueryText, TellsTheFirstOfEach)
{
    const InterfaceInfo info = interfaceInfo(recordedOutput(u"ifconfig-en0.txt"_s));
    EXPECT_EQ(info.ipAddress, "198.51.100.7"_L1);
    EXPECT_EQ(info.macAddress, "02:16:3e:44:55:66"_L1);
    EXPECT_EQ(info.status, "active"_L1);
}

TEST(InterfaceQueryText, AnInet6LineIsNoInetLine)
{
    EXPECT_EQ(interfaceInfo(u"\tinet6 fe80::1 prefixlen 64\n"_s).ipAddress, QString());
}

TEST(InterfaceQueryText, WhatIsAbsentIsEmpty)
{
    EXPECT_EQ(interfaceInfo(QString()), InterfaceInfo{});
    EXPECT_EQ(interfaceInfo(u"lo0: flags=8049<UP>\n"_s), InterfaceInfo{});
}

TEST(InterfaceQueryText, APartWithoutTerminatorRunsToTheEnd)
{
    EXPECT_EQ(interfaceInfo(u"inet 192.0.2.1"_s).ipAddress, "192.0.2.1"_L1);
    EXPECT_EQ(interfaceInfo(u"ether 02:00"_s).macAddress, "02:00"_L1);
    EXPECT_EQ(interfaceInfo(u"status: inactive"_s).status, "inactive"_L1);
}

TEST(InterfaceQueryText, AnAddressEndsAtABlankAndNothingElse)
{
    EXPECT_EQ(interfaceInfo(u"inet 192.0.2.1\n\tnext line"_s).ipAddress, "192.0.2.1\n\tnext"_L1);
}

TEST(InterfaceQueryText, NothingIsTrimmed)
{
    const InterfaceInfo info =
        interfaceInfo(u"ether 02:00 \nstatus:  no carrier \r\nstatus: active\n"_s);
    EXPECT_EQ(info.macAddress, "02:00 "_L1);
    EXPECT_EQ(info.status, " no carrier "_L1);
}

} // namespace
} // namespace quillon::test
