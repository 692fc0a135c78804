// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/EventWiring.h"
#include "app/LaunchSequence.h"
#include "app/UserNotifications.h"
#include "app/features/HistoryFeature.h"
#include "app/features/NetworkFeature.h"
#include "app/features/RuleFeature.h"
#include "app/features/VendorFeature.h"
#include "devices/AddressChanger.h"
#include "devices/CurrentInterface.h"
#include "devices/DeviceTable.h"
#include "devices/RandomAddress.h"
#include "helperlink/XPCMethods.h"
#include "platform/Platform.h"
#include "presentation/menu/StatusMenuModel.h"
#include "presentation/preferences/AdvancedPreferencesModel.h"
#include "presentation/window/MainWindowModel.h"
#include "presentation/window/Presence.h"

namespace quillon {

/// Owns the program's components and runs their life. It hands out exactly what the user interface
/// mirrors; no component receives it. Main thread.
class QuillonAppDelegate
{
public:
    /// Before the first instance is made: registers the packaged defaults. None registers nothing.
    static void initialize(SettingsStore &settings, const QVariantMap &packagedDefaults);

    explicit QuillonAppDelegate(const Platform &platform);

    LaunchSequence &launch() { return m_launch; }
    MainWindowModel &mainWindow() { return m_mainWindow; }
    StatusMenuModel &statusMenu() { return m_statusMenu; }
    AdvancedPreferencesModel &advancedPreferences() { return m_advancedPreferences; }
    Presence &presence() { return m_presence; }
    HistoryFeature &records() { return m_records; }
    NetworkFeature &networks() { return m_networks; }
    RuleFeature &rules() { return m_rules; }
    VendorFeature &vendors() { return m_vendors; }
    Notifier &userNotifications() { return m_userNotifications; }
    EventWiring &wiring() { return m_wiring; }

    // The main window's actions.
    void randomizeAddress();
    void changeMacAddress();
    void restoreDefaultAddress();
    void installHelper();
    void changeInterfacefromPopup(const QString &title);

private:
    UserNotifications m_userNotifications;
    XPCMethods m_helper;
    DeviceTable m_devices;
    CurrentInterface m_currentInterface;
    AddressChanger m_addressChanger;
    RandomAddress m_randomAddress;
    HistoryFeature m_records;
    NetworkFeature m_networks;
    RuleFeature m_rules;
    VendorFeature m_vendors;
    MainWindowModel m_mainWindow;
    StatusMenuModel m_statusMenu;
    AdvancedPreferencesModel m_advancedPreferences;
    Presence m_presence;
    EventWiring m_wiring;
    LaunchSequence m_launch;
};

} // namespace quillon
