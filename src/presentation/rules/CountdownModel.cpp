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

void CountdownModel::showCountdown(const QString &device, const QString &text, bool isPaused)
{
    if (device != m_currentInterface.device()) {
        return;
    }
    m_state.update([&](State &state) {
        state.label = text;
        state.hasEnded = false;
        state.buttonsVisible = true;
        state.identifier = device;
    });
    setTimerButtonStateIsPaused(isPaused);
}

void CountdownModel::hideTimerLabel()
{
    m_state.update([&](State &state) {
        state.hasEnded = !state.identifier.isEmpty() && !m_timers.showing(state.identifier);
        state.label.clear();
        state.buttonsVisible = false;
    });
}

void CountdownModel::resetTimerButtons()
{
    Q_EMIT timerButtonsReset();
}

void CountdownModel::setTimerButtonStateIsPaused(bool isPaused)
{
    m_state.update([&](State &state) {
        state.pauseEnabled = !isPaused;
        state.resumeEnabled = isPaused;
    });
}

void CountdownModel::pauseCountdownTimer()
{
    m_state.update([&](State &state) { state.pauseEnabled = false; });
    m_timers.pauseCountdownTimer(m_state->identifier);
}

void CountdownModel::resumeCountdownTimer()
{
    m_state.update([&](State &state) { state.resumeEnabled = false; });
    m_timers.resumeCountdownTimer(m_state->identifier);
}

} // namespace quillon
