// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/menu/StatusMenuModel.h"

#include "base/Localized.h"
#include "devices/AddressChanger.h"
#include "devices/CurrentInterface.h"
#include "devices/DeviceTable.h"
#include "devices/MenuItem.h"
#include "helperlink/XPCMethods.h"
#include "presence/Presence.h"

#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

const QString indent = u"    "_s;

MenuEntry separator()
{
    return {};
}

void appendItems(MenuItem &menu, const std::vector<MenuEntry> &entries)
{
    for (const MenuEntry &entry : entries) {
        appendItems(menu.append(entry.title), entry.submenu);
    }
}

} // namespace

StatusMenuModel::StatusMenuModel(const Collaborators &collaborators)
    : m_deps(collaborators)
    , m_displayCase(collaborators.settings)
{
}

void StatusMenuModel::menuWillOpen()
{
    m_deps.devices.updateNetWorkInterfaces();
    menuNeedsUpdate();
}

void StatusMenuModel::menuNeedsUpdate()
{
    Q_EMIT rebuildStarted();

    std::vector<MenuEntry> entries;
    entries.push_back({localized("Open Quillon"), MenuEntry::Action::OpenWindow, false, {}});
    entries.push_back(separator());
    const QStringList devices = m_deps.devices.sortedDevicesArray();
    for (const QString &device : devices) {
        for (MenuEntry &entry : sectionForDevice(device)) {
            entries.push_back(std::move(entry));
        }
        entries.push_back(separator());
    }
    entries.push_back(separator());
    entries.push_back({localized("Quit Quillon"), MenuEntry::Action::Quit, false, {}});

    if (entries != m_entries) {
        m_entries = std::move(entries);
        Q_EMIT changed();
    }
}

std::vector<MenuEntry> StatusMenuModel::sectionForDevice(const QString &device) const
{
    const DeviceRecord record = m_deps.devices.record(device);
    const QString hardware = m_displayCase.transformedValue(record.hardware.value_or(QString()));
    const QString current = m_displayCase.transformedValue(record.current.value_or(QString()));
    QString interface = record.interface.value_or(QString());
    if (record.isWifi()) {
        interface = localized(interface);
    }

    MenuEntry deviceEntry;
    deviceEntry.title = filled(u"%@ \u00B7 %@"_s, {interface, device});
    deviceEntry.action = MenuEntry::Action::ChangeInterface;
    deviceEntry.checked = device == m_deps.currentInterface.device();

    MenuEntry hardwareEntry;
    hardwareEntry.title = filled(localized("%@Hardware Address \u00B7 %@"), {indent, hardware});
    MenuEntry currentEntry;
    currentEntry.title = filled(localized("%@Current Address \u00B7 %@"), {indent, current});
    if (m_deps.helper.isHelperInstalled()) {
        const auto restore =
            current != hardware ? MenuEntry::Action::RestoreAddress : MenuEntry::Action::None;
        hardwareEntry.submenu.push_back({localized("Restore"), restore, false, {}});
        currentEntry.submenu.push_back(
            {localized("Randomize"), MenuEntry::Action::RandomizeAddress, false, {}});
    }
    return {deviceEntry, hardwareEntry, currentEntry};
}

void StatusMenuModel::activate(const QList<int> &path)
{
    // A copy: what an action starts may rebuild the menu under the sender.
    const std::vector<MenuEntry> entries = m_entries;
    MenuItem menu{QString()};
    appendItems(menu, entries);

    const MenuItem *item = &menu;
    const std::vector<MenuEntry> *level = &entries;
    MenuEntry::Action action = MenuEntry::Action::None;
    for (const int index : path) {
        if (index < 0 || static_cast<size_t>(index) >= level->size()) {
            return;
        }
        const MenuEntry &entry = (*level)[static_cast<size_t>(index)];
        item = item->items()[static_cast<size_t>(index)].get();
        action = entry.action;
        level = &entry.submenu;
    }

    act(action, *item);
}

void StatusMenuModel::act(MenuEntry::Action action, const MenuItem &sender)
{
    switch (action) {
    case MenuEntry::Action::None:
        break;
    case MenuEntry::Action::OpenWindow:
        m_deps.presence.openWindow();
        break;
    case MenuEntry::Action::ChangeInterface:
        m_deps.currentInterface.changeInterface(sender.title());
        break;
    case MenuEntry::Action::RestoreAddress:
        m_deps.addressChanger.restoreDefaultAddress(sender);
        break;
    case MenuEntry::Action::RandomizeAddress:
        m_deps.addressChanger.randomizeAddress(sender);
        break;
    case MenuEntry::Action::Quit:
        m_deps.presence.quitFromSysMenu();
        break;
    }
}

} // namespace quillon
