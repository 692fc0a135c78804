// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/Isolates.h"

#include <gtest/gtest.h>

namespace quillon {

using namespace Qt::StringLiterals;
namespace {

TEST(Isolates, AreSeenByTheirHalves)
{
    const auto halves = [](const QString &text) { return halfIsolates(text); };
    EXPECT_EQ(halves(u"00:11"_s), QList<qsizetype>());
    EXPECT_EQ(halves(u"a\u2068b\u2069c\u2068\u2069"_s), QList<qsizetype>());
    EXPECT_EQ(halves(u"\u2068a\u2068b\u2069c\u2069"_s), QList<qsizetype>()) << "one in another";
    EXPECT_EQ(halves(u"\u2069a\u2068b"_s), (QList<qsizetype>{0, 2}));
    EXPECT_EQ(halves(u"\u2068a\u2068b\u2069c"_s), (QList<qsizetype>{0}));
    EXPECT_EQ(halves(u"\u2068a\u2069\u2069"_s), (QList<qsizetype>{3}));
}

TEST(Isolates, AreNotWhatIsStored)
{
    EXPECT_EQ(withoutIsolates(u"a \u2068b\u2069, \u2068c"_s), u"a b, c"_s);
    EXPECT_EQ(isolated(u"00:11"_s), u"\u206800:11\u2069"_s);
    EXPECT_EQ(withoutIsolates(isolated(u"00:11"_s)), u"00:11"_s);
    EXPECT_EQ(withoutIsolates(QString()), QString());
}

} // namespace
} // namespace quillon
