// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/networks/SavedItemsWindow.h"

#include "presence/Presence.h"
#include "ui/networks/FavoriteToast.h"
#include "unit/ui/WindowFixture.h"
#include "unit/ui/networks/SavedItemsFixture.h"

#include <QAction>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

class SavedItemsWindowTest : public SavedItemsFixture
{
protected:
    void trigger(const QKeySequence &keys)
    {
        for (QAction *action : window.actions()) {
            if (action->shortcut() == keys) {
                action->trigger();
                return;
            }
        }
        ADD_FAILURE() << "no such shortcut";
    }

    Presence presence{settings};
    FakeTaskBar taskBar;
    SavedItemsWindow window{{{lists, popoverModel}, removed, presence}, theme, scheduler, taskBar};
};

TEST_F(SavedItemsWindowTest, IsAWindowWithItsTitle)
{
    EXPECT_FALSE(window.isVisible());
    window.bringUp();
    EXPECT_TRUE(window.isVisible());
    EXPECT_EQ(window.windowTitle(), u"Saved Networks and Addresses"_s);
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&window)->role(), QAccessible::Window);
}

TEST_F(SavedItemsWindowTest, IsClosedByItsKeyAndNotByEscape)
{
    window.bringUp();
    QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    QCoreApplication::sendEvent(&window, &escape);
    EXPECT_TRUE(window.isVisible());
    int ends = 0;
    QObject::connect(&presence, &Presence::terminated, [&] { ++ends; });
    trigger(QKeySequence(Qt::CTRL | Qt::Key_W));
    EXPECT_FALSE(window.isVisible());
    EXPECT_EQ(ends, 0) << "the program goes on";
    window.bringUp();
    EXPECT_TRUE(window.isVisible());
}

TEST_F(SavedItemsWindowTest, QuitsTheProgramOrHidesWithIt)
{
    int ends = 0;
    QObject::connect(&presence, &Presence::terminated, [&] { ++ends; });
    window.bringUp();
    trigger(QKeySequence(Qt::CTRL | Qt::Key_Q));
    EXPECT_EQ(ends, 1);
    presence.showMenuBarItem(true);
    presence.setStatusItemAvailable(true);
    settings.set(keys::hideDock, true);
    trigger(QKeySequence(Qt::CTRL | Qt::Key_Q));
    EXPECT_EQ(ends, 1);
    EXPECT_FALSE(window.isVisible());
}

TEST_F(SavedItemsWindowTest, FollowsTheTaskBar)
{
    window.bringUp();
    EXPECT_FALSE(taskBar.skipped);
    presence.showMenuBarItem(true);
    presence.setStatusItemAvailable(true);
    settings.set(keys::hideDock, true);
    presence.updateDock();
    EXPECT_TRUE(taskBar.skipped);
}

TEST_F(SavedItemsWindowTest, ComesToTheFrontWhenTheDockIconComesOrGoes)
{
    QWidget other;
    presence.updateDock();
    EXPECT_FALSE(window.isVisible());
    window.bringUp();
    other.show();
    other.activateWindow();
    QCoreApplication::processEvents();
    ASSERT_FALSE(window.isActiveWindow());
    presence.updateDock();
    QCoreApplication::processEvents();
    EXPECT_TRUE(window.isActiveWindow());
}

TEST_F(SavedItemsWindowTest, SaysWhatWasRemovedInIt)
{
    window.bringUp();
    removed.remember(removeEntry(settings, keys::savedAddresses, address));
    EXPECT_EQ(window.findChild<FavoriteToast *>()->message(), u"Favorite removed"_s);
}

TEST_F(SavedItemsWindowTest, TheTokenWithTheKeyboardIsInSight)
{
    for (int index = 0; index < 60; ++index) {
        saveAddress(u"02:00:00:00:01:%1"_s.arg(index), u"Address %1"_s.arg(index));
    }
    window.bringUp();
    window.activateWindow();
    turn();
    const auto fields = window.findChildren<TokenField *>();
    const TokenField &shown = *fields.last();
    shown.token(0)->setFocus();
    press(Qt::Key_End);
    QWidget *const last = shown.token(static_cast<int>(shown.entries().size()) - 1);
    ASSERT_TRUE(last->hasFocus());
    EXPECT_EQ(last->visibleRegion(), QRegion(last->rect()));
    press(Qt::Key_Home);
    EXPECT_EQ(shown.token(0)->visibleRegion(), QRegion(shown.token(0)->rect()));
}

} // namespace
} // namespace quillon::test
