// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/networks/NewSavedEntryModel.h"

#include "base/Localized.h"
#include "base/SettingsKeys.h"
#include "devices/AddressText.h"

#include <tuple>

namespace quillon {

namespace {

constexpr qsizetype bareDigits = 12;
constexpr qsizetype fullLength = 17;
constexpr qsizetype longestName = 60;

/// Six octets of two digits each.
bool isWholeAddress(const QString &text)
{
    return text.size() == fullLength && isStringValidHEX(text) && isSameAddress(text, text);
}

} // namespace

NewSavedEntryModel::NewSavedEntryModel(SettingsStore &settings, Kind kind)
    : m_settings(settings)
    , m_kind(kind)
    , m_observed(m_settings.addObserver(list(), [this](const auto &) { look(); }))
{
    begin();
}

NewSavedEntryModel::~NewSavedEntryModel()
{
    m_settings.removeObserver(m_observed);
}

const QString &NewSavedEntryModel::list() const
{
    return m_kind == Kind::Address ? keys::savedAddresses : keys::savedNetworks;
}

QString NewSavedEntryModel::key() const
{
    return m_state->address.toLower();
}

void NewSavedEntryModel::begin()
{
    m_state.update([](State &state) { state = {}; });
    look();
}

bool NewSavedEntryModel::editAddress(const QString &text)
{
    if (!m_rules.isPartialStringValid(text)) {
        return false;
    }
    m_state.update([&](State &state) { state.address = text; });
    look();
    return true;
}

void NewSavedEntryModel::editName(const QString &text)
{
    m_state.update([&](State &state) { state.name = text; });
    look();
}

QString NewSavedEntryModel::savedName() const
{
    const SavedEntries entries = savedEntries(m_settings, list());
    for (auto entry = entries.cbegin(); entry != entries.cend(); ++entry) {
        // The history's entries keep the letters of their records.
        if (isSameAddress(entry.key(), m_state->address)) {
            const QString name = entry->name.value_or(QString());
            // A long one would be all that the form says.
            return name.trimmed().isEmpty() || name.size() > longestName ? entry.key() : name;
        }
    }
    // What is no entry stays where it is.
    return isSaved(m_settings, list(), key()) ? key() : QString();
}

std::pair<bool, NewSavedEntryModel::Line> NewSavedEntryModel::verdict(bool isAsked) const
{
    const QString &address = m_state->address;
    const Line::Kind refusal = isAsked ? Line::Kind::Failure : Line::Kind::Hint;
    if (address.size() == bareDigits && !address.contains(u':')) {
        return {false, {Line::Kind::Notice,
                           filled(localized("Write it with colons: %@."), {withColons(address)})}};
    }
    if (!isWholeAddress(address)) {
        return {false, isAsked || address.size() >= fullLength
                           ? Line{Line::Kind::Failure, localized("This is not a MAC address.")}
                           : Line{refusal, localized("A MAC address has 12 hexadecimal digits.")}};
    }
    if (const QString name = savedName(); !name.isEmpty()) {
        return {false, {Line::Kind::Notice, filled(localized("%@ is saved already."), {name})}};
    }
    if (m_kind == Kind::Network && m_state->name.trimmed().isEmpty()) {
        return {false, {refusal, localized("A network needs its name, too.")}};
    }
    if (m_kind == Kind::Address && isGroupAddress(address)) {
        return {true, {Line::Kind::Notice, localized("Group address: most adapters refuse it.")}};
    }
    return {true, {}};
}

void NewSavedEntryModel::look(bool isAsked)
{
    m_state.update([&](State &state) { std::tie(state.canAdd, state.line) = verdict(isAsked); });
}

bool NewSavedEntryModel::add()
{
    look(true);
    if (!m_state->canAdd) {
        return false;
    }
    SavedEntry entry = m_kind == Kind::Address ? SavedEntry::ofAddress(key())
                                               : SavedEntry::ofNetwork(key(), m_state->name);
    if (m_kind == Kind::Address && !m_state->name.trimmed().isEmpty()) {
        // A name that is given is distinct, as after a rename.
        entry.name = distinctName(savedEntries(m_settings, list()), key(), m_state->name, key());
    }
    saveEntry(m_settings, list(), key(), entry);
    Q_EMIT added();
    return true;
}

} // namespace quillon
