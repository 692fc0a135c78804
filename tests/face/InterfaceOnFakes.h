// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "UserInterfaceModels.h"
#include "fakes/FakeAppearance.h"
#include "fakes/FakeCompositing.h"
#include "fakes/FakeTaskBar.h"
#include "fakes/FakeTrayHost.h"

namespace quillon::test {

/// The user interface of a program, put together as the program itself does it, on a desktop of
/// fakes. `features` and `scheduler` outlive it. Main thread; needs a QApplication.
class InterfaceOnFakes
{
public:
    InterfaceOnFakes(Features &features, Scheduler &scheduler)
        : m_interface(modelsOf(features), {trayHost, taskBar, appearance, compositing, scheduler})
    {
    }

    FakeTrayHost trayHost;
    FakeTaskBar taskBar;
    FakeAppearance appearance;
    FakeCompositing compositing;

private:
    UserInterface m_interface;
};

} // namespace quillon::test
