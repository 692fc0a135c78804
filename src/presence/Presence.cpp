// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presence/Presence.h"

#include "base/SettingsKeys.h"
#include "platform/SettingsStore.h"

#include <utility>

namespace quillon {

Presence::Presence(SettingsStore &settings)
    : m_settings(settings)
{
}

bool Presence::isDockIconHidden() const
{
    return isStatusItemInSight() && m_settings.getBool(keys::hideDock);
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
        Q_EMIT dockIconHiddenChanged(isDockIconHidden());
        Q_EMIT reachChanged();
    }
}

void Presence::updateDock()
{
    Q_EMIT dockIconHiddenChanged(isDockIconHidden());
    Q_EMIT openWindowsBroughtToFront();
}

void Presence::setStatusItemAvailable(bool available)
{
    if (available != m_statusItemAvailable) {
        m_statusItemAvailable = available;
        Q_EMIT dockIconHiddenChanged(isDockIconHidden());
        Q_EMIT reachChanged();
    }
}

void Presence::openWindow()
{
    Q_EMIT windowOpened();
}

void Presence::offer(Destination destination)
{
    m_offered.insert(destination);
    Q_EMIT destinationOffered();
}

void Presence::goTo(Destination destination)
{
    if (isOffered(destination)) {
        Q_EMIT destinationChosen(destination);
    }
}

void Presence::hideWindow()
{
    Q_EMIT windowHidden();
}

void Presence::minimizeWindow()
{
    Q_EMIT windowMinimized();
}

void Presence::hideMinimizedWindow()
{
    Q_EMIT minimizedWindowHidden();
}

void Presence::setWindowShown(bool shown)
{
    if (shown != m_windowShown) {
        m_windowShown = shown;
        Q_EMIT reachChanged();
    }
}

void Presence::setWindowInSight(bool inSight)
{
    if (std::exchange(m_windowInSight, inSight) != inSight) {
        Q_EMIT windowInSightChanged();
    }
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
