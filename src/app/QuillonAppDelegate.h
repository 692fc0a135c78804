// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "XPCMethods.h"
#include "app/AdvancedPreferencesModel.h"
#include "app/EventWiring.h"
#include "app/LaunchSequence.h"
#include "app/MainWindowModel.h"
#include "app/NetworkRoom.h"
#include "app/Platform.h"
#include "app/Presence.h"
#include "app/RecordRoom.h"
#include "app/RuleRoom.h"
#include "app/StatusMenuModel.h"
#include "app/UserNotifications.h"
#include "app/VendorRoom.h"
#include "devices/AddressChanger.h"
#include "devices/CurrentInterface.h"
#include "devices/DeviceTable.h"
#include "devices/RandomAddress.h"

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
    RecordRoom &records() { return m_records; }
    NetworkRoom &networks() { return m_networks; }
    RuleRoom &rules() { return m_rules; }
    VendorRoom &vendors() { return m_vendors; }
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
    RecordRoom m_records;
    NetworkRoom m_networks;
    RuleRoom m_rules;
    VendorRoom m_vendors;
    MainWindowModel m_mainWindow;
    StatusMenuModel m_statusMenu;
    AdvancedPreferencesModel m_advancedPreferences;
    Presence m_presence;
    EventWiring m_wiring;
    LaunchSequence m_launch;
};

} // namespace quillon
