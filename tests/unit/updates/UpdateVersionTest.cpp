// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "updates/UpdateVersion.h"

#include <gtest/gtest.h>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

UpdateVersion version(const QString &text)
{
    const auto version = UpdateVersion::fromText(text);
    EXPECT_TRUE(version) << text.toStdString();
    return version.value_or(UpdateVersion());
}

TEST(UpdateVersionTest, GoesByItsNumbersFromTheFirstOn)
{
    const QStringList rising{u"0"_s, u"0.9.9"_s, u"1"_s, u"3.99.99.99"_s, u"4.0.0"_s, u"4.0.0.1"_s,
        u"4.0.1"_s, u"4.0.9"_s, u"4.0.10"_s, u"4.1"_s, u"4.2"_s, u"4.10"_s, u"10.0"_s,
        u"999999999.0"_s};
    for (qsizetype left = 0; left < rising.size(); ++left) {
        for (qsizetype right = 0; right < rising.size(); ++right) {
            EXPECT_EQ(version(rising.at(left)) < version(rising.at(right)), left < right)
                << rising.at(left).toStdString() << " and " << rising.at(right).toStdString();
        }
    }
}

TEST(UpdateVersionTest, WithoutItsLastZerosItIsTheSame)
{
    EXPECT_EQ(version(u"4.1"_s), version(u"4.1.0"_s));
    EXPECT_EQ(version(u"4"_s), version(u"4.0.0.0"_s));
    EXPECT_EQ(version(u"4.1.0"_s).text(), u"4.1.0"_s);
}

TEST(UpdateVersionTest, IsNothingElseThanNumbers)
{
    for (const QString &text : {u""_s, u"."_s, u"4."_s, u".4"_s, u"4..1"_s, u"v4.1"_s, u"4.1 "_s,
             u" 4.1"_s, u"4.1-beta"_s, u"4.0.0-beta"_s, u"4.0.0+1"_s, u"04.1"_s, u"4.01"_s, u"00"_s,
             u"4.1.2.3.4"_s, u"999999999999.0"_s, u"1234567890"_s, u"-4.1"_s, u"+4.1"_s, u"4,1"_s,
             u"4.1\n"_s, u"٤.١"_s, u"４.1"_s, u"0x4"_s, u"1e3"_s, QString(100'000, u'1'),
             QString(100'000, u'.'), u"4.1\0"_s}) {
        EXPECT_FALSE(UpdateVersion::fromText(text)) << text.left(20).toStdString();
    }
}

} // namespace
} // namespace quillon::test
