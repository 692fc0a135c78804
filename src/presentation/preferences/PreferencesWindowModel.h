// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "presence/Destination.h"
#include "presentation/preferences/PreferencesPane.h"

#include <QObject>
#include <QVariantMap>

namespace quillon {

class NotificationCenter;
class SettingsStore;

/// Which pane of the preferences is shown, and the ways that lead there. Main thread.
class PreferencesWindowModel : public QObject
{
    Q_OBJECT

public:
    /// The inner tabs of the rules' pane, as `customTabIndex` has them.
    enum class RulesTab
    {
        SavedItems = 0,
        Rules = 1,
    };

    PreferencesWindowModel(SettingsStore &settings, NotificationCenter &notifications);

    PreferencesPane pane() const { return m_pane; }
    /// The user's own choice in the toolbar.
    void showPane(PreferencesPane pane);
    /// The broadcast "changePrefsTab": its `tab` is the identifier of a pane. Others are ignored.
    void changePrefsTab(const QVariantMap &userInfo);

    /// On the pane that was shown last.
    void openPreferencesWindow();
    void aboutQuillon();
    /// The saved networks and addresses.
    void openFavsEditor();
    void openRuleEditor();
    /// Opens what belongs to the preferences; ignores other destinations.
    void goTo(Destination destination);

Q_SIGNALS:
    void paneChanged();
    /// The user wants the window before all others.
    void windowOpened();

private:
    void openPane(PreferencesPane pane);
    void openRulesPane(RulesTab tab);

    SettingsStore &m_settings;
    NotificationCenter &m_notifications;
    PreferencesPane m_pane = PreferencesPane::General;
};

} // namespace quillon
