// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presence/Presence.h"

#include "base/SettingsKeys.h"
#include "platform/SettingsStore.h"

namespace quillon {

Presence::Presence(SettingsStore &settings)
    : m_settings(settings)
{
}

bool Presence::isDockIconHidden() const
{
    return m_statusItemShown && m_statusItemAvailable && m_settings.getBool(keys::hideDock);
}

void Presence::updateMenu()
{
    showMenuBarItem(m_settings.getBool(keys::showInMenu));
}

void Presence::showMenuBarItem(bool shown)
{
    if (!shown) {
        m_settings.setBool(keys::hideDock, false);
        m_settings.synchronize();
    }
    if (shown != m_statusItemShown) {
        m_statusItemShown = shown;
        Q_EMIT statusItemShownChanged(shown);
        updateDock();
    }
}

void Presence::updateDock()
{
    Q_EMIT dockIconHiddenChanged(isDockIconHidden());
}

void Presence::setStatusItemAvailable(bool available)
{
    if (available != m_statusItemAvailable) {
        m_statusItemAvailable = available;
        updateDock();
    }
}

void Presence::openWindow()
{
    Q_EMIT windowOpened();
}

void Presence::hideWindow()
{
    Q_EMIT windowHidden();
}

void Presence::closeWindow()
{
    Q_EMIT windowClosed();
}

void Presence::quit()
{
    if (isDockIconHidden()) {
        Q_EMIT windowHidden();
    } else {
        Q_EMIT terminated();
    }
}

void Presence::quitFromSysMenu()
{
    Q_EMIT terminated();
}

} // namespace quillon
