// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/menu/FileMenu.h"
#include "ui/menu/StatusItem.h"
#include "ui/theme/Theme.h"
#include "ui/window/MainWindow.h"
#include "ui/window/StatusRows.h"

namespace quillon {

class ColorSchemeSource;
class Compositing;
class FileMenuModel;
class VendorFieldModel;
class VendorPaneModel;

/// Everything that is seen of the program, put together: the look, the main window, the status
/// item. Nothing is shown until Presence says so. Needs a QApplication; main thread.
class UserInterface
{
public:
    struct Models
    {
        MainWindowModel &mainWindow;
        StatusMenuModel &statusMenu;
        FileMenuModel &fileMenu;
        Presence &presence;
        StatusRows::Models status;
        VendorFieldModel &vendorField;
        VendorPaneModel &vendorPane;
    };
    struct Desktop
    {
        TrayHost &trayHost;
        TaskBar &taskBar;
        ColorSchemeSource &colorScheme;
        const Compositing &compositing;
    };

    UserInterface(const Models &models, const Desktop &desktop);

private:
    Theme m_theme;
    FileMenu m_fileMenu; ///< outlives the window's button
    MainWindow m_mainWindow;
    StatusItem m_statusItem;
};

} // namespace quillon
