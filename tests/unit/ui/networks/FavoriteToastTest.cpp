// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/networks/FavoriteToast.h"

#include "unit/ui/networks/SavedItemsFixture.h"

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

class FavoriteToastTest : public SavedItemsFixture
{
protected:
    void remove() { removed.remember(removeEntry(settings, keys::savedAddresses, address)); }

    FavoriteToast *toast = new FavoriteToast(removed, theme, scheduler, &view);
};

TEST_F(FavoriteToastTest, SaysWhatWasRemovedAndHasItBack)
{
    EXPECT_EQ(toast->message(), QString());
    remove();
    EXPECT_EQ(toast->message(), u"Favorite removed"_s);
    toast->findChild<QPushButton *>()->click();
    EXPECT_EQ(savedAddressEntry(address).name, u"Printer"_s);
    EXPECT_EQ(toast->message(), QString());
}

TEST_F(FavoriteToastTest, GoesWhenThereIsNothingToHaveBack)
{
    remove();
    saveAddress(address, u"Theirs"_s);
    EXPECT_EQ(toast->message(), QString());
}

TEST_F(FavoriteToastTest, HasItBackByItsKeyInAPopoverOverItsWindow)
{
    remove();
    open(networks(), 0);
    QKeyEvent key(QEvent::KeyPress, Qt::Key_Z, Qt::ControlModifier);
    QApplication::sendEvent(QApplication::focusWidget(), &key);
    EXPECT_EQ(savedAddressEntry(address).name, u"Printer"_s);
}

TEST_F(FavoriteToastTest, HasThemBackOneAfterTheOther)
{
    const auto undo = [this] {
        QKeyEvent key(QEvent::KeyPress, Qt::Key_Z, Qt::ControlModifier);
        QApplication::sendEvent(&view, &key);
    };
    remove();
    removed.remember(removeEntry(settings, keys::savedNetworks, homeBssid));
    undo();
    EXPECT_FALSE(savedNetwork(homeBssid).isEmpty());
    EXPECT_TRUE(savedAddress(address).isEmpty());
    EXPECT_EQ(toast->message(), u"Favorite removed"_s);
    undo();
    EXPECT_EQ(savedAddressEntry(address).name, u"Printer"_s);
    EXPECT_EQ(toast->message(), QString());
}

TEST_F(FavoriteToastTest, ItsTimeIsThatOfWhatCanBeHadBack)
{
    remove();
    scheduler.advance(Toast::shownFor + std::chrono::milliseconds(100));
    EXPECT_EQ(toast->message(), QString());
    EXPECT_FALSE(removed.entry());
    removed.remember(removeEntry(settings, keys::savedNetworks, homeBssid));
    EXPECT_EQ(toast->message(), u"Favorite removed"_s);
    removed.undo();
    EXPECT_TRUE(savedAddress(address).isEmpty()) << "that is long ago";
}

TEST_F(FavoriteToastTest, IsNotSaidAnewForWhatIsSavedAgain)
{
    remove();
    removed.remember(removeEntry(settings, keys::savedNetworks, homeBssid));
    scheduler.advance(std::chrono::seconds(6));
    EXPECT_TRUE(removed.putBack(keys::savedNetworks, homeBssid));
    EXPECT_EQ(toast->message(), u"Favorite removed"_s) << "the other can still be had back";
    scheduler.advance(std::chrono::seconds(5));
    EXPECT_EQ(toast->message(), QString());
}

} // namespace
} // namespace quillon::test
