// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/preferences/DefaultMinutes.h"

#include "base/SettingsKeys.h"
#include "rules/TimerFormatter.h"

namespace quillon {

DefaultMinutes::DefaultMinutes(SettingsStore &settings)
    : m_settings(settings)
    , m_observed(
          settings.addObserver(keys::defaultTimerMinutes, [this](const auto &) { showStored(); }))
{
    showStored();
}

DefaultMinutes::~DefaultMinutes()
{
    m_settings.removeObserver(m_observed);
}

bool DefaultMinutes::edit(const QString &text)
{
    if (!TimerFormatter().isPartialStringValid(text)) {
        return false;
    }
    m_state.update([&text](State &state) { state.text = text; });
    return true;
}

void DefaultMinutes::finish()
{
    const qlonglong minutes = m_state->text.toLongLong();
    const bool isTyped = TimerFormatter().isPartialStringValid(m_state->text);
    if (isTyped && minutes > 0 && minutes != m_settings.getInteger(keys::defaultTimerMinutes)) {
        m_settings.set(keys::defaultTimerMinutes, minutes);
        m_settings.synchronize();
    }
    showStored();
}

void DefaultMinutes::showStored()
{
    const QString stored = QString::number(m_settings.getInteger(keys::defaultTimerMinutes));
    m_state.update([&stored](State &state) { state.text = stored; });
}

} // namespace quillon
