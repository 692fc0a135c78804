// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/networks/SavedListsModel.h"

#include "base/NetworkKeys.h"
#include "base/SettingsKeys.h"
#include "networks/SavedAddresses.h"

#include <algorithm>

namespace quillon {

namespace {

/// What is no dictionary is no token.
QList<SavedListsModel::Token> tokensOf(
    const QVariantMap &list, const QString &keyField, TokenField field)
{
    QList<SavedListsModel::Token> tokens;
    for (auto saved = list.begin(); saved != list.end(); ++saved) {
        if (propertyListType(saved.value()) != PropertyListType::Dictionary) {
            continue;
        }
        QVariantMap entry = saved.value().toMap();
        // What is done to an entry is done under this key, whatever the entry says of itself.
        entry[keyField] = saved.key();
        tokens.append({entry, tokenFieldDisplayStringForRepresentedObject(field, entry)});
    }
    return tokens;
}

bool isBeforeIgnoringCase(const SavedListsModel::Token &a, const SavedListsModel::Token &b)
{
    return a.entry.value(savedentry::address)
               .toString()
               .compare(b.entry.value(savedentry::address).toString(), Qt::CaseInsensitive) < 0;
}

} // namespace

QString tokenFieldDisplayStringForRepresentedObject(TokenField field, const QVariantMap &entry)
{
    return field == TokenField::Other ? savedentry::name : entry.value(savedentry::name).toString();
}

bool tokenFieldHasMenuForRepresentedObject(TokenField field)
{
    return field == TokenField::SavedNetworks || field == TokenField::SavedAddresses;
}

SavedListsModel::SavedListsModel(SettingsStore &settings, SavedAddresses &savedAddresses)
    : m_settings(settings)
    , m_savedAddresses(savedAddresses)
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
    State state = m_state;
    state.networks = tokensOf(m_settings.getDictionary(keys::savedNetworks), savedentry::BSSID,
        TokenField::SavedNetworks);
    state.addresses = tokensOf(m_settings.getDictionary(keys::savedAddresses), savedentry::address,
        TokenField::SavedAddresses);
    update(state);
}

void SavedListsModel::updateQuickAddressesField()
{
    State state = m_state;
    state.quickAddresses = tokensOf(m_settings.getDictionary(keys::savedAddresses),
        savedentry::address, TokenField::QuickAddresses);
    std::stable_sort(
        state.quickAddresses.begin(), state.quickAddresses.end(), isBeforeIgnoringCase);
    update(state);
}

void SavedListsModel::toggleSoftwarePopover()
{
    if (m_state.softwarePopoverShown) {
        softwarePopoverWillClose();
        return;
    }
    updateFavAddressButton();
    State state = m_state;
    state.softwarePopoverShown = true;
    update(state);
}

void SavedListsModel::softwarePopoverWillClose()
{
    State state = m_state;
    state.softwarePopoverShown = false;
    update(state);
}

void SavedListsModel::updateFavAddressButton()
{
    State state = m_state;
    state.favourite = favouriteAddressButton(m_savedAddresses.isCurrentAddressSaved());
    update(state);
}

void SavedListsModel::chooseFavouriteButton()
{
    if (m_state.favourite.removes) {
        m_savedAddresses.removeCurrentAddressFromSavedList();
    } else {
        m_savedAddresses.addCurrentAddressToSavedList();
    }
}

void SavedListsModel::update(const State &state)
{
    if (state == m_state) {
        return;
    }
    m_state = state;
    Q_EMIT changed();
}

} // namespace quillon
