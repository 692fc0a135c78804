// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/preferences/BoundSetting.h"

namespace quillon {

BoundSetting::BoundSetting(SettingsStore &settings, const QString &key)
    : m_settings(settings)
    , m_key(key)
    , m_observed(settings.addObserver(key, [this](const auto &) { refresh(); }))
{
    refresh();
}

BoundSetting::~BoundSetting()
{
    m_settings.removeObserver(m_observed);
}

void BoundSetting::set(bool isOn)
{
    if (isUsable() && isOn != m_state->isOn) {
        m_settings.setBool(m_key, isOn);
        m_settings.synchronize();
    }
}

void BoundSetting::setWhyDisabled(const QString &why)
{
    m_state.update([&](State &state) { state.whyDisabled = why; });
}

void BoundSetting::refresh()
{
    m_state.update([this](State &state) { state.isOn = m_settings.getBool(m_key); });
}

} // namespace quillon
