// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/Shown.h"

#include <QObject>
#include <QString>

namespace quillon {

class CountdownTimers;
class CurrentInterface;

/// What the main window shows of the selected interface's countdown: its text, and the buttons that
/// pause and resume it. Main thread.
class CountdownModel : public QObject
{
    Q_OBJECT

public:
    struct State
    {
        QString label;
        bool buttonsVisible = false;
        bool pauseEnabled = true;
        bool resumeEnabled = true;
        QString identifier; ///< the device that the buttons act on
        /// What was shown is not only out of sight: there is no such countdown any more.
        bool hasEnded = false;

        bool operator==(const State &) const = default;
    };

    CountdownModel(CountdownTimers &timers, const CurrentInterface &currentInterface);

    const State &state() const { return m_state.get(); }

    /// A countdown ticked: shown when it is that of the selected interface.
    void showCountdown(const QString &device, const QString &text, bool isPaused);
    void hideTimerLabel();
    /// Takes the emphasis and the pressed state from both buttons.
    void resetTimerButtons();
    void setTimerButtonStateIsPaused(bool isPaused);

    /// The window's buttons. The chosen one stays disabled until the next tick.
    void pauseCountdownTimer();
    void resumeCountdownTimer();

Q_SIGNALS:
    /// Something in state() changed.
    void changed();
    void timerButtonsReset();

private:
    CountdownTimers &m_timers;
    const CurrentInterface &m_currentInterface;
    Shown<State> m_state{[this] { Q_EMIT changed(); }};
};

} // namespace quillon
