// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "presentation/menu/MenuEntry.h"

namespace quillon {

class AddressChanger;
class CountdownTimers;
class CurrentInterface;
class DeviceTable;
class Presence;
class SettingsStore;
class XPCMethods;

/// What menus show and act upon.
struct MenuCollaborators
{
    const SettingsStore &settings;
    DeviceTable &devices;
    CurrentInterface &currentInterface;
    AddressChanger &addressChanger;
    const XPCMethods &helper;
    Presence &presence;
    CountdownTimers &timers;
};

/// The part that every menu has of each interface, in the order of every list of devices: the
/// interface, its two addresses, its countdown, a separator. Actions find their interface by the
/// titles and their order.
std::vector<MenuEntry> interfaceSections(const MenuCollaborators &collaborators);

/// The key of the entry that shows the countdown of `device`.
QString countdownKey(const QString &device);

/// A separator; `name` tells it from others of its menu.
MenuEntry menuSeparator(const QString &name);

} // namespace quillon
