// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/StoredText.h"

#include <gtest/gtest.h>

namespace quillon::test {
namespace {

TEST(StoredText, IsATextAndNothingThatCouldBeMadeOne)
{
    const QVariantMap stored = {
        {QStringLiteral("text"), QStringLiteral("a text")},
        {QStringLiteral("empty"), QString()},
        {QStringLiteral("number"), 5},
        {QStringLiteral("truth"), true},
        {QStringLiteral("bytes"), QByteArray("bytes")},
        {QStringLiteral("list"), QVariantList{QStringLiteral("a text")}},
        {QStringLiteral("nothing"), QVariant()},
    };
    EXPECT_EQ(storedText(stored, QStringLiteral("text")), QStringLiteral("a text"));
    EXPECT_EQ(storedText(stored, QStringLiteral("empty")), QString());
    for (const char *key : {"number", "truth", "bytes", "list", "nothing", "absent"}) {
        EXPECT_FALSE(storedText(stored, QString::fromLatin1(key)).has_value()) << key;
    }
}

} // namespace
} // namespace quillon::test
