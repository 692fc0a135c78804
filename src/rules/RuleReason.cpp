// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "rules/RuleReason.h"

#include "base/Localized.h"
#include "devices/DeviceTable.h"
#include "networks/SpecialNetworks.h"
#include "networks/WiFiRecord.h"
#include "rules/RuleQueries.h"
#include "rules/RuleSentence.h"

#include <algorithm>

namespace quillon {

namespace {

enum class Reach
{
    ThisNetwork,
    UnknownNetworks,
    AnyNetwork,
};

Reach reachOf(const Rule &rule)
{
    if (rule.network() == anyNetwork) {
        return Reach::AnyNetwork;
    }
    return rule.network() == anUnknownNetwork ? Reach::UnknownNetworks : Reach::ThisNetwork;
}

QString whyAnotherIsInForce(const Rule &rule, const Rule &other)
{
    if (reachOf(rule) == reachOf(other)) {
        return filled(localized("“%@” is in force instead: it was made first."), {other.name()});
    }
    if (reachOf(other) == Reach::UnknownNetworks) {
        return filled(
            localized("“%@” is in force instead: this network is not saved."), {other.name()});
    }
    return filled(
        localized("“%@” is in force instead: it was made for this network."), {other.name()});
}

QString whyNotOnThisNetwork(const Rule &rule, const QString &device, const SettingsStore &settings)
{
    const WiFiRecord wifi = WiFiRecord::stored(settings);
    if (wifi.bssid.isEmpty() || !wifi.isOf(device)) {
        return filled(localized("Not in force: %@ is on no network."), {device});
    }
    if (rule.network() == anUnknownNetwork) {
        return localized("Not in force: the network in use is saved.");
    }
    return localized("Not in force: another network is in use.");
}

} // namespace

QString ruleReason(const Rule &rule, const RuleQueries &queries, const DeviceTable &devices,
    const SettingsStore &settings)
{
    if (rule.isNull()) {
        return {};
    }
    const QString device = rule.device();
    if (!rule.enabled()) {
        return localized("Not in force: it is switched off.");
    }
    if (!devices.contains(device) || devices.isGone(device)) {
        return filled(localized("Not in force: %@ is not here."), {device});
    }
    const DeviceRecord record = devices.record(device);
    const QString shown = deviceString(record, device);
    if (rule.isLogin()) {
        return record.isWifi() ? localized("Not in force: login rules do not act on Wi-Fi.")
                               : localized("In force: it acts when Quillon is started at login.");
    }
    if (rule.active()) {
        return record.isUp() ? localized("In force now.")
                             : filled(localized("In force, but %@ is not connected."), {shown});
    }
    const RuleList considered = queries.rules(queries.filterPredicateForDevice(device));
    if (!considered.contains(rule)) {
        return whyNotOnThisNetwork(rule, device, settings);
    }
    const auto other = std::ranges::find_if(considered,
        [&](const Rule &one) { return one.active() && !one.isLogin() && one.device() == device; });
    // Between a change and its evaluation, none is marked.
    return other == considered.end() ? localized("Not in force now.")
                                     : whyAnotherIsInForce(rule, *other);
}

} // namespace quillon
