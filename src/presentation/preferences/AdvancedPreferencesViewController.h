// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/Shown.h"

#include <QObject>

namespace quillon {

class Presence;
class Scheduler;
class SettingsStore;
class XPCMethods;

/// The helper in the advanced preferences: whether it is installed, and the buttons that install
/// and uninstall it. Main thread.
class AdvancedPreferencesViewController : public QObject
{
    Q_OBJECT

public:
    enum class Work
    {
        None,
        Installing,
        Uninstalling,
    };
    struct State
    {
        QString status; ///< in the user's language
        bool installEnabled = false;
        bool uninstallEnabled = false;
        Work work = Work::None; ///< asked for and not ended: a prompt may stand before the windows

        bool operator==(const State &) const = default;
    };

    /// `groupSettings` is the store shared with the helper programs.
    AdvancedPreferencesViewController(
        XPCMethods &helper, Presence &presence, SettingsStore &groupSettings, Scheduler &scheduler);

    const State &state() const { return m_state.get(); }

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
    /// Something in state() changed.
    void changed();

private:
    void askVersion();
    void takeVersion(const QString &version);
    void makeAppKey();

    XPCMethods &m_helper;
    Presence &m_presence;
    SettingsStore &m_groupSettings;
    Scheduler &m_scheduler;
    bool m_isLoaded = false;
    Shown<State> m_state{[this] { Q_EMIT changed(); }};
};

} // namespace quillon
