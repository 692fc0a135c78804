// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "unit/vendors/VendorFixture.h"

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

using ::testing::ElementsAre;

using VendorPaneModelTest = VendorFixture;

TEST_F(VendorPaneModelTest, IsIdleAtFirst)
{
    EXPECT_EQ(pane.state().action, VendorPaneModel::Action::StartDownload);
    EXPECT_EQ(pane.state().buttonTitle, "Update database"_L1);
    EXPECT_FALSE(pane.state().progressShown);
}

TEST_F(VendorPaneModelTest, ShowsWhatTheSettingsRemember)
{
    settings.set(keys::vendorCountValue, 32530);
    settings.set(keys::vendorIDUpdatedDate, u"Yesterday (added 3 new Identifiers)"_s);
    pane.showStoredTexts();
    EXPECT_EQ(pane.state().vendorCount, "32530 Vendor Identifiers"_L1);
    EXPECT_EQ(pane.state().updatedLabel, "Last Updated: Yesterday (added 3 new Identifiers)"_L1);
}

TEST_F(VendorPaneModelTest, ShowsTheNullMarkerForADateThatIsNotThere)
{
    pane.showStoredTexts();
    EXPECT_EQ(pane.state().vendorCount, "0 Vendor Identifiers"_L1);
    EXPECT_EQ(pane.state().updatedLabel, "Last Updated: (null)"_L1);
    settings.set(keys::vendorIDUpdatedDate, 7);
    pane.showStoredTexts();
    EXPECT_EQ(pane.state().updatedLabel, "Last Updated: (null)"_L1);
}

TEST_F(VendorPaneModelTest, ShowsTheFirstCountAsItGoes)
{
    makeDatabase(files.seed, registryOf(3));
    count.createSupportFolderAndVendorDatabase();
    EXPECT_THAT(
        takeCounts(), ElementsAre("Getting Vendor Identifier count...", "3 Vendor Identifiers"));
    EXPECT_EQ(pane.state().updatedLabel, "(null) (added 3 new Identifiers)"_L1);
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
