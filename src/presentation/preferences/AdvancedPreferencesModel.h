// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

namespace quillon {

class Presence;
class Scheduler;
class SettingsStore;
class XPCMethods;

/// The helper's buttons of the advanced preferences: when they are enabled and what they do. The
/// pane mirrors it. Main thread.
class AdvancedPreferencesModel : public QObject
{
    Q_OBJECT

public:
    /// `groupSettings` is the store shared with the helper programs.
    AdvancedPreferencesModel(
        XPCMethods &helper, Presence &presence, SettingsStore &groupSettings, Scheduler &scheduler);

    bool isInstallEnabled() const { return m_installEnabled; }
    bool isUninstallEnabled() const { return m_uninstallEnabled; }

    /// The pane is loaded: the install button waits for the helper's own answer.
    void load();
    /// Also on every appearance of the pane and on "helperStatusChanged".
    void checkButtonStatus();
    /// The program comes to the front when either has ended: a prompt stood before it.
    void installHelper();
    void uninstallHelper();
    /// Removes the keys that the helper programs left in the shared settings.
    void purgeGroupDefaults();

Q_SIGNALS:
    void changed();

private:
    void set(bool installEnabled, bool uninstallEnabled);

    XPCMethods &m_helper;
    Presence &m_presence;
    SettingsStore &m_groupSettings;
    Scheduler &m_scheduler;
    bool m_installEnabled = false;
    bool m_uninstallEnabled = false;
};

} // namespace quillon
