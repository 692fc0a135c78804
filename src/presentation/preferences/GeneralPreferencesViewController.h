// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/desktop/LoginItem.h"
#include "presentation/preferences/BoundSetting.h"
#include "presentation/preferences/PreferencesLine.h"
#include "presentation/preferences/ShortcutRecorder.h"

namespace quillon {

class Presence;
class Scheduler;
class SettingsSync;
class StartAtLoginController;

/// The general preferences: start at login, where the program shows itself, its messages, its hot
/// keys, and the copy in the cloud. Main thread.
class GeneralPreferencesViewController : public QObject
{
    Q_OBJECT

public:
    struct State
    {
        PreferencesLine login;
        PreferencesLine hideDock;
        PreferencesLine cloud;

        bool operator==(const State &) const = default;
    };
    struct Collaborators
    {
        SettingsStore &settings;
        Scheduler &scheduler;
        Presence &presence;
        GlobalHotKeys &hotKeys;
        StartAtLoginController &login;
        LoginItem &loginItem;
        SettingsSync &sync;
    };

    explicit GeneralPreferencesViewController(const Collaborators &collaborators);

    const State &state() const { return m_state.get(); }

    /// The pane is made.
    void load();
    /// The pane appears, or its window got the keyboard again: what is told nobody may have
    /// changed.
    void look();
    /// "helperStatusChanged".
    void refreshKeyButtons();
    /// "icloudUpdated": all is read again and drawn anew. Any thread.
    void refreshView();
    /// The user switched the copy in the cloud: on, it gets the settings of this machine.
    void synciCloud(bool isOn);
    /// What keeps the copy from being the same, if not empty.
    void showTrouble(const QString &trouble);
    /// Whether somebody is signed in to an account.
    void showAccount(bool isThere);

    BoundSetting loginStart;
    BoundSetting hideOnLaunch;
    BoundSetting showInMenu;
    BoundSetting hideDock;
    BoundSetting displayNotifications;
    BoundSetting showButton; ///< of the hot key that shows the window
    BoundSetting randButton; ///< of the one that randomizes
    BoundSetting iCloudSync;
    ShortcutRecorder showRecorder;
    ShortcutRecorder randRecorder;

Q_SIGNALS:
    /// Something in state() changed.
    void changed();
    void viewRefreshed();

private:
    void showLogin();
    void showDock();
    void refreshCloud();

    Collaborators m_deps;
    LoginItem::Desktop m_desktop = LoginItem::Desktop::StartsPrograms; ///< until it is known
    QString m_whyNoAccount;
    QString m_trouble;
    Shown<State> m_state{[this] { Q_EMIT changed(); }};
};

} // namespace quillon
