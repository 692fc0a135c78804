// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/menu/MenuModel.h"

#include "base/Localized.h"
#include "devices/AddressChanger.h"
#include "devices/CurrentInterface.h"
#include "devices/DeviceTable.h"
#include "devices/MenuItem.h"
#include "presence/Presence.h"
#include "rules/CountdownText.h"
#include "rules/CountdownTimers.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

void append(std::vector<MenuEntry> &entries, std::vector<MenuEntry> more)
{
    std::ranges::move(more, std::back_inserter(entries));
}

void appendItems(MenuItem &menu, const std::vector<MenuEntry> &entries)
{
    for (const MenuEntry &entry : entries) {
        appendItems(menu.append(entry.title), entry.submenu);
    }
}

} // namespace

MenuModel::MenuModel(const Collaborators &collaborators)
    : m_deps(collaborators)
{
}

void MenuModel::menuWillOpen()
{
    Q_EMIT willOpen();
    m_isOpen = false;
    m_deps.devices.updateNetWorkInterfaces();
    menuNeedsUpdate();
    m_isOpen = true;
}

void MenuModel::menuDidClose()
{
    m_isOpen = false;
    if (std::exchange(m_isStale, false)) {
        rebuild();
    }
    Q_EMIT didClose();
}

void MenuModel::menuNeedsUpdate()
{
    Q_EMIT rebuildStarted();
    m_isStale = m_isOpen;
    if (!m_isOpen) {
        rebuild();
    }
}

void MenuModel::rebuild()
{
    std::vector<MenuEntry> entries = entriesAbove();
    entries.push_back(menuSeparator(u"above"_s));
    append(entries, interfaceSections(m_deps));
    append(entries, entriesBelow());
    if (entries != m_entries) {
        m_entries = std::move(entries);
        Q_EMIT changed();
    }
}

void MenuModel::showCountdown(const QString &device, const QString &text)
{
    const auto entry = std::ranges::find(m_entries, countdownKey(device), &MenuEntry::key);
    if (!m_isOpen || entry == m_entries.end()) {
        return;
    }
    entry->title = countdownMenuTitle(text);
    m_deps.timers.setMenuItemShown(device, true);
    Q_EMIT retitled(static_cast<int>(std::distance(m_entries.begin(), entry)));
}

MenuEntry MenuModel::entryTo(
    Destination destination, const QString &key, const QString &title) const
{
    const bool isThere = m_deps.presence.isOffered(destination);
    return {.key = key,
        .title = title,
        .action = isThere ? MenuEntry::Action::GoToDestination : MenuEntry::Action::None,
        .destination = destination,
        .hint = isThere ? QString() : localized("Not part of this version yet")};
}

void MenuModel::activate(const QList<int> &path)
{
    // A copy: what an action starts may rebuild the menu under the sender.
    const std::vector<MenuEntry> entries = m_entries;
    MenuItem menu{QString()};
    appendItems(menu, entries);

    const MenuItem *item = &menu;
    const std::vector<MenuEntry> *level = &entries;
    const MenuEntry *chosen = nullptr;
    for (const int index : path) {
        if (index < 0 || static_cast<size_t>(index) >= level->size()) {
            return;
        }
        chosen = &(*level)[static_cast<size_t>(index)];
        item = item->items()[static_cast<size_t>(index)].get();
        level = &chosen->submenu;
    }
    if (chosen != nullptr) {
        // A choice closes a menu everywhere; not every desktop says so.
        menuDidClose();
        act(*chosen, *item);
    }
}

void MenuModel::act(const MenuEntry &entry, const MenuItem &sender)
{
    switch (entry.action) {
    case MenuEntry::Action::None:
        break;
    case MenuEntry::Action::OpenWindow:
        m_deps.presence.openWindow();
        break;
    case MenuEntry::Action::GoToDestination:
        m_deps.presence.goTo(entry.destination);
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
    case MenuEntry::Action::PauseTimer:
        m_deps.timers.pauseCountdownTimer(entry.identifier);
        break;
    case MenuEntry::Action::ResumeTimer:
        m_deps.timers.resumeCountdownTimer(entry.identifier);
        break;
    case MenuEntry::Action::CloseWindow:
        m_deps.presence.closeWindow();
        break;
    case MenuEntry::Action::Quit:
        m_deps.presence.quitFromSysMenu();
        break;
    }
}

} // namespace quillon
