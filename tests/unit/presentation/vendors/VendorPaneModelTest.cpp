// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "unit/vendors/VendorFixture.h"

namespace quillon::test {
namespace {

using ::testing::ElementsAre;

using VendorPaneModelTest = VendorFixture;

TEST_F(VendorPaneModelTest, IsIdleAtFirst)
{
    EXPECT_EQ(pane.state().action, VendorPaneModel::Action::StartDownload);
    EXPECT_EQ(pane.state().buttonTitle, QLatin1String("Update database"));
    EXPECT_FALSE(pane.state().progressShown);
}

TEST_F(VendorPaneModelTest, ShowsWhatTheSettingsRemember)
{
    settings.set(keys::vendorCountValue, 32530);
    settings.set(keys::vendorIDUpdatedDate, QStringLiteral("Yesterday (added 3 new Identifiers)"));
    pane.showStoredTexts();
    EXPECT_EQ(pane.state().vendorCount, QLatin1String("32530 Vendor Identifiers"));
    EXPECT_EQ(pane.state().updatedLabel,
        QLatin1String("Last Updated: Yesterday (added 3 new Identifiers)"));
}

TEST_F(VendorPaneModelTest, ShowsTheNullMarkerForADateThatIsNotThere)
{
    pane.showStoredTexts();
    EXPECT_EQ(pane.state().vendorCount, QLatin1String("0 Vendor Identifiers"));
    EXPECT_EQ(pane.state().updatedLabel, QLatin1String("Last Updated: (null)"));
    settings.set(keys::vendorIDUpdatedDate, 7);
    pane.showStoredTexts();
    EXPECT_EQ(pane.state().updatedLabel, QLatin1String("Last Updated: (null)"));
}

TEST_F(VendorPaneModelTest, ShowsTheFirstCountAsItGoes)
{
    makeDatabase(files.seed, registryOf(3));
    count.createSupportFolderAndVendorDatabase();
    EXPECT_THAT(
        takeCounts(), ElementsAre("Getting Vendor Identifier count...", "3 Vendor Identifiers"));
    EXPECT_EQ(pane.state().updatedLabel, QLatin1String("(null) (added 3 new Identifiers)"));
}

TEST_F(VendorPaneModelTest, SaysNothingWhenNothingChanges)
{
    pane.showStoredTexts();
    int changes = 0;
    QObject::connect(&pane, &VendorPaneModel::changed, [&changes] { ++changes; });
    pane.showStoredTexts();
    pane.resetDownloadButton();
    EXPECT_EQ(changes, 0);
}

} // namespace
} // namespace quillon::test
