// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QSet>

#include <initializer_list>

namespace quillon {

class CountdownTimers;
class MenuModel;
class Overview;
class Presence;

/// Lets countdowns tick only while the window, the overview or a menu can show them. Main thread.
class CountdownAudience : public QObject
{
    Q_OBJECT

public:
    CountdownAudience(CountdownTimers &timers, const Presence &presence, const Overview &overview,
        std::initializer_list<MenuModel *> menus);

private:
    void follow();

    CountdownTimers &m_timers;
    const Presence &m_presence;
    const Overview &m_overview;
    QSet<const MenuModel *> m_openMenus;
};

} // namespace quillon
