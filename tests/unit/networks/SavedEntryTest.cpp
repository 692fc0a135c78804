// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "networks/SavedEntry.h"

#include "base/NetworkKeys.h"
#include "fakes/QtPrinting.h"

#include <gtest/gtest.h>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

TEST(SavedEntry, ComesBackAsItWas)
{
    const QVariantMap stored{{savedentry::name, u"Home"_s}, {savedentry::SSID, QString()},
        {savedentry::BSSID, qlonglong(5)}, {savedentry::ssidDefined, false},
        {u"future"_s, QVariantMap()}};
    SavedEntry entry = SavedEntry::fromPropertyList(stored);
    EXPECT_EQ(entry.name, u"Home"_s);
    EXPECT_EQ(entry.ssid, QString());
    EXPECT_FALSE(entry.bssid) << "no text";
    EXPECT_FALSE(entry.address);
    EXPECT_EQ(entry.toPropertyList(), stored);

    entry.name = u"Away"_s;
    QVariantMap renamed = stored;
    renamed[savedentry::name] = u"Away"_s;
    EXPECT_EQ(entry.toPropertyList(), renamed);
}

TEST(SavedEntry, IsRecognizedBySSIDWhateverItsMarkHolds)
{
    SavedEntry entry = SavedEntry::fromPropertyList(QVariantMap{{savedentry::ssidDefined, false}});
    EXPECT_TRUE(entry.isSsidDefined());
    entry.setSsidDefined(true);
    EXPECT_EQ(entry.toPropertyList(), (QVariantMap{{savedentry::ssidDefined, true}}));
    entry.setSsidDefined(false);
    EXPECT_FALSE(entry.isSsidDefined());
    EXPECT_TRUE(entry.toPropertyList().isEmpty());
}

TEST(SavedEntry, IsEmptyWhereThereIsNoDictionary)
{
    EXPECT_EQ(SavedEntry::fromPropertyList(u"text"_s), SavedEntry());
}

} // namespace
} // namespace quillon::test
