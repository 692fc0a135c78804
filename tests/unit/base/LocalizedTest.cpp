// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/Localized.h"

#include <QStringList>
#include <gtest/gtest.h>

namespace quillon {
namespace {

TEST(Localized, AnUnknownTextComesBackAsItIs)
{
    EXPECT_EQ(localized("Unknown..."), QStringLiteral("Unknown..."));
    EXPECT_EQ(localized(QString::fromUtf8("Größe “%@”")), QString::fromUtf8("Größe “%@”"));
}

TEST(Filled, PlaceholdersAreFilledInOrder)
{
    EXPECT_EQ(
        filled(QStringLiteral("%@ now has %@."), {QStringLiteral("en0"), QStringLiteral("00:11")}),
        QStringLiteral("en0 now has 00:11."));
}

TEST(Filled, AValueIsNotFilledAgain)
{
    EXPECT_EQ(filled(QStringLiteral("%@ and %@"), {QStringLiteral("%@"), QStringLiteral("b")}),
        QStringLiteral("%@ and b"));
}

TEST(Filled, MissingValuesLeaveThePlaceholderAndExtraOnesAreIgnored)
{
    EXPECT_EQ(
        filled(QStringLiteral("%@ and %@"), {QStringLiteral("a")}), QStringLiteral("a and %@"));
    EXPECT_EQ(
        filled(QStringLiteral("plain %d"), {QStringLiteral("a")}), QStringLiteral("plain %d"));
    EXPECT_EQ(filled(QString(), {}), QString());
}

} // namespace
} // namespace quillon
