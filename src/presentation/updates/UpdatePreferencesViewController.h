// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/Shown.h"

#include <QObject>
#include <QStringList>

namespace quillon {

class Updater;

/// What the "Updates" pane shows: the settings of the look for new versions, how the last look
/// went, and the version on offer. Main thread.
class UpdatePreferencesViewController : public QObject
{
    Q_OBJECT

public:
    enum class ResultKind
    {
        Muted,
        Positive,
        Notice,
        Danger,
    };
    struct State
    {
        /// Whether this build can look for new versions; if not, there is no look to show.
        bool isAvailable = false;
        /// Why not; empty where it can.
        QString absence;
        /// Whether the settings are offered. They hold for the user's other computers, too.
        bool hasSettings = false;
        bool checkForUpdatesButton = false;
        bool autoInstallButton = false;
        /// Of intervals(); -1 for an interval that is not among them.
        int intervalPopup = -1;
        bool isChecking = false;
        QString lastCheck;
        QString result; ///< of the last look or act; empty when there is nothing to say
        ResultKind resultKind = ResultKind::Muted;
        QString offer; ///< empty without one
        QString offerDetails;
        QString page;
        QString notes; ///< what somebody else wrote; may be empty

        bool operator==(const State &) const = default;
    };

    /// `version` is that of this program.
    UpdatePreferencesViewController(Updater &updater, QString version);

    const State &state() const { return m_state.get(); }
    /// The titles of the pop-up.
    static QStringList intervals();

    /// The pane is loaded: from now on it shows what the updater says.
    void load();
    /// The updater says something else.
    void refresh();

    // The user's acts.
    void tickCheckForUpdates(bool on);
    void tickAutoInstall(bool on);
    void chooseInterval(int index);
    void checkNow();
    void openOffer();

Q_SIGNALS:
    /// Something in state() changed.
    void changed();

private:
    void show();
    void showResult(State &state) const;

    Updater &m_updater;
    const QString m_version;
    bool m_isLoaded = false;
    Shown<State> m_state{[this] { Q_EMIT changed(); }};
};

} // namespace quillon
