// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "devices/HexValueTransformer.h"

#include <QList>
#include <QObject>

#include <vector>

namespace quillon {

class AddressChanger;
class CurrentInterface;
class DeviceTable;
class MenuItem;
class Presence;
class XPCMethods;

/// One line of a menu as it is shown.
struct MenuEntry
{
    enum class Action
    {
        None, ///< shown disabled, unless it has a submenu
        OpenWindow,
        ChangeInterface,
        RestoreAddress,
        RandomizeAddress,
        Quit,
    };

    QString title; ///< empty: a separator
    Action action = Action::None;
    bool checked = false;
    std::vector<MenuEntry> submenu;

    bool isSeparator() const { return title.isEmpty(); }
    bool isEnabled() const { return action != Action::None || !submenu.empty(); }
    bool operator==(const MenuEntry &) const = default;
};

/// The status item's menu: fixed items, then a section per interface, then the quit item. Rebuilt
/// when it is about to open and when what it shows has changed. Main thread.
class StatusMenuModel : public QObject
{
    Q_OBJECT

public:
    struct Collaborators
    {
        const SettingsStore &settings;
        DeviceTable &devices;
        CurrentInterface &currentInterface;
        AddressChanger &addressChanger;
        const XPCMethods &helper;
        Presence &presence;
    };

    explicit StatusMenuModel(const Collaborators &collaborators);

    const std::vector<MenuEntry> &entries() const { return m_entries; }

    /// The menu is about to open: reads the interfaces anew, then rebuilds.
    void menuWillOpen();
    void menuNeedsUpdate();

    /// The user chose the entry at `path`: its index in the menu, then in each submenu. A path or
    /// an entry that is not there, or has no action, is ignored.
    void activate(const QList<int> &path);

Q_SIGNALS:
    /// entries() is not what it was.
    void changed();
    /// The menu is being rebuilt; lists of devices elsewhere follow first.
    void rebuildStarted();

private:
    std::vector<MenuEntry> sectionForDevice(const QString &device) const;
    void act(MenuEntry::Action action, const MenuItem &sender);

    Collaborators m_deps;
    HexValueTransformer m_displayCase;
    std::vector<MenuEntry> m_entries;
};

} // namespace quillon
