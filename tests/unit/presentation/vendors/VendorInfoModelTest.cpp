// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/vendors/VendorInfoModel.h"

#include "base/SettingsKeys.h"
#include "fakes/FakeScheduler.h"
#include "fakes/FakeSettingsStore.h"
#include "vendors/VendorLookup.h"

#include <gtest/gtest.h>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

class VendorInfoModelTest : public testing::Test
{
protected:
    FakeScheduler scheduler;
    FakeSettingsStore settings{scheduler};
    VendorInfoModel model{settings};
};

TEST_F(VendorInfoModelTest, ShowsTheFourTextsOfTheLookup)
{
    EXPECT_EQ(model.state(), VendorInfoModel::State{});
    settings.set(
        keys::currentVendorData, QVariantMap{{vendordata::vendorCurrentString, u"APPLICON, INC."_s},
                                     {vendordata::vendorCurrentAddress, u"1 Way\nTown"_s},
                                     {vendordata::vendorCurrentAssignment, u"00005E"_s},
                                     {vendordata::vendorCurrentRegistry, u"MA-L"_s}});
    EXPECT_EQ(model.state().name, u"APPLICON, INC."_s);
    EXPECT_EQ(model.state().address, u"1 Way\nTown"_s);
    EXPECT_EQ(model.state().identifier, u"00005E"_s);
    EXPECT_EQ(model.state().registry, u"MA-L"_s);
}

TEST_F(VendorInfoModelTest, OpensOnlyWithItsButtonAndGoesWithIt)
{
    model.toggleVendorPopover();
    EXPECT_FALSE(model.state().popoverShown);
    model.showVendorButton(true);
    model.toggleVendorPopover();
    EXPECT_TRUE(model.state().popoverShown);
    model.toggleVendorPopover();
    EXPECT_FALSE(model.state().popoverShown);
    model.toggleVendorPopover();
    model.showVendorButton(false);
    EXPECT_FALSE(model.state().popoverShown);
    model.showVendorButton(true);
    EXPECT_FALSE(model.state().popoverShown) << "it does not come back by itself";
}

} // namespace
} // namespace quillon::test
