// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "sync/AccountFile.h"

#include <gtest/gtest.h>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

using Kind = AccountFile::Kind;

TEST(AccountFileTest, NameComesBack)
{
    for (const AccountFile &file : {AccountFile{Kind::Change, ~quint64{0}, 1},
             AccountFile{Kind::Change, 1, (quint64{1} << 48) - 1}, AccountFile{Kind::Part, 5, 0},
             AccountFile{Kind::Snapshot, 5, 0}}) {
        EXPECT_EQ(AccountFile::fromName(file.name()), file) << file.name().toStdString();
    }
    EXPECT_EQ(
        (AccountFile{Kind::Change, 0xab, 0x1f}.name()), u"00000000000000ab-00000000001f.change"_s);
}

TEST(AccountFileTest, EveryOtherNameIsSomebodyElses)
{
    for (const QString &name : {u""_s, u"head"_s, u"key"_s, u".change"_s, u"ab-1f.change"_s,
             u"00000000000000AB-00000000001f.change"_s, u"00000000000000ab-000000000000.change"_s,
             u"00000000000000ab-00000000001f.change (conflicted copy)"_s,
             u"00000000000000ab-00000000001f (2).change"_s, u"00000000000000ab.change"_s,
             u"0x000000000000ab-00000000001f.change"_s, u"-0000000000000ab-00000000001f.change"_s,
             u"00000000000000ab-ffffffffffffff.change"_s, u"00000000000000ab-1.snapshot"_s,
             u"../00000000000000ab.snapshot"_s, u"00000000000000ab-0000000000zz.part"_s}) {
        EXPECT_FALSE(AccountFile::fromName(name)) << name.toStdString();
    }
}

} // namespace
} // namespace quillon::test
