// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/rules/RuleFormChoices.h"

#include "base/Localized.h"
#include "base/SettingsKeys.h"
#include "devices/DeviceTable.h"
#include "networks/SavedEntries.h"
#include "networks/SpecialNetworks.h"
#include "networks/WiFiRecord.h"
#include "rules/RuleActions.h"
#include "rules/RuleSentence.h"
#include "rules/RuleValues.h"

#include <QHash>

#include <algorithm>

namespace quillon {

namespace {

using Kind = RuleChoice::Kind;

bool isBefore(const RuleChoice &a, const RuleChoice &b)
{
    const int order = a.title.compare(b.title, Qt::CaseInsensitive);
    return order != 0 ? order < 0 : a.stored < b.stored;
}

/// Entries that share a title, or have none, are told apart by what they are.
void tellApart(RuleChoices &choices)
{
    QHash<QString, int> titles;
    for (const RuleChoice &choice : std::as_const(choices)) {
        ++titles[choice.title];
    }
    for (RuleChoice &choice : choices) {
        const bool isUnique = titles.value(choice.title) == 1 && !choice.title.trimmed().isEmpty();
        if (choice.kind == Kind::Saved && !isUnique) {
            choice.detail = choice.stored;
        }
    }
}

qsizetype placeOr0(const RuleChoices &choices, RuleChoices::const_iterator found)
{
    return found == choices.end() ? 0 : found - choices.begin();
}

RuleChoices inOrder(RuleChoices saved)
{
    std::sort(saved.begin(), saved.end(), isBefore);
    return saved;
}

RuleChoices savedNetworks(const SettingsStore &settings)
{
    RuleChoices saved;
    for (const SavedEntry &entry : savedEntries(settings, keys::savedNetworks)) {
        if (const QString bssid = entry.bssid.value_or(QString()); !bssid.isEmpty()) {
            saved.append({entry.name.value_or(QString()), {}, bssid, Kind::Saved, bssid,
                entry.ssid.value_or(QString()), entry.isSsidDefined()});
        }
    }
    return inOrder(std::move(saved));
}

} // namespace

ChosenEntries chosenFor(const RuleValues &rule)
{
    ChosenEntries chosen;
    chosen.device = rule.device;
    if (rule.network == anUnknownNetwork) {
        chosen.network.kind = Kind::UnknownNetwork;
    } else if (rule.network != anyNetwork && !rule.isLogin) {
        chosen.network = {.title = rule.ssid.isEmpty() ? rule.network : rule.ssid,
            .kind = Kind::Saved,
            .bssid = rule.network};
    }
    chosen.address = isRandomAddress(rule.address) ? QString() : rule.address;
    return chosen;
}

RuleChoices ruleDevices(const DeviceTable &devices)
{
    RuleChoices choices;
    const DeviceRecords records = devices.devices();
    for (const QString &device : devices.sortedDevicesArray()) {
        choices.append({deviceString(records.value(device), device), {}, device});
    }
    return choices.isEmpty() ? RuleChoices{RuleChoice{}} : choices;
}

RuleChoices ruleNetworks(
    const SettingsStore &settings, const DeviceTable &devices, const QString &device)
{
    RuleChoices choices{{localized("Any Network"), {}, anyNetwork, Kind::Fallback}};
    if (!devices.isDeviceWifi(device)) {
        return choices;
    }
    choices.append({localized("An Unknown Network"), {}, anUnknownNetwork, Kind::UnknownNetwork});
    const RuleChoices saved = savedNetworks(settings);
    const WiFiRecord wifi = WiFiRecord::stored(settings);
    if (saved.isEmpty() && !wifi.bssid.isEmpty() && wifi.isOf(device)) {
        // Only what is saved can be looked up by its name: the rule is stored for any network.
        choices.append({wifi.name, {}, anyNetwork, Kind::Unsaved, wifi.bssid.toLower()});
    }
    choices.append(saved);
    tellApart(choices);
    return choices;
}

RuleChoices ruleAddresses(const SettingsStore &settings)
{
    RuleChoices saved;
    for (const SavedEntry &entry : savedEntries(settings, keys::savedAddresses)) {
        if (const QString address = entry.address.value_or(QString()); !address.isEmpty()) {
            saved.append({entry.name.value_or(QString()), {}, address});
        }
    }
    RuleChoices choices{{randomAddressTitle(), {}, randomAddressTitle(), Kind::Fallback}};
    choices.append(inOrder(std::move(saved)));
    tellApart(choices);
    return choices;
}

qsizetype placeOfStored(const RuleChoices &choices, const QString &stored)
{
    return placeOr0(choices, std::ranges::find(choices, stored, &RuleChoice::stored));
}

qsizetype placeOfNetwork(const RuleChoices &networks, const RuleChoice &chosen)
{
    return placeOr0(networks, std::ranges::find_if(networks, [&](const RuleChoice &network) {
        return network.bssid == chosen.bssid &&
               (network.kind == chosen.kind || network.kind == Kind::Saved);
    }));
}

} // namespace quillon
