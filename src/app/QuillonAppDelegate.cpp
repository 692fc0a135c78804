// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/QuillonAppDelegate.h"

#include "platform/SettingsStore.h"

namespace quillon {

void QuillonAppDelegate::initialize(SettingsStore &settings, const QVariantMap &packagedDefaults)
{
    if (!packagedDefaults.isEmpty()) {
        settings.registerDefaults(packagedDefaults);
    }
    settings.synchronize();
}

QuillonAppDelegate::QuillonAppDelegate(const Platform &platform)
    : m_userNotifications(platform.settings, platform.scheduler, platform.userNotifications)
    , m_helper(platform.helperLink, platform.scheduler, platform.notifications)
    , m_devices(platform.settings, platform.network, platform.interfaceAddresses)
    , m_currentInterface(platform.settings, platform.scheduler, m_devices)
    , m_addressChanger({platform.settings, platform.scheduler, platform.notifications,
          m_userNotifications, m_helper, m_devices, m_currentInterface})
    , m_randomAddress(platform.random, m_devices,
          [this](const QString &device, const QString &address) {
              m_addressChanger.updateMacAddressWithAddress(device, address);
          })
    , m_records(platform)
    , m_networks(platform, m_devices, m_records.store)
    , m_rules(platform,
          {m_userNotifications, m_devices, m_currentInterface, m_randomAddress, m_addressChanger,
              m_records, m_networks, [this] { return m_launch.startedFromLogin(); }})
    , m_vendors(platform)
    , m_mainWindow(platform.settings, platform.scheduler, m_devices, m_currentInterface)
    , m_statusMenu(platform.settings, m_devices, m_currentInterface,
          [this] { return m_helper.isHelperInstalled(); })
    , m_advancedPreferences(m_helper, platform.groupSettings, platform.scheduler)
    , m_presence(platform.settings)
    , m_wiring(
          platform, {m_helper, m_devices, m_currentInterface, m_randomAddress, m_addressChanger,
                        m_mainWindow, m_statusMenu, m_advancedPreferences, m_presence})
    , m_launch({platform.scheduler, platform.settings, platform.runningApplications, m_helper,
          m_devices, m_currentInterface, m_networks.externalAddress, m_mainWindow, m_presence,
          m_userNotifications, m_wiring})
{
    m_wiring.connectComponents();
    m_records.connectTo(m_wiring, m_launch);
    m_networks.connectTo(m_wiring, m_launch, m_presence);
    m_rules.connectTo(m_wiring, m_launch);
    m_vendors.connectTo(m_wiring, m_launch);
}

void QuillonAppDelegate::randomizeAddress()
{
    m_addressChanger.randomizeAddress(m_randomAddress);
}

void QuillonAppDelegate::changeMacAddress()
{
    m_mainWindow.setFieldText(m_addressChanger.changeMacAddress(m_mainWindow.state().fieldText));
}

void QuillonAppDelegate::restoreDefaultAddress()
{
    m_addressChanger.restoreDefaultAddress();
}

void QuillonAppDelegate::installHelper()
{
    m_helper.installHelper();
}

void QuillonAppDelegate::changeInterfacefromPopup(const QString &title)
{
    m_currentInterface.changeInterfacefromPopup(title);
}

} // namespace quillon
