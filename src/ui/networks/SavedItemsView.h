// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "presentation/networks/SavedListsModel.h"

#include <QWidget>

class QVBoxLayout;

namespace quillon {

class SavedAddressPopover;
class SavedEntryPopoverModel;
class SavedNetworkPopover;
class Theme;
class TokenField;

/// The saved networks and the saved addresses, a card of tokens each; a token opens the popover
/// that edits it.
class SavedItemsView : public QWidget
{
    Q_OBJECT

public:
    struct Models
    {
        SavedListsModel &lists;
        SavedEntryPopoverModel &popover;
    };

    SavedItemsView(const Models &models, const Theme &theme, QWidget *parent = nullptr);

    /// Closes what is open; a name that is being typed is saved.
    void endEditing();

private:
    TokenField *makeTokens(
        QVBoxLayout &column, TokenFieldKind kind, const QString &title, const QString &emptyText);
    void choose(TokenFieldKind kind, const TokenField &tokens, int index);
    void refreshTokens();
    void refreshPopover();

    Models m_models;
    TokenField *m_networks = nullptr;
    TokenField *m_addresses = nullptr;
    SavedNetworkPopover *m_networkPopover = nullptr;
    SavedAddressPopover *m_addressPopover = nullptr;
};

} // namespace quillon
