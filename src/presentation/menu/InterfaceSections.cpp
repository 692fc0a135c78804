// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/menu/InterfaceSections.h"

#include "base/Localized.h"
#include "devices/CurrentInterface.h"
#include "devices/DeviceTable.h"
#include "devices/HexValueTransformer.h"
#include "devices/MenuItem.h"
#include "helperlink/XPCMethods.h"
#include "rules/CountdownText.h"
#include "rules/CountdownTimers.h"

#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

using Action = MenuEntry::Action;

const QString indent = u"    "_s;

QString keyOf(const QString &device, const QString &part)
{
    return u"interface "_s + device + u'/' + part;
}

/// Actions find the device behind the first separator of the title.
QString withoutSeparator(QString name)
{
    while (name.contains(titleSeparator)) {
        name.replace(titleSeparator, u" - "_s);
    }
    return name;
}

MenuEntry deviceEntry(
    const QString &device, const DeviceRecord &record, const CurrentInterface &selected)
{
    return {.key = keyOf(device, u"device"_s),
        .title = filled(u"%@ \u00B7 %@"_s, {withoutSeparator(record.shownInterface()), device}),
        .action = Action::ChangeInterface,
        .checked = device == selected.device()};
}

void appendAddresses(std::vector<MenuEntry> &entries, const QString &device,
    const DeviceRecord &record, const MenuCollaborators &with)
{
    const HexValueTransformer displayCase(with.settings);
    const QString hardware = displayCase.transformedValue(record.hardware.value_or(QString()));
    const QString current = displayCase.transformedValue(record.current.value_or(QString()));
    MenuEntry hardwareEntry{.key = keyOf(device, u"hardware"_s),
        .title = filled(localized("%@Hardware Address \u00B7 %@"), {indent, hardware})};
    MenuEntry currentEntry{.key = keyOf(device, u"current"_s),
        .title = filled(localized("%@Current Address \u00B7 %@"), {indent, current})};
    if (with.helper.isHelperInstalled()) {
        hardwareEntry.submenu.push_back({.key = keyOf(device, u"restore"_s),
            .title = localized("Restore"),
            .action = current != hardware ? Action::RestoreAddress : Action::None});
        currentEntry.submenu.push_back({.key = keyOf(device, u"randomize"_s),
            .title = localized("Randomize"),
            .action = Action::RandomizeAddress});
    }
    entries.push_back(std::move(hardwareEntry));
    entries.push_back(std::move(currentEntry));
}

void appendCountdown(
    std::vector<MenuEntry> &entries, const QString &device, CountdownTimers &timers)
{
    const auto countdown = timers.showing(device);
    if (!countdown) {
        return;
    }
    if (countdown->display) {
        entries.push_back(
            {.key = countdownKey(device), .title = countdownMenuTitle(*countdown->display)});
        timers.setMenuItemShown(device, true);
    }
    // Two keys: an item that a desktop still shows never comes to mean the opposite.
    if (countdown->isPaused) {
        entries.push_back({.key = keyOf(device, u"resume"_s),
            .title = filled(localized("%@Resume Timer"), {indent}),
            .action = Action::ResumeTimer,
            .identifier = device});
    } else {
        entries.push_back({.key = keyOf(device, u"pause"_s),
            .title = filled(localized("%@Pause Timer"), {indent}),
            .action = Action::PauseTimer,
            .identifier = device});
    }
}

} // namespace

QString countdownKey(const QString &device)
{
    return keyOf(device, u"countdown"_s);
}

MenuEntry menuSeparator(const QString &name)
{
    return {.key = u"separator "_s + name};
}

std::vector<MenuEntry> interfaceSections(const MenuCollaborators &collaborators)
{
    std::vector<MenuEntry> entries;
    const QStringList devices = collaborators.devices.sortedDevicesArray();
    for (const QString &device : devices) {
        const DeviceRecord record = collaborators.devices.record(device);
        entries.push_back(deviceEntry(device, record, collaborators.currentInterface));
        appendAddresses(entries, device, record, collaborators);
        appendCountdown(entries, device, collaborators.timers);
        entries.push_back(menuSeparator(keyOf(device, u"end"_s)));
    }
    return entries;
}

} // namespace quillon
