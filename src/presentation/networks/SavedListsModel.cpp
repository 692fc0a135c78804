// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/networks/SavedListsModel.h"

#include "base/SettingsKeys.h"
#include "networks/SavedAddresses.h"
#include "networks/SavedEntries.h"
#include "presentation/networks/RemovedFavorite.h"

#include <algorithm>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

QList<SavedListsModel::Token> tokensOf(
    const SavedEntries &entries, SavedField keyField, TokenFieldKind field)
{
    QList<SavedListsModel::Token> tokens;
    for (auto saved = entries.cbegin(); saved != entries.cend(); ++saved) {
        SavedEntry entry = *saved;
        // What is done to an entry is done under this key, whatever the entry says of itself.
        entry.*keyField = saved.key();
        tokens.append({entry, tokenFieldDisplayStringForRepresentedObject(field, entry)});
    }
    return tokens;
}

QList<SavedListsModel::Token> addressTokens(const SettingsStore &settings, TokenFieldKind field)
{
    return tokensOf(savedEntries(settings, keys::savedAddresses), &SavedEntry::address, field);
}

bool isBeforeIgnoringCase(const SavedListsModel::Token &a, const SavedListsModel::Token &b)
{
    return a.entry.address->compare(*b.entry.address, Qt::CaseInsensitive) < 0;
}

} // namespace

QString tokenFieldDisplayStringForRepresentedObject(TokenFieldKind field, const SavedEntry &entry)
{
    return field == TokenFieldKind::Other ? u"name"_s : entry.name.value_or(QString());
}

bool tokenFieldHasMenuForRepresentedObject(TokenFieldKind field)
{
    return field == TokenFieldKind::SavedNetworks || field == TokenFieldKind::SavedAddresses;
}

SavedListsModel::SavedListsModel(
    SettingsStore &settings, SavedAddresses &savedAddresses, RemovedFavorite &removed)
    : m_settings(settings)
    , m_savedAddresses(savedAddresses)
    , m_removed(removed)
{
    const auto observe = [this](const QString &key, void (SavedListsModel::*reaction)()) {
        m_observed.push_back(
            m_settings.addObserver(key, [this, reaction](const auto &) { (this->*reaction)(); }));
    };
    observe(keys::savedNetworks, &SavedListsModel::refillSavedFields);
    observe(keys::savedAddresses, &SavedListsModel::refillSavedFields);
    observe(keys::savedAddresses, &SavedListsModel::updateFavAddressButton);
    observe(keys::currentInterfaceDict, &SavedListsModel::updateFavAddressButton);
    refillSavedFields();
    updateFavAddressButton();
}

SavedListsModel::~SavedListsModel()
{
    for (const auto token : m_observed) {
        m_settings.removeObserver(token);
    }
}

void SavedListsModel::refillSavedFields()
{
    m_state.update([&](State &state) {
        state.networks = tokensOf(savedEntries(m_settings, keys::savedNetworks), &SavedEntry::bssid,
            TokenFieldKind::SavedNetworks);
        state.addresses = addressTokens(m_settings, TokenFieldKind::SavedAddresses);
    });
}

void SavedListsModel::updateQuickAddressesField()
{
    m_state.update([&](State &state) {
        state.quickAddresses = addressTokens(m_settings, TokenFieldKind::QuickAddresses);
        std::stable_sort(
            state.quickAddresses.begin(), state.quickAddresses.end(), isBeforeIgnoringCase);
    });
}

void SavedListsModel::toggleSoftwarePopover()
{
    if (m_state->softwarePopoverShown) {
        softwarePopoverWillClose();
        return;
    }
    updateFavAddressButton();
    m_state.update([&](State &state) { state.softwarePopoverShown = true; });
}

void SavedListsModel::softwarePopoverWillClose()
{
    m_state.update([&](State &state) { state.softwarePopoverShown = false; });
}

void SavedListsModel::updateFavAddressButton()
{
    m_state.update([&](State &state) {
        state.favorite = favoriteAddressButton(m_savedAddresses.isCurrentAddressSaved());
    });
}

void SavedListsModel::chooseFavoriteButton()
{
    if (m_state->favorite.removes) {
        m_removed.remember(m_savedAddresses.removeCurrentAddressFromSavedList());
    } else if (!m_removed.putBack(keys::savedAddresses, m_savedAddresses.currentAddress())) {
        // Otherwise it was removed just now, and keeps its name.
        m_savedAddresses.addCurrentAddressToSavedList();
    }
}

} // namespace quillon
