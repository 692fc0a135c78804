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

#include <QCoreApplication>
#include <QLabel>
#include <QScreen>
#include <gtest/gtest.h>

#include <algorithm>

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

TEST(VendorRowTest, ShowsTheWholeAddressWithoutGrowingWider)
{
    FakeScheduler scheduler;
    FakeSettingsStore settings(scheduler);
    VendorInfoModel model(settings);
    const Theme theme;
    VendorRow row(model, theme);
    const QString address =
        u"Room 1208-09, Research Building, Information Port, No. 1, Xindong Road, Nanshan "
        "District, Shenzhen Shenzhen Guangdong CN 518000, and the rear building"_s;
    ASSERT_GT(address.size(), 120);
    const auto show = [&](const QString &name, const QString &text) {
        settings.set(
            keys::currentVendorData, QVariantMap{{vendordata::vendorCurrentString, name},
                                         {vendordata::vendorCurrentAddress, text},
                                         {vendordata::vendorCurrentAssignment, u"00005E"_s},
                                         {vendordata::vendorCurrentRegistry, u"MA-L"_s}});
        model.showVendorButton(true);
        row.show();
        row.popover().open(row);
        for (int round = 0; round < 5; ++round) {
            QCoreApplication::processEvents();
        }
    };
    const auto saysWhole = [&](const QString &text) {
        const auto labels = row.popover().content()->findChildren<QLabel *>();
        return std::any_of(labels.begin(), labels.end(), [&](const QLabel *label) {
            return label->accessibleName() == text &&
                   QString(label->text()).remove(QChar(0x200B)) == text &&
                   label->height() >= label->heightForWidth(label->width());
        });
    };
    show(u"APPLICON, INC."_s, address);
    const int width = row.popover().width();
    EXPECT_TRUE(saysWhole(address));
    row.popover().close();
    show(QString(120, u'W'), QString(150, u'W'));
    EXPECT_EQ(row.popover().width(), width);
    EXPECT_TRUE(saysWhole(QString(150, u'W')));
    row.popover().close();
    // A registry of whoever made it: it is cut like any message, and does not fill the screen.
    show(QString(5000, u'W'), QString(100'000, u'W'));
    EXPECT_EQ(row.popover().width(), width);
    EXPECT_LT(row.popover().height(), row.screen()->availableGeometry().height());
    row.popover().close();
}

} // namespace
} // namespace quillon::test
