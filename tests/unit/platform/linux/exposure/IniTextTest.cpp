// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/exposure/IniText.h"

#include <gtest/gtest.h>

namespace quillon::test {

using namespace Qt::StringLiterals;

TEST(IniText, TakesTheLastOfSeveral)
{
    const IniText text("[DHCPv4]\nHostname=one\n# Hostname=none\n;x=y\n[Other]\nHostname=other\n"
                       "[DHCPv4]\n hostname = \"two = 2\" \n");
    EXPECT_EQ(text.value(u"DHCPv4"_s, u"Hostname"_s), u"two = 2"_s);
    EXPECT_EQ(text.value(u"Other"_s, u"Hostname"_s), u"other"_s);
    EXPECT_EQ(text.value(u"dhcpv4"_s, u"Hostname"_s), std::nullopt);
    EXPECT_EQ(text.value(u"DHCPv4"_s, u"# Hostname"_s), std::nullopt);
}

TEST(IniText, ReadsLinesBeforeTheFirstSection)
{
    const IniText text("# made\nNETWORK_FILE=/etc/x.network\nCLIENTID=01\n");
    EXPECT_EQ(text.value({}, u"CLIENTID"_s), u"01"_s);
}

TEST(IniText, IsContinuedByALaterFile)
{
    IniText text("[a]\nk=1\nl=1\n");
    text.append(IniText("[a]\nk=2\n"));
    EXPECT_EQ(text.value(u"a"_s, u"k"_s), u"2"_s);
    EXPECT_EQ(text.value(u"a"_s, u"l"_s), u"1"_s);
}

TEST(IniText, KnowsYesAndNoOnly)
{
    const IniText text("[a]\nyes=True\nno=off\nother=maybe\n");
    EXPECT_EQ(text.truth(u"a"_s, u"yes"_s), true);
    EXPECT_EQ(text.truth(u"a"_s, u"no"_s), false);
    EXPECT_EQ(text.truth(u"a"_s, u"other"_s), std::nullopt);
    EXPECT_EQ(text.truth(u"a"_s, u"none"_s), std::nullopt);
}

TEST(IniText, HasAnEndAndSurvivesAnything)
{
    EXPECT_EQ(IniText(QByteArray("k=v\n").repeated(100'000)).entries().size(), 4000);
    EXPECT_TRUE(IniText(QByteArray(100'000, '[')).entries().isEmpty());
    EXPECT_TRUE(IniText(QByteArray("\0=\xff\n=x\n[\n]\n[]", 13)).entries().size() <= 1);
}

} // namespace quillon::test
