// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/networks/SavedItemsView.h"

#include "unit/ui/networks/SavedItemsFixture.h"

#include <QLabel>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

class SavedItemsViewTest : public SavedItemsFixture
{
protected:
    static QStringList titles(const TokenField &field)
    {
        QStringList titles;
        for (const auto &entry : field.entries()) {
            titles << entry.title;
        }
        return titles;
    }
};

TEST_F(SavedItemsViewTest, ShowsTheTwoListsByTheirNames)
{
    EXPECT_EQ(titles(networks()), (QStringList{u"Home"_s, u"Office"_s}));
    EXPECT_EQ(titles(addresses()), QStringList{u"Printer"_s});
    EXPECT_EQ(addresses().entries().first().text, address) << "as which it is dragged";
}

TEST_F(SavedItemsViewTest, SaysHowSomethingComesInWhereThereIsNothing)
{
    settings.set(keys::savedNetworks, QVariantMap{});
    settings.set(keys::savedAddresses, QVariantMap{});
    QStringList shown;
    for (const auto *label : view.findChildren<QLabel *>()) {
        if (label->isVisible()) {
            shown << label->text();
        }
    }
    EXPECT_EQ(shown, (QStringList{u"Networks"_s, u"Join a network and press its heart."_s,
                         u"Addresses"_s, u"Open the saved addresses and press the heart."_s}));
}

TEST_F(SavedItemsViewTest, OpensThePopoverOfATokenBelowItInTheNextTurn)
{
    token(networks(), 1).click();
    EXPECT_FALSE(popover(networks()).isOpen());
    turn();
    ASSERT_TRUE(popover(networks()).isOpen());
    const QPoint below = token(networks(), 1).mapToGlobal(QPoint(0, token(networks(), 1).height()));
    EXPECT_GE(popover(networks()).geometry().top(), below.y());
    EXPECT_EQ(popover(networks()).accessibleName(), u"Office"_s);
    EXPECT_TRUE(token(networks(), 1).property("open").toBool());
}

TEST_F(SavedItemsViewTest, OpensThePopoverByReturnAndByF2)
{
    token(addresses(), 0).setFocus();
    press(Qt::Key_Return);
    turn();
    EXPECT_TRUE(popover(addresses()).isOpen());
    press(Qt::Key_Escape);
    settle();
    EXPECT_FALSE(popover(addresses()).isOpen());
    EXPECT_TRUE(token(addresses(), 0).hasFocus());
    press(Qt::Key_F2);
    turn();
    EXPECT_TRUE(popover(addresses()).isOpen());
}

TEST_F(SavedItemsViewTest, ATokenKeepsItsPlaceAndTheKeyboardWhenItIsRenamed)
{
    Popover &edited = open(networks(), 0);
    QPushButton *renamed = &token(networks(), 0);
    name(edited).setText(u"Our house"_s);
    press(Qt::Key_Return);
    turn();
    EXPECT_EQ(titles(networks()), (QStringList{u"Our house"_s, u"Office"_s}));
    EXPECT_EQ(&token(networks(), 0), renamed);
    EXPECT_EQ(renamed->accessibleName(), u"Our house"_s);
    EXPECT_TRUE(renamed->hasFocus());
}

TEST_F(SavedItemsViewTest, TheNextTokenHasTheKeyboardWhenOneIsRemoved)
{
    Popover &edited = open(networks(), 0);
    removeButton(edited).click();
    EXPECT_TRUE(edited.isOpen()) << "it closes in the next turn";
    turn();
    EXPECT_FALSE(edited.isOpen());
    EXPECT_EQ(titles(networks()), QStringList{u"Office"_s});
    EXPECT_TRUE(token(networks(), 0).hasFocus());
}

TEST_F(SavedItemsViewTest, WhatIsRemovedElsewhereClosesItsPopover)
{
    Popover &edited = open(networks(), 1);
    name(edited).setText(u"Half typed"_s);
    settings.changeFromOutside(keys::savedNetworks, QVariantMap{});
    turn();
    EXPECT_FALSE(edited.isOpen());
    EXPECT_TRUE(titles(networks()).isEmpty());
    EXPECT_TRUE(settings.getDictionary(keys::savedNetworks).isEmpty()) << "and stays removed";
    EXPECT_EQ(popoverModel.state().open, SavedEntryPopoverModel::Popover::None);
}

TEST_F(SavedItemsViewTest, ItsPopoversCloseWithIt)
{
    Popover &edited = open(networks(), 1);
    view.hide();
    settle();
    EXPECT_FALSE(edited.isOpen());
    EXPECT_EQ(popoverModel.state().open, SavedEntryPopoverModel::Popover::None);
}

} // namespace
} // namespace quillon::test
