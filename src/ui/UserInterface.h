// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/OtherWindows.h"
#include "ui/menu/FileMenu.h"
#include "ui/menu/StatusItem.h"
#include "ui/rules/RulesRow.h"
#include "ui/theme/Theme.h"
#include "ui/widgets/HeldKeys.h"
#include "ui/window/MainWindow.h"

namespace quillon {

class AppearanceSource;
class Compositing;
class CountdownModel;
class EditMenuModel;
class ExternalAddressModel;
class FileMenuModel;
class NetworkInfoModel;
class RemovedFavorite;
class SavedListsModel;
class TracesModel;
class VendorFieldModel;
class VendorInfoModel;
class VendorPaneModel;

/// Everything that is seen of the program, put together: the look, the main window, the status
/// item. Nothing is shown until Presence says so. Needs a QApplication; main thread.
class UserInterface
{
public:
    struct Models
    {
        MainWindow::Models window;
        StatusMenuModel &statusMenu;
        FileMenuModel &fileMenu;
        EditMenuModel &editMenu;
        SavedListsModel &savedLists;
        RemovedFavorite &removedInMainWindow;
        OtherWindows::Models others;
        NetworkInfoModel &network;
        TracesModel &traces;
        ExternalAddressModel &externalAddress;
        RulesRow::Models rules;
        CountdownModel &countdown;
        VendorFieldModel &vendorField;
        VendorInfoModel &vendorInfo;
        VendorPaneModel &vendorPane;
    };
    struct Desktop
    {
        TrayHost &trayHost;
        TaskBar &taskBar;
        AppearanceSource &appearance;
        const Compositing &compositing;
        Scheduler &scheduler;
    };

    UserInterface(const Models &models, const Desktop &desktop);

private:
    void makeFacts(const Models &models);
    void makeShortcuts(const Models &models);

    Theme m_theme;
    HeldKeys m_heldKeys;
    FileMenu m_fileMenu; ///< outlives the window's button
    MainWindow m_mainWindow;
    OtherWindows m_otherWindows;
    StatusItem m_statusItem;
};

} // namespace quillon
