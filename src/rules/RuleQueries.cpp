// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "rules/RuleQueries.h"

#include "base/Log.h"
#include "devices/DeviceTable.h"
#include "networks/SavedNetworks.h"
#include "networks/SpecialNetworks.h"
#include "networks/WiFiRecord.h"
#include "store/RecordStore.h"
#include "store/graph/FetchFailure.h"
#include "store/model/QuillonModel.h"

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

/// A rule's network for a Wi-Fi device that is on none. No rule has it.
const QString noNetwork = u"empty"_s;

RuleList asRules(const ManagedObjectList &objects)
{
    RuleList rules;
    rules.reserve(objects.size());
    for (const ManagedObjectPtr &object : objects) {
        rules.append(Rule(object));
    }
    return rules;
}

} // namespace

RuleQueries::RuleQueries(
    RecordStore &store, const SettingsStore &settings, const DeviceTable &devices)
    : m_store(store)
    , m_settings(settings)
    , m_devices(devices)
{
}

RuleList RuleQueries::managedRuleArrayForDevice(const QString &device) const
{
    FetchRequest request = Rule::fetchRequest();
    if (device != allDevices) {
        request.predicate = Predicate::equal(model::rule::device, device);
    }
    return fetch(request);
}

Predicate RuleQueries::filterPredicateForDevice(const QString &device) const
{
    const Predicate ofDevice = Predicate::equal(model::rule::device, device);
    if (!m_devices.isDeviceWifi(device)) {
        return ofDevice;
    }
    const WiFiRecord wifi = WiFiRecord::stored(m_settings);
    const QString bssid = wifi.bssid.toLower();
    if (bssid.isEmpty() || !wifi.isOf(device)) {
        return Predicate::equal(model::rule::network, noNetwork);
    }
    QList<Predicate> networks = {
        Predicate::equal(model::rule::network, bssid),
        Predicate::equal(model::rule::network, anyNetwork),
        Predicate::all({Predicate::equal(model::rule::ssid, wifi.ssid),
            Predicate::equal(model::rule::ssidDefined, true)}),
    };
    if (!favoriteNetworks(m_settings).contains(bssid) &&
        !ssidFavoriteNetworks(m_settings).contains(wifi.ssid)) {
        networks.append(Predicate::equal(model::rule::network, anUnknownNetwork));
    }
    return Predicate::all({ofDevice, Predicate::any(networks)});
}

RuleList RuleQueries::rules(const Predicate &condition, const QList<SortDescriptor> &order) const
{
    FetchRequest request = Rule::fetchRequest();
    request.predicate = condition;
    request.order = order;
    return fetch(request);
}

Rule RuleQueries::ruleWithID(const QString &objID) const
{
    const ManagedObjectPtr object = m_store.managedObjectContext().objectWithURI(objID);
    // The identity of a history record is no rule's.
    const bool isRule = object && object->entity().name() == model::Rule;
    return isRule ? Rule(object) : Rule();
}

void RuleQueries::updateNamesArray()
{
    m_namesArray.clear();
    const RuleList all = managedRuleArrayForDevice(allDevices);
    for (const Rule &rule : all) {
        m_namesArray.append(rule.name());
    }
}

RuleList RuleQueries::fetch(const FetchRequest &request) const
{
    const Result<ManagedObjectList> found = m_store.managedObjectContext().fetch(request);
    if (!found) {
        logFetchFailure(logRules, found.error());
        return {};
    }
    return asRules(found.value());
}

QVariantMap updateRuledictWithRule(QVariantMap dictionary, const Rule &rule)
{
    if (rule.isNull()) {
        return dictionary;
    }
    const QList<Attribute> &attributes = rule.object()->entity().attributes();
    for (const Attribute &attribute : attributes) {
        const bool isMinutes = attribute.name == model::rule::timerMins;
        const QString key = isMinutes ? timerMinutesKey : attribute.name;
        const QVariant value = rule.object()->value(attribute.name);
        if (value.isValid()) {
            dictionary[key] = value;
        } else {
            dictionary.remove(key);
        }
    }
    return dictionary;
}

} // namespace quillon
