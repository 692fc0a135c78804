// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/rules/RuleFormModel.h"

#include "base/Localized.h"
#include "base/SettingsKeys.h"
#include "devices/DeviceTable.h"
#include "networks/SavedAddresses.h"
#include "networks/SavedNetworks.h"
#include "networks/SpecialNetworks.h"
#include "networks/WiFiRecord.h"
#include "presentation/rules/NewAddress.h"
#include "rules/RuleActions.h"
#include "rules/RuleSentence.h"
#include "rules/TimerFormatter.h"

#include <algorithm>

namespace quillon {

namespace {

constexpr int leastMinutes = 1;
constexpr int mostMinutes = 999;

bool isPlace(qsizetype place, const RuleChoices &choices)
{
    return place >= 0 && place < choices.size();
}

bool isRandomChosen(const RuleFormModel::State &state)
{
    return state.addresses.at(state.address).kind == RuleChoice::Kind::Fallback;
}

/// A name is one line in every list.
QString oneLine(QString text)
{
    for (QChar &letter : text) {
        if (letter.category() == QChar::Other_Control || letter == QChar::LineSeparator ||
            letter == QChar::ParagraphSeparator) {
            letter = u' ';
        }
    }
    return text;
}

} // namespace

RuleFormModel::RuleFormModel(const Collaborators &collaborators)
    : m_deps(collaborators)
{
    for (const QString &key : {keys::savedNetworks, keys::savedAddresses, keys::currentWiFiDict,
             keys::currentInterfaceDict, keys::deviceDict}) {
        m_observed.push_back(m_deps.settings.addObserver(key, [this](const auto &) { refill(); }));
    }
}

RuleFormModel::~RuleFormModel()
{
    for (const auto token : m_observed) {
        m_deps.settings.removeObserver(token);
    }
}

void RuleFormModel::resetAllRuleValues(Kind kind)
{
    m_lost = {};
    const QString vendor = randomAddressTitle();
    edit([&](State &state) {
        state = {};
        state.kind = kind;
        state.isOpen = true;
        state.devices = ruleDevices(m_deps.devices);
        state.addresses = ruleAddresses(m_deps.settings);
        refillNetworks(state);
        state.minutes = QString::number(defaultMinutes());
        state.vendor = vendor;
    });
    Q_EMIT vendorFilled(vendor);
    publishNetwork();
}

void RuleFormModel::fill(const RuleValues &rule)
{
    edit([&](State &state) {
        state = {};
        state.kind = rule.isLogin ? Kind::Login : Kind::Network;
        state.isOpen = true;
        state.isNew = false;
        state.name = oneLine(rule.name);
        state.devices = ruleDevices(m_deps.devices);
        state.device = placeOfStored(state.devices, rule.device);
        refillNetworks(state);
        state.network = placeOfStored(state.networks, rule.network);
        state.addresses = ruleAddresses(m_deps.settings);
        state.address = placeOfStored(state.addresses, rule.address);
        state.action = rule.action == Rule::changeAddress ? Rule::changeAddress : Rule::doNothing;
        state.repeat = rule.changeAction == Rule::every ? Rule::every : Rule::once;
        state.minutes = QString::number(std::clamp(rule.timerMins, leastMinutes, mostMinutes));
        state.vendor = rule.vendor;
        const bool lostAddress = state.address == 0 && !isRandomAddress(rule.address);
        const bool lostNetwork =
            state.network == 0 && rule.network != anyNetwork && rule.network != anUnknownNetwork;
        const bool lostDevice = state.devices.at(state.device).stored != rule.device;
        m_lost = {lostDevice ? rule.device : QString(),
            lostNetwork && !rule.isLogin ? (rule.ssid.isEmpty() ? rule.network : rule.ssid)
                                         : QString(),
            lostAddress ? rule.address : QString()};
    });
    m_source = rule;
    Q_EMIT vendorFilled(rule.vendor);
    m_filled = values();
    publishNetwork();
}

void RuleFormModel::followRule(const RuleValues &rule)
{
    if (rule != m_source && values() == m_filled) {
        fill(rule);
    }
}

void RuleFormModel::close()
{
    m_state.update([](State &state) { state.isOpen = false; });
    m_deps.settings.set(keys::editingRuleNetwork, {});
    m_deps.settings.synchronize();
}

RuleValues RuleFormModel::valuesOf(const State &state) const
{
    RuleValues values;
    values.name = state.name;
    values.device = state.devices.at(state.device).stored;
    values.address = state.addresses.at(state.address).stored;
    values.vendor = state.vendor;
    if (state.kind == Kind::Login) {
        values.isLogin = true;
        values.action = Rule::notChosen;
        values.changeAction = Rule::notChosen;
        values.timerMins = defaultMinutes();
        return values;
    }
    const RuleChoice &network = state.networks.at(state.network);
    values.network = network.stored;
    values.ssid = network.ssid;
    values.ssidDefined = network.ssidDefined;
    values.action = state.action;
    values.changeAction = state.repeat;
    values.timerMins =
        state.minutes.isEmpty() ? defaultMinutes() : std::max(state.minutes.toInt(), leastMinutes);
    return values;
}

void RuleFormModel::refill()
{
    if (!state().isOpen) {
        return;
    }
    edit([this](State &state) {
        const QString device = state.devices.at(state.device).stored;
        const QString address = state.addresses.at(state.address).stored;
        state.devices = ruleDevices(m_deps.devices);
        state.device = placeOfStored(state.devices, device);
        refillNetworks(state);
        state.addresses = ruleAddresses(m_deps.settings);
        state.address = placeOfStored(state.addresses, address);
    });
    publishNetwork();
}

void RuleFormModel::refillNetworks(State &state) const
{
    const RuleChoice before = state.networks.at(state.network);
    const QString device = state.devices.at(state.device).stored;
    state.networks = ruleNetworks(m_deps.settings, m_deps.devices, device);
    state.network = placeOfStored(state.networks, before.stored);
    if (before.kind == RuleChoice::Kind::Unsaved) {
        // Its heart was pressed, or it is still the only one.
        const auto same = std::ranges::find(state.networks, before.kind, &RuleChoice::kind);
        state.network =
            same != state.networks.end()
                ? same - state.networks.begin()
                : placeOfStored(state.networks, WiFiRecord::stored(m_deps.settings).bssid);
    }
}

void RuleFormModel::follow(State &state) const
{
    const bool changes = state.kind == Kind::Login || state.action != Rule::doNothing;
    state.canSelectAddress = changes;
    state.canSelectVendor = changes && isRandomChosen(state);
    state.canChooseTimerMins =
        state.kind == Kind::Network && state.canSelectVendor && state.repeat == Rule::every;
    state.canSaveNetwork = !WiFiRecord::stored(m_deps.settings).bssid.isEmpty() &&
                           !m_deps.savedNetworks.isCurrentNetworkSaved();
    state.canSaveAddress = !m_deps.savedAddresses.currentAddress().isEmpty() &&
                           !m_deps.savedAddresses.isCurrentAddressSaved();
    state.sentence = ruleSentence(valuesOf(state), RuleNames::of(m_deps.settings, m_deps.devices));
    state.notice = notice(state);
}

QString RuleFormModel::notice(const State &state) const
{
    const RuleChoice &network = state.networks.at(state.network);
    if (network.kind == RuleChoice::Kind::Unsaved) {
        return filled(localized("%@ is not saved: press its heart first."), {network.title});
    }
    if (!m_lost.device.isEmpty()) {
        return filled(
            localized("The rule was made for %@, which is not here any more."), {m_lost.device});
    }
    for (const QString &lost : {m_lost.network, m_lost.address}) {
        if (!lost.isEmpty()) {
            return filled(
                localized("The rule was made for %@, which is not saved any more."), {lost});
        }
    }
    return {};
}

void RuleFormModel::setName(const QString &text)
{
    edit([&](State &state) { state.name = oneLine(text); });
}

void RuleFormModel::deviceSelectionChanged(qsizetype place)
{
    if (!isPlace(place, state().devices)) {
        return;
    }
    m_lost.device.clear();
    edit([&](State &state) {
        state.device = place;
        refillNetworks(state);
    });
    publishNetwork();
}

void RuleFormModel::changeNetwork(qsizetype place)
{
    if (!isPlace(place, state().networks)) {
        return;
    }
    m_lost.network.clear();
    edit([&](State &state) { state.network = place; });
    publishNetwork();
}

void RuleFormModel::actionSelectionChanged(int place)
{
    edit([&](State &state) { state.action = place; });
}

void RuleFormModel::addressSelectionChanged(qsizetype place)
{
    if (!isPlace(place, state().addresses)) {
        return;
    }
    m_lost.address.clear();
    edit([&](State &state) { state.address = place; });
}

void RuleFormModel::timerSelectionChanged(int place)
{
    edit([&](State &state) { state.repeat = place; });
}

void RuleFormModel::setMinutes(const QString &text)
{
    if (TimerFormatter().isPartialStringValid(text)) {
        edit([&](State &state) { state.minutes = text; });
    }
}

void RuleFormModel::setVendor(const QString &text)
{
    edit([&](State &state) { state.vendor = text; });
}

void RuleFormModel::controlTextDidEndEditing()
{
    edit([](State &state) {
        if (state.minutes.toInt() == 0) {
            state.minutes = QString::number(leastMinutes);
        }
    });
}

void RuleFormModel::saveCurrentNetwork()
{
    m_deps.savedNetworks.addCurrentNetworkToSavedList();
}

void RuleFormModel::saveCurrentAddress()
{
    m_deps.savedAddresses.addCurrentAddressToSavedList();
}

void RuleFormModel::makeAddress()
{
    const QString device = state().devices.at(state().device).stored;
    const QString address = newAddress(m_deps.random, device, state().vendor);
    if (address.isEmpty()) {
        return;
    }
    saveNewAddress(m_deps.settings, address, nameForAddress());
    addressSelectionChanged(placeOfStored(state().addresses, address));
}

QString RuleFormModel::nameForAddress() const
{
    const RuleChoice &network = state().networks.at(state().network);
    const bool hasNetwork =
        state().kind == Kind::Network &&
        (network.kind == RuleChoice::Kind::Saved || network.kind == RuleChoice::Kind::Unsaved);
    if (hasNetwork && !network.title.isEmpty()) {
        return network.title;
    }
    return state().name.isEmpty() ? state().devices.at(state().device).title : state().name;
}

int RuleFormModel::defaultMinutes() const
{
    return static_cast<int>(std::clamp(m_deps.settings.getInteger(keys::defaultTimerMinutes),
        qlonglong(leastMinutes), qlonglong(mostMinutes)));
}

void RuleFormModel::publishNetwork()
{
    if (state().kind != Kind::Network || !state().isOpen) {
        return;
    }
    const RuleChoice &network = state().networks.at(state().network);
    const QString bssid = network.kind == RuleChoice::Kind::Saved ? network.stored : anyNetwork;
    if (m_deps.settings.getString(keys::editingRuleNetwork) != bssid) {
        m_deps.settings.set(keys::editingRuleNetwork, bssid);
        m_deps.settings.synchronize();
    }
}

} // namespace quillon
