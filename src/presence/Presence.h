// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "presence/Destination.h"

#include <QObject>
#include <QSet>

namespace quillon {

class SettingsStore;

/// Where the program shows itself: its main window, the status item, the Dock icon (on a desktop
/// with a task bar: the windows' entries there). The user interface mirrors it. Main thread.
class Presence : public QObject
{
    Q_OBJECT

public:
    explicit Presence(SettingsStore &settings);

    bool isStatusItemShown() const { return m_statusItemShown; }
    /// Switched on, and there is a desktop that shows it.
    bool isStatusItemInSight() const { return m_statusItemShown && m_statusItemAvailable; }
    /// Open, be it minimized.
    bool isWindowShown() const { return m_windowShown; }
    /// The setting `hideDock`, unless there is no status item before the user: then the program
    /// could not be reached any more.
    bool isDockIconHidden() const;

    /// Follows `showInMenu`.
    void updateMenu();
    /// Off also switches `hideDock` off, so that the program never loses both.
    void showMenuBarItem(bool shown);
    /// Follows `hideDock`; windows that are open come to the front.
    void updateDock();
    /// Whether a desktop shows our status item.
    void setStatusItemAvailable(bool available);

    void openWindow();
    /// A window for `destination` exists: menus lead there from now on.
    void offer(Destination destination);
    bool isOffered(Destination destination) const { return m_offered.contains(destination); }
    /// Ignored while it is not offered.
    void goTo(Destination destination);
    void hideWindow();
    /// Opens the window no further than into the list of open windows.
    void minimizeWindow();
    /// Hides the window unless the user has taken it up meanwhile.
    void hideMinimizedWindow();
    /// The window was opened or hidden.
    void setWindowShown(bool shown);
    /// Whether there is anything of the window to see: not while it is hidden or minimized. Taken
    /// for granted until the user interface says otherwise.
    bool isWindowInSight() const { return m_windowInSight; }
    void setWindowInSight(bool inSight);
    /// Closes the window in use.
    void closeWindow();
    /// The window's quit command: hides the program when the Dock icon is hidden, else ends it.
    void quit();
    /// The status menu's quit command.
    void quitFromSysMenu();

Q_SIGNALS:
    void statusItemShownChanged(bool shown);
    void dockIconHiddenChanged(bool hidden);
    void windowOpened();
    void destinationChosen(Destination destination);
    void destinationOffered();
    void windowHidden();
    void windowClosed();
    void windowMinimized();
    void minimizedWindowHidden();
    void openWindowsBroughtToFront();
    /// isStatusItemInSight() or isWindowShown() is not what it was.
    void reachChanged();
    void windowInSightChanged();
    void terminated();

private:
    SettingsStore &m_settings;
    QSet<Destination> m_offered;
    bool m_statusItemShown = false;
    bool m_statusItemAvailable = false;
    bool m_windowShown = false;
    bool m_windowInSight = true;
};

} // namespace quillon
