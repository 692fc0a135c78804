// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "presentation/window/MainWindowModel.h"
#include "unit/presentation/DeviceModelsFixture.h"

namespace quillon::test {

/// The window's model on a machine with a wired and a Wi-Fi interface, the wired one selected, and
/// a helper.
class MainWindowModelFixture : public DeviceModelsFixture
{
protected:
    MainWindowModelFixture()
    {
        select(wired);
        model.prepareWindow();
        model.setHelperInstalled(true);
    }

    void select(const QString &device)
    {
        current.updateCurrentInterfaceDict(device);
        scheduler.runPending();
        model.populateSelectionButton();
        model.populateHexField();
        scheduler.runPending();
    }

    const MainWindowModel::State &shown() const { return model.state(); }

    MainWindowModel model{{settings, scheduler, devices, current, changer}};
};

} // namespace quillon::test
