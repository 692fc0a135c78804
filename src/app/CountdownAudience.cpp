// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/CountdownAudience.h"

#include "presence/Presence.h"
#include "presentation/menu/MenuModel.h"
#include "presentation/overview/Overview.h"
#include "rules/CountdownTimers.h"

namespace quillon {

CountdownAudience::CountdownAudience(CountdownTimers &timers, const Presence &presence,
    const Overview &overview, std::initializer_list<MenuModel *> menus)
    : m_timers(timers)
    , m_presence(presence)
    , m_overview(overview)
{
    connect(&presence, &Presence::windowInSightChanged, this, &CountdownAudience::follow);
    connect(&overview, &Overview::inSightChanged, this, &CountdownAudience::follow);
    for (const MenuModel *menu : menus) {
        connect(menu, &MenuModel::willOpen, this, [this, menu] {
            m_openMenus.insert(menu);
            follow();
        });
        connect(menu, &MenuModel::didClose, this, [this, menu] {
            m_openMenus.remove(menu);
            follow();
        });
    }
}

void CountdownAudience::follow()
{
    m_timers.setWatched(
        m_presence.isWindowInSight() || m_overview.isInSight() || !m_openMenus.isEmpty());
}

} // namespace quillon
