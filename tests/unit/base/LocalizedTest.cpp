// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/Localized.h"

#include <QStringList>
#include <gtest/gtest.h>

namespace quillon {

using namespace Qt::StringLiterals;
namespace {

TEST(Localized, AnUnknownTextComesBackAsItIs)
{
    EXPECT_EQ(localized("Unknown..."), u"Unknown..."_s);
    EXPECT_EQ(localized(QString::fromUtf8("Größe “%@”")), QString::fromUtf8("Größe “%@”"));
}

TEST(LocalizedFilled, PlaceholdersAreFilledInOrder)
{
    EXPECT_EQ(filled(u"%@ now has %@."_s, {u"en0"_s, u"00:11"_s}), u"en0 now has 00:11."_s);
    EXPECT_EQ(filled(u"%d of %@%"_s, {u"1"_s, u"2"_s}), u"1 of 2%"_s);
}

TEST(LocalizedFilled, AValueIsNotFilledAgain)
{
    EXPECT_EQ(filled(u"%@ and %@"_s, {u"%@%d"_s, u"b"_s}), u"%@%d and b"_s);
}

TEST(LocalizedFilled, MissingValuesLeaveThePlaceholderAndExtraOnesAreIgnored)
{
    EXPECT_EQ(filled(u"%@ and %@"_s, {u"a"_s}), u"a and %@"_s);
    EXPECT_EQ(filled(u"plain %s %"_s, {u"a"_s}), u"plain %s %"_s);
    EXPECT_EQ(filled(QString(), {}), QString());
}

} // namespace
} // namespace quillon
