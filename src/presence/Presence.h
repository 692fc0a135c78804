// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

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
    /// The setting `hideDock`, unless there is no status item before the user: then the program
    /// could not be reached any more.
    bool isDockIconHidden() const;

    /// Follows `showInMenu`.
    void updateMenu();
    /// Off also switches `hideDock` off, so that the program never loses both.
    void showMenuBarItem(bool shown);
    /// Follows `hideDock`.
    void updateDock();
    /// Whether a desktop shows our status item.
    void setStatusItemAvailable(bool available);

    void openWindow();
    void hideWindow();
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
    void windowHidden();
    void windowClosed();
    void terminated();

private:
    SettingsStore &m_settings;
    bool m_statusItemShown = false;
    bool m_statusItemAvailable = false;
};

} // namespace quillon
