// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/OpenMenuLimit.h"

#include "presentation/menu/MenuModel.h"

#include <utility>

namespace quillon {

namespace {

// Longer than anybody reads a menu.
constexpr std::chrono::milliseconds longestOpen{120'000};

} // namespace

OpenMenuLimit::OpenMenuLimit(Scheduler &scheduler, MenuModel &menu)
    : m_scheduler(scheduler)
{
    connect(&menu, &MenuModel::willOpen, this, [this, &menu] { begin(menu); });
    connect(&menu, &MenuModel::didClose, this, &OpenMenuLimit::end);
}

void OpenMenuLimit::begin(MenuModel &menu)
{
    end();
    m_waiting = m_scheduler.onMainAfter(longestOpen, this, [&menu] { menu.menuDidClose(); });
}

void OpenMenuLimit::end()
{
    if (m_waiting) {
        m_scheduler.cancel(*std::exchange(m_waiting, std::nullopt));
    }
}

} // namespace quillon
