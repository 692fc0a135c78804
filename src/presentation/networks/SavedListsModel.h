// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/Shown.h"
#include "networks/SavedEntry.h"
#include "platform/SettingsStore.h"
#include "presentation/networks/FavoriteButton.h"

#include <QList>
#include <QObject>

#include <vector>

namespace quillon {

class RemovedFavorite;
class SavedAddresses;

/// The fields that show saved entries as tokens; Other stands for any other token field.
enum class TokenFieldKind
{
    SavedNetworks,
    SavedAddresses,
    QuickAddresses,
    Other,
};

/// A token's text: its entry's name; the word "name" in a field that shows no saved entries.
QString tokenFieldDisplayStringForRepresentedObject(TokenFieldKind field, const SavedEntry &entry);
/// Whether choosing a token of the field opens something.
bool tokenFieldHasMenuForRepresentedObject(TokenFieldKind field);

/// What the token fields hold, and the button that keeps the current address among the saved ones.
/// Main thread.
class SavedListsModel : public QObject
{
    Q_OBJECT

public:
    struct Token
    {
        SavedEntry entry; ///< its BSSID or address is the key under which it is saved
        QString text;

        bool operator==(const Token &) const = default;
    };
    struct State
    {
        QList<Token> networks; ///< in the order of their BSSIDs
        QList<Token> addresses;
        QList<Token> quickAddresses; ///< in the order of their addresses, ignoring case
        bool softwarePopoverShown = false;
        FavoriteButton favorite;

        bool operator==(const State &) const = default;
    };

    SavedListsModel(
        SettingsStore &settings, SavedAddresses &savedAddresses, RemovedFavorite &removed);
    ~SavedListsModel() override;

    const State &state() const { return m_state.get(); }

    /// Refills the quick addresses. At the start, and whenever `savedAddresses` changes.
    void updateQuickAddressesField();

    /// The button of the saved addresses was chosen: opens their popover or closes it.
    void toggleSoftwarePopover();
    void softwarePopoverWillClose();

    void updateFavAddressButton();
    /// The favorite button was chosen: does what it says.
    void chooseFavoriteButton();

Q_SIGNALS:
    /// Something in state() changed.
    void changed();

private:
    void refillSavedFields();

    SettingsStore &m_settings;
    SavedAddresses &m_savedAddresses;
    RemovedFavorite &m_removed;
    Shown<State> m_state{[this] { Q_EMIT changed(); }};
    std::vector<SettingsStore::Token> m_observed;
};

} // namespace quillon
