// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Scheduler.h"

#include <QObject>

#include <optional>

namespace quillon {

class Notifier;
class Presence;
class SettingsStore;

/// Life while the user has no status item before them: the desktop shows none, its panel crashed or
/// has not started yet, or the setting says so. The program stays within reach then: a hidden
/// window goes to the task bar, minimized, and away again when the status item is back. Where the
/// desktop is the cause the user is told, once until a status item was seen again. Main thread.
class StatusItemAbsence : public QObject
{
    Q_OBJECT

public:
    StatusItemAbsence(
        SettingsStore &settings, Scheduler &scheduler, Notifier &notifier, Presence &presence);

    /// The start is over: a window that is meant to be open is.
    void begin();
    /// The status item or the window was shown or hidden.
    void look();

private:
    void returned();
    void awaitPanel();
    void stopWaiting();
    void takeAsGone();
    void tellOnce();
    void keepInReach();

    SettingsStore &m_settings;
    Scheduler &m_scheduler;
    Notifier &m_notifier;
    Presence &m_presence;
    bool m_hasBegun = false;
    std::optional<Scheduler::Token> m_waiting; ///< for a panel that starts, or starts again
    bool m_isGone = false;                     ///< waited for in vain
    bool m_hasMinimized = false;
};

} // namespace quillon
