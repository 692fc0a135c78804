// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QSet>

#include <initializer_list>

namespace quillon {

class CountdownTimers;
class MenuModel;
class Presence;

/// Lets countdowns tick only while the window or a menu can show them. Main thread.
class CountdownAudience : public QObject
{
    Q_OBJECT

public:
    CountdownAudience(CountdownTimers &timers, const Presence &presence,
        std::initializer_list<MenuModel *> menus);

private:
    void follow();

    CountdownTimers &m_timers;
    const Presence &m_presence;
    QSet<const MenuModel *> m_openMenus;
};

} // namespace quillon
