// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/vendors/VendorRow.h"

#include "base/SettingsKeys.h"
#include "fakes/FakeScheduler.h"
#include "fakes/FakeSettingsStore.h"
#include "presentation/vendors/VendorInfoModel.h"
#include "ui/theme/Theme.h"
#include "ui/widgets/Popover.h"
#include "vendors/VendorLookup.h"

#include <QLabel>
#include <gtest/gtest.h>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

TEST(VendorRowTest, TellsWhoMadeTheInterface)
{
    FakeScheduler scheduler;
    FakeSettingsStore settings(scheduler);
    VendorInfoModel model(settings);
    const Theme theme;
    VendorRow row(model, theme);
    EXPECT_FALSE(row.hasPopover()) << "nobody is known";
    settings.set(
        keys::currentVendorData, QVariantMap{{vendordata::vendorCurrentString, u"APPLICON, INC."_s},
                                     {vendordata::vendorCurrentAddress, u"1 Way, Town"_s},
                                     {vendordata::vendorCurrentAssignment, u"00005E"_s},
                                     {vendordata::vendorCurrentRegistry, u"MA-L"_s}});
    model.showVendorButton(true);
    EXPECT_TRUE(row.hasPopover());
    EXPECT_EQ(row.value(), u"APPLICON, INC."_s);
    row.click();
    EXPECT_TRUE(model.state().popoverShown);
    QStringList texts;
    for (const auto *label : row.popover().content()->findChildren<QLabel *>()) {
        texts.append(label->text());
    }
    for (const auto &text : {u"APPLICON, INC."_s, u"1 Way, Town"_s, u"00005E"_s, u"MA-L"_s}) {
        EXPECT_TRUE(texts.contains(text)) << text.toStdString();
    }
}

} // namespace
} // namespace quillon::test
