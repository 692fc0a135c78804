// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "unit/ui/window/MainWindowFixture.h"

#include <QCoreApplication>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

class MainWindowPresenceTest : public MainWindowFixture
{
protected:
    MainWindowPresenceTest()
    {
        QObject::connect(&presence, &Presence::terminated, [this] { ++terminations; });
    }

    int terminations = 0;
};

TEST_F(MainWindowPresenceTest, NothingIsMadeForTheDisplayBeforeTheWindowIsShown)
{
    view = std::make_unique<MainWindow>(models(), theme, taskBar);
    presence.showMenuBarItem(true);
    presence.setStatusItemAvailable(true);
    settings.set(keys::hideDock, true);
    presence.updateDock();
    EXPECT_EQ(view->windowHandle(), nullptr);
    EXPECT_FALSE(taskBar.skipped);
    EXPECT_FALSE(view->testAttribute(Qt::WA_SetWindowIcon));
    presence.openWindow();
    EXPECT_TRUE(taskBar.skipped);
    EXPECT_FALSE(view->testAttribute(Qt::WA_SetWindowIcon)) << "the icon delays the window";
    QCoreApplication::processEvents();
    EXPECT_FALSE(view->windowIcon().pixmap(16).isNull());
}

TEST_F(MainWindowPresenceTest, ClosedWithTheStatusItemInSightItOnlyHides)
{
    view->setReachableWhenClosed(true);
    view->close();
    EXPECT_FALSE(view->isVisible());
    EXPECT_EQ(terminations, 0);
    presence.openWindow();
    EXPECT_TRUE(view->isVisible());
}

TEST_F(MainWindowPresenceTest, SaysWhetherItIsOpen)
{
    EXPECT_TRUE(presence.isWindowShown());
    presence.hideWindow();
    EXPECT_FALSE(presence.isWindowShown());
    presence.minimizeWindow();
    EXPECT_TRUE(view->isMinimized());
    EXPECT_TRUE(presence.isWindowShown()) << "in the list of open windows it is in reach";
    presence.openWindow();
    EXPECT_FALSE(view->isMinimized());
}

TEST_F(MainWindowPresenceTest, OnlyAMinimizedWindowGoesWhenTheStatusItemIsBack)
{
    presence.hideMinimizedWindow();
    EXPECT_TRUE(view->isVisible());
    presence.minimizeWindow();
    presence.hideMinimizedWindow();
    EXPECT_FALSE(view->isVisible());
}

TEST_F(MainWindowPresenceTest, ClosedWithNothingElseInSightItEndsTheProgram)
{
    view->close();
    EXPECT_EQ(terminations, 1);
}

TEST_F(MainWindowPresenceTest, TheQuitCommandEndsTheProgram)
{
    view->setReachableWhenClosed(true);
    trigger(Qt::CTRL | Qt::Key_Q);
    EXPECT_EQ(terminations, 1);
}

TEST_F(MainWindowPresenceTest, WithTheDockIconHiddenQuittingOnlyHides)
{
    settings.set(keys::hideDock, true);
    presence.showMenuBarItem(true);
    presence.setStatusItemAvailable(true);
    trigger(Qt::CTRL | Qt::Key_Q);
    EXPECT_EQ(terminations, 0);
    EXPECT_FALSE(view->isVisible());
}

TEST_F(MainWindowPresenceTest, ItComesToTheFrontWhenItIsOpenedOrTheDockIconComesOrGoes)
{
    QWidget other;
    const auto isInFront = [&](const std::function<void()> &act) {
        other.show();
        other.activateWindow();
        QCoreApplication::processEvents();
        EXPECT_FALSE(view->isActiveWindow());
        act();
        QCoreApplication::processEvents();
        return view->isVisible() && !view->isMinimized() && view->isActiveWindow();
    };
    EXPECT_TRUE(isInFront([this] { presence.openWindow(); }));
    EXPECT_TRUE(isInFront([this] { presence.updateDock(); }));
    presence.hideWindow();
    EXPECT_FALSE(isInFront([this] { presence.updateDock(); })) << "one that is not open stays away";
    EXPECT_TRUE(isInFront([this] { presence.openWindow(); }));
    presence.minimizeWindow();
    EXPECT_FALSE(isInFront([this] { presence.updateDock(); }));
}

TEST_F(MainWindowPresenceTest, ItsTaskBarEntryFollowsTheDockIcon)
{
    presence.showMenuBarItem(true);
    presence.setStatusItemAvailable(true);
    EXPECT_FALSE(taskBar.skipped);
    settings.set(keys::hideDock, true);
    presence.updateDock();
    EXPECT_TRUE(taskBar.skipped);
    taskBar.skipped = false;
    presence.hideWindow();
    presence.openWindow();
    EXPECT_TRUE(taskBar.skipped) << "said again each time that the window is shown";
    presence.setStatusItemAvailable(false);
    EXPECT_FALSE(taskBar.skipped);
}

} // namespace
} // namespace quillon::test
