// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "face/InterfaceOnFakes.h"
#include "unit/app/ProgramOnFakes.h"

#include <optional>

namespace quillon::test {

/// The whole program with its windows, on a machine and a desktop of fakes; not started yet.
class UserInterfaceFixture : public ProgramOnFakes
{
protected:
    /// Puts program and windows together; nothing has happened yet.
    void createWithWindows()
    {
        create();
        desktop.emplace(features(), machine.scheduler);
    }
    /// Starts it, and lets everything happen that a start brings about.
    void startWithWindows()
    {
        start();
        machine.scheduler.advance(std::chrono::seconds(2));
    }

    std::optional<InterfaceOnFakes> desktop; ///< goes before the program
};

} // namespace quillon::test
