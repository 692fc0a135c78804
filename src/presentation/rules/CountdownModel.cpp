// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/rules/CountdownModel.h"

#include "devices/CurrentInterface.h"
#include "rules/CountdownTimers.h"

namespace quillon {

CountdownModel::CountdownModel(CountdownTimers &timers, const CurrentInterface &currentInterface)
    : m_timers(timers)
    , m_currentInterface(currentInterface)
{
}

void CountdownModel::update(const State &state)
{
    if (state != m_state) {
        m_state = state;
        Q_EMIT changed();
    }
}

void CountdownModel::showCountdown(const QString &device, const QString &text, bool isPaused)
{
    if (device != m_currentInterface.device()) {
        return;
    }
    State state = m_state;
    state.label = text;
    state.buttonsVisible = true;
    state.identifier = device;
    update(state);
    setTimerButtonStateIsPaused(isPaused);
}

void CountdownModel::hideTimerLabel()
{
    State state = m_state;
    state.label.clear();
    state.buttonsVisible = false;
    update(state);
}

void CountdownModel::resetTimerButtons()
{
    Q_EMIT timerButtonsReset();
}

void CountdownModel::setTimerButtonStateIsPaused(bool isPaused)
{
    State state = m_state;
    state.pauseEnabled = !isPaused;
    state.resumeEnabled = isPaused;
    update(state);
}

void CountdownModel::pauseCountdownTimer()
{
    State state = m_state;
    state.pauseEnabled = false;
    update(state);
    m_timers.pauseCountdownTimer(m_state.identifier);
}

void CountdownModel::resumeCountdownTimer()
{
    State state = m_state;
    state.resumeEnabled = false;
    update(state);
    m_timers.resumeCountdownTimer(m_state.identifier);
}

} // namespace quillon
