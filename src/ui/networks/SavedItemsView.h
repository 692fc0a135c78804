// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "presentation/networks/SavedListsModel.h"

#include <QWidget>

class QVBoxLayout;

namespace quillon {

class BusyButton;
class HistoryImport;
class NewSavedEntryModel;
class NewSavedEntryPopover;
class SavedAddressPopover;
class SavedEntryPopoverModel;
class SavedNetworkPopover;
class Theme;
class TokenField;

/// The saved networks and the saved addresses, a card of tokens each; a token opens the popover
/// that edits it, and a button at the card's end one that saves another by hand. Below them is what
/// takes them from the history.
class SavedItemsView : public QWidget
{
    Q_OBJECT

public:
    struct Models
    {
        SavedListsModel &lists;
        SavedEntryPopoverModel &popover;
        NewSavedEntryModel &newNetwork;
        NewSavedEntryModel &newAddress;
        HistoryImport &import;
    };

    SavedItemsView(const Models &models, const Theme &theme, QWidget *parent = nullptr);

    /// Closes what is open; a name that is being typed is saved.
    void endEditing();

private:
    /// What one card says of itself.
    struct CardTexts
    {
        QString title;
        QString empty;
        QString add; ///< on its button
        QString addToolTip;
    };

    TokenField *makeCard(
        QVBoxLayout &column, TokenFieldKind kind, const CardTexts &texts, const Theme &theme);
    void makeAddButton(
        QVBoxLayout &card, NewSavedEntryModel &model, const CardTexts &texts, const Theme &theme);
    void makeImportButton(QVBoxLayout &column, const Theme &theme);
    void choose(TokenFieldKind kind, const TokenField &tokens, int index);
    void refreshTokens();
    void refreshPopover();

    Models m_models;
    TokenField *m_networks = nullptr;
    TokenField *m_addresses = nullptr;
    SavedNetworkPopover *m_networkPopover = nullptr;
    SavedAddressPopover *m_addressPopover = nullptr;
    QList<NewSavedEntryPopover *> m_forms;
};

} // namespace quillon
