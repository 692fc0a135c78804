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
#include "presentation/rules/RuleFormNotice.h"
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
             keys::currentInterfaceDict, keys::deviceDict, keys::defaultTimerMinutes}) {
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
    stopPublishing();
    m_chosen = {};
    const QString vendor = randomAddressTitle();
    edit([&](State &state) {
        state = {};
        state.kind = kind;
        state.isOpen = true;
        offerEntries(state);
        m_chosen.device = state.devices.first().stored;
        state.minutes = QString::number(defaultMinutes());
        state.vendor = vendor;
    });
    Q_EMIT vendorFilled(vendor);
    m_isTouched = false;
    publishNetwork();
}

void RuleFormModel::fill(const RuleValues &rule)
{
    stopPublishing();
    m_source = rule;
    m_chosen = chosenFor(rule);
    edit([&](State &state) {
        state = {};
        state.kind = rule.isLogin ? Kind::Login : Kind::Network;
        state.isOpen = true;
        state.isNew = false;
        state.name = oneLine(rule.name);
        offerEntries(state);
        state.action = rule.action == Rule::changeAddress ? Rule::changeAddress : Rule::doNothing;
        state.repeat = rule.changeAction == Rule::every ? Rule::every : Rule::once;
        state.minutes = QString::number(std::clamp(rule.timerMins, leastMinutes, mostMinutes));
        state.vendor = rule.vendor;
    });
    Q_EMIT vendorFilled(rule.vendor);
    m_isTouched = false;
    publishNetwork();
}

void RuleFormModel::followRule(const RuleValues &rule)
{
    if (rule != m_source && !m_isTouched) {
        fill(rule);
    }
}

void RuleFormModel::close()
{
    m_state.update([](State &state) { state.isOpen = false; });
    stopPublishing();
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
    if (state().isOpen) {
        edit([this](State &state) {
            offerEntries(state);
            followPublished(state);
        });
        publishNetwork();
    }
}

void RuleFormModel::offerEntries(State &state) const
{
    state.devices = ruleDevices(m_deps.devices);
    state.device = placeOfStored(state.devices, m_chosen.device);
    const QString device = state.devices.at(state.device).stored;
    state.networks = ruleNetworks(m_deps.settings, m_deps.devices, device);
    state.network = placeOfNetwork(state.networks, m_chosen.network);
    state.addresses = ruleAddresses(m_deps.settings);
    state.address = placeOfStored(state.addresses, m_chosen.address);
}

/// The form publishes what it shows: a saved network that it does not show was set by another.
void RuleFormModel::followPublished(State &state)
{
    const RuleChoice published{.kind = RuleChoice::Kind::Saved,
        .bssid = m_deps.settings.getString(keys::editingRuleNetwork)};
    const qsizetype place = placeOfNetwork(state.networks, published);
    if (place > 0 && place != state.network) {
        state.network = place;
        m_chosen.network = state.networks.at(place);
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
    state.canSaveRule = !state.devices.at(state.device).stored.isEmpty();
    state.sentence = ruleSentence(valuesOf(state), RuleNames::of(m_deps.settings, m_deps.devices));
    state.notice = ruleFormNotice(state, m_chosen);
}

void RuleFormModel::setName(const QString &text)
{
    touch([&](State &state) { state.name = oneLine(text); });
}

void RuleFormModel::deviceSelectionChanged(qsizetype place)
{
    if (!isPlace(place, state().devices)) {
        return;
    }
    m_chosen.device = state().devices.at(place).stored;
    // A network that was chosen for a radio is chosen again when the user comes back to it.
    touch([&](State &state) { offerEntries(state); });
    publishNetwork();
}

void RuleFormModel::changeNetwork(qsizetype place)
{
    if (!isPlace(place, state().networks)) {
        return;
    }
    m_chosen.network = state().networks.at(place);
    touch([&](State &state) { state.network = place; });
    publishNetwork();
}

void RuleFormModel::actionSelectionChanged(int place)
{
    touch([&](State &state) { state.action = place; });
}

void RuleFormModel::addressSelectionChanged(qsizetype place)
{
    if (!isPlace(place, state().addresses)) {
        return;
    }
    const RuleChoice address = state().addresses.at(place);
    m_chosen.address = address.kind == RuleChoice::Kind::Saved ? address.stored : QString();
    touch([&](State &state) { state.address = place; });
}

void RuleFormModel::timerSelectionChanged(int place)
{
    touch([&](State &state) { state.repeat = place; });
}

void RuleFormModel::setMinutes(const QString &text)
{
    if (TimerFormatter().isPartialStringValid(text)) {
        touch([&](State &state) { state.minutes = text; });
    }
}

void RuleFormModel::setVendor(const QString &text)
{
    // The field tells of every change, also of those that the form has asked for.
    if (text != state().vendor) {
        touch([&](State &state) { state.vendor = text; });
    }
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
    saveNewAddress(m_deps.settings, address, nameForNewAddress(state()));
    addressSelectionChanged(placeOfStored(state().addresses, address));
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

void RuleFormModel::stopPublishing()
{
    if (m_deps.settings.get(keys::editingRuleNetwork).isValid()) {
        m_deps.settings.set(keys::editingRuleNetwork, {});
        m_deps.settings.synchronize();
    }
}

} // namespace quillon
