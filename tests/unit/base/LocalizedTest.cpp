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

TEST(LocalizedFilled, PlaceholdersAreFilledInOrder)
{
    EXPECT_EQ(
        filled(QStringLiteral("%@ now has %@."), {QStringLiteral("en0"), QStringLiteral("00:11")}),
        QStringLiteral("en0 now has 00:11."));
    EXPECT_EQ(filled(QStringLiteral("%d of %@%"), {QStringLiteral("1"), QStringLiteral("2")}),
        QStringLiteral("1 of 2%"));
}

TEST(LocalizedFilled, AValueIsNotFilledAgain)
{
    EXPECT_EQ(filled(QStringLiteral("%@ and %@"), {QStringLiteral("%@%d"), QStringLiteral("b")}),
        QStringLiteral("%@%d and b"));
}

TEST(LocalizedFilled, MissingValuesLeaveThePlaceholderAndExtraOnesAreIgnored)
{
    EXPECT_EQ(
        filled(QStringLiteral("%@ and %@"), {QStringLiteral("a")}), QStringLiteral("a and %@"));
    EXPECT_EQ(
        filled(QStringLiteral("plain %s %"), {QStringLiteral("a")}), QStringLiteral("plain %s %"));
    EXPECT_EQ(filled(QString(), {}), QString());
}

} // namespace
} // namespace quillon
