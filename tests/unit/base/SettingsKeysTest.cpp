// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/SettingsKeys.h"

#include <QSet>
#include <gtest/gtest.h>

namespace quillon {

using namespace Qt::StringLiterals;
namespace {

TEST(SettingsKeys, EveryKeyIsInTheTableOnce)
{
    QSet<QString> names;
    for (const keys::Entry &entry : keys::all()) {
        EXPECT_FALSE(names.contains(entry.name)) << entry.name.toStdString();
        names.insert(entry.name);
    }
    EXPECT_EQ(names.size(), 43);
}

TEST(SettingsKeys, OnlyValuesOfThePlatformHaveNoFixedType)
{
    QSet<QString> untyped;
    for (const keys::Entry &entry : keys::all()) {
        if (!entry.type) {
            untyped.insert(entry.name);
        }
    }
    EXPECT_EQ(
        untyped, QSet<QString>({keys::showKeyCombo, keys::randomKeyCombo, keys::iCloudToken}));
}

TEST(SettingsKeys, AKeyIsStoredUnderItsOwnName)
{
    EXPECT_EQ(keys::deviceDict, u"deviceDict"_s);
    EXPECT_EQ(keys::lowerCaseHEX, u"lowerCaseHEX"_s);
    EXPECT_EQ(keys::SUFeedURL, u"SUFeedURL"_s);
}

} // namespace
} // namespace quillon
