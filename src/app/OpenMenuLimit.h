// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Scheduler.h"

#include <QObject>

#include <optional>

namespace quillon {

class MenuModel;

/// Takes a menu as closed some time after it was opened: many panels say when they open the menu of
/// a status item and never that they closed it. For as long as it counts as open its countdowns
/// wake the program and the panel each second, and nothing else in it is kept up to date. Main
/// thread.
class OpenMenuLimit : public QObject
{
    Q_OBJECT

public:
    OpenMenuLimit(Scheduler &scheduler, MenuModel &menu);

private:
    void begin(MenuModel &menu);
    void end();

    Scheduler &m_scheduler;
    std::optional<Scheduler::Token> m_waiting;
};

} // namespace quillon
