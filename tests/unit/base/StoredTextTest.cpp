// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/StoredText.h"

#include <gtest/gtest.h>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

TEST(StoredText, IsATextAndNothingThatCouldBeMadeOne)
{
    const QVariantMap stored = {
        {u"text"_s, u"a text"_s},
        {u"empty"_s, QString()},
        {u"number"_s, 5},
        {u"truth"_s, true},
        {u"bytes"_s, QByteArray("bytes")},
        {u"list"_s, QVariantList{u"a text"_s}},
        {u"nothing"_s, QVariant()},
    };
    EXPECT_EQ(storedText(stored, u"text"_s), u"a text"_s);
    EXPECT_EQ(storedText(stored, u"empty"_s), QString());
    for (const char *key : {"number", "truth", "bytes", "list", "nothing", "absent"}) {
        EXPECT_FALSE(storedText(stored, QString::fromLatin1(key)).has_value()) << key;
    }
}

} // namespace
} // namespace quillon::test
