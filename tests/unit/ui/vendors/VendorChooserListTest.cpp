// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "unit/ui/vendors/VendorChooserFixture.h"

#include <QFile>
#include <QScrollBar>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

class VendorChooserListTest : public VendorChooserFixture
{
};

TEST_F(VendorChooserListTest, TheListIsInMemoryOnlyWhileItIsShown)
{
    for (int time = 0; time < 2; ++time) {
        click(*toggle, toggle->rect().center());
        EXPECT_EQ(rows().size(), 6);
        EXPECT_EQ(selected(), u"Random Address"_s);
        press(*text, Qt::Key_Escape);
        QCoreApplication::processEvents();
        EXPECT_EQ(rows(), QStringList());
        EXPECT_FALSE(list.isInMemory());
    }
}

TEST_F(VendorChooserListTest, WhatTheProgramSelectsIsNoChoice)
{
    storeDevice(device, {{record::vendor, u"Zebra (00000D)"_s}});
    int announced = 0;
    const auto told =
        notifications.addObserver(notifications::vendorUpdated, [&](const auto &) { ++announced; });
    choice.setVendorSelectionForDevice(device);
    click(*toggle, toggle->rect().center());
    EXPECT_EQ(selected(), u"Zebra (00000D)"_s);
    offer(registryOf({{"00000D", "Zebra"}, {"00000A", "Appian"}}));
    EXPECT_EQ(selected(), u"Zebra (00000D)"_s);
    notifications.removeObserver(told);
    EXPECT_EQ(announced, 0);
}

TEST_F(VendorChooserListTest, SaysWhyThereIsNothingToChoose)
{
    type(u"xyz"_s);
    EXPECT_EQ(table()->accessibleDescription(), u"No vendor begins with “xyz”."_s);
    EXPECT_EQ(rows(), QStringList());
    const int low = table()->height();
    type(u"a"_s);
    EXPECT_GT(table()->height(), low) << "below the sentence may stand what helps";
    EXPECT_EQ(table()->accessibleDescription(), QString());
    press(*text, Qt::Key_Escape);
    QFile::remove(files.liveDatabase());
    loadList();
    click(*toggle, toggle->rect().center());
    EXPECT_EQ(table()->accessibleDescription(), u"The list of vendors is missing."_s);
}

TEST_F(VendorChooserListTest, HidingTheWindowClosesTheListAndItsMemory)
{
    for (int time = 0; time < 2; ++time) {
        click(*toggle, toggle->rect().center());
        ASSERT_TRUE(list.isInMemory());
        window.hide();
        EXPECT_FALSE(list.isInMemory());
        window.show();
        EXPECT_FALSE(isListShown());
    }
}

TEST_F(VendorChooserListTest, TheOpenedListHasTheChoiceInTheMiddle)
{
    offer(registryOf(400));
    storeDevice(device, {{record::vendor, u"Maker 0000C8 (0000C8)"_s}});
    choice.setVendorSelectionForDevice(device);
    for (int time = 0; time < 2; ++time) {
        click(*toggle, toggle->rect().center());
        ASSERT_TRUE(table()->currentIndex().isValid());
        const int middle = table()->visualRect(table()->currentIndex()).center().y();
        const int height = table()->viewport()->height();
        EXPECT_GT(middle, height / 3);
        EXPECT_LT(middle, height * 2 / 3);
        click(*toggle, toggle->rect().center());
    }
}

TEST_F(VendorChooserListTest, TheListLiesOverTheWindowAndLeavesItsSizeAlone)
{
    // The style is settled once the window has been laid out.
    QCoreApplication::processEvents();
    const QSize size = window.size();
    const QSize wanted = window.sizeHint();
    press(*text, Qt::Key_Down);
    QCoreApplication::processEvents();
    EXPECT_EQ(window.size(), size);
    EXPECT_EQ(window.sizeHint(), wanted);
    EXPECT_TRUE(window.rect().contains(table()->geometry()));
    EXPECT_GT(table()->geometry().top(), text->mapTo(&window, text->rect().bottomLeft()).y());
    EXPECT_EQ(table()->width(), text->width());
    EXPECT_TRUE(
        table()->geometry().intersects(QRect(other->mapTo(&window, QPoint()), other->size())));
    EXPECT_EQ(window.childAt(table()->geometry().center())->parentWidget(), table());
}

TEST_F(VendorChooserListTest, ALongNameShowsItsBeginningAndTellsTheRest)
{
    const QByteArray name(120, 'W');
    offer(registryOf({{"00000F", name}}));
    type(u"w"_s);
    press(*text, Qt::Key_Down);
    const QString entry = QString::fromLatin1(name) + u" (00000F)"_s;
    EXPECT_EQ(saved(), entry);
    EXPECT_EQ(text->text(), QString(95, u'W') + u'…' + QString(15, u'W') + u" (00000F)"_s);
    EXPECT_EQ(selected(), text->text());
    EXPECT_EQ(text->cursorPosition(), 0);
    EXPECT_EQ(text->toolTip(), entry);
    EXPECT_EQ(table()->model()->index(0, 0).data(Qt::ToolTipRole).toString(), entry);
    EXPECT_EQ(table()->textElideMode(), Qt::ElideMiddle) << "the identifier stays in sight";
    EXPECT_EQ(window.width(), 460);
}

TEST_F(VendorChooserListTest, ANameIsShownOnOneLineAndStoredAsItIs)
{
    const QByteArray name = "Two\nLines\xE2\x80\xA8\xE2\x80\xAE"
                            "Apart";
    const QString entry = QString::fromUtf8(name) + u" (00000F)"_s;
    const QString shown = u"Two Lines \uFFFDApart (00000F)"_s;
    offer(registryOf({{"00000F", name}}));
    type(u"t"_s);
    press(*text, Qt::Key_Down);
    EXPECT_EQ(selected(), shown);
    EXPECT_EQ(text->text(), shown);
    EXPECT_EQ(saved(), entry);
    press(*text, Qt::Key_Escape);
    choice.setVendorSelectionForCurrentDevice();
    click(*toggle, toggle->rect().center());
    EXPECT_EQ(selected(), shown) << "the stored choice is found again";
}

TEST_F(VendorChooserListTest, TensOfThousandsOfRowsAreShownAndNarrowed)
{
    offer(registryOf(40'000));
    click(*toggle, toggle->rect().center());
    ASSERT_EQ(table()->model()->rowCount(), 40'001);
    EXPECT_EQ(selected(), u"Random Address"_s);
    EXPECT_EQ(table()->currentIndex().row(), 40'000);
    EXPECT_GT(table()->verticalScrollBar()->value(), 1000) << "the choice is in sight";
    EXPECT_TRUE(table()->viewport()->rect().contains(table()->visualRect(table()->currentIndex())));
    type(u"maker 0001"_s);
    EXPECT_EQ(table()->model()->rowCount(), 256);
    EXPECT_EQ(table()->verticalScrollBar()->value(), 0) << "the best match is in sight";
}

} // namespace
} // namespace quillon::test
