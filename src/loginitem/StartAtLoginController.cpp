// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "loginitem/StartAtLoginController.h"

#include "base/SettingsKeys.h"
#include "platform/SettingsStore.h"

#include <utility>

namespace quillon {

StartAtLoginController::StartAtLoginController(const SettingsStore &settings, LoginItem &loginItem)
    : m_settings(settings)
    , m_loginItem(loginItem)
{
}

void StartAtLoginController::initLoginController()
{
    if (!std::exchange(m_isMade, true)) {
        m_program = m_loginItem.program();
    }
}

void StartAtLoginController::updateLogin()
{
    initLoginController();
    setStartAtLogin(m_settings.getBool(keys::loginStart));
}

void StartAtLoginController::setStartAtLogin(bool start)
{
    if (!m_program || m_program->identifier.isEmpty() || m_program->url.isEmpty()) {
        return;
    }
    m_startAtLogin = start;
    m_enabled = m_loginItem.setEnabled(m_program->identifier, start);
    Q_EMIT changed();
}

} // namespace quillon
