// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/networks/SavedItemsView.h"

#include "base/Localized.h"
#include "presentation/networks/SavedEntryPopoverModel.h"
#include "ui/networks/SavedAddressPopover.h"
#include "ui/networks/SavedNetworkPopover.h"
#include "ui/theme/Theme.h"
#include "ui/widgets/PlainText.h"
#include "ui/widgets/TokenField.h"

#include <QFrame>
#include <QLabel>
#include <QVBoxLayout>

#include <algorithm>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

using Kind = SavedEntryPopoverModel::Popover;

QList<TokenField::Entry> entriesOf(
    const QList<SavedListsModel::Token> &tokens, std::optional<QString> SavedEntry::*key)
{
    QList<TokenField::Entry> entries;
    for (const auto &token : tokens) {
        entries.append({token.text, (token.entry.*key).value_or(QString())});
    }
    return entries;
}

QWidget *tokenOf(const TokenField &tokens, const QString &key)
{
    const auto &entries = tokens.entries();
    const auto entry = std::ranges::find(entries, key, &TokenField::Entry::text);
    return tokens.token(static_cast<int>(entry - entries.begin()));
}

} // namespace

SavedItemsView::SavedItemsView(const Models &models, const Theme &theme, QWidget *parent)
    : QWidget(parent)
    , m_models(models)
{
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(Theme::spacing);
    m_networks = makeTokens(*column, TokenFieldKind::SavedNetworks, localized("Networks"),
        localized("Join a network and press its heart."));
    m_addresses = makeTokens(*column, TokenFieldKind::SavedAddresses, localized("Addresses"),
        localized("Open the saved addresses and press the heart."));
    column->addStretch();
    // Children of what opens them: there assistive technology finds them.
    m_networkPopover = new SavedNetworkPopover(m_models.popover, theme, m_networks);
    m_addressPopover = new SavedAddressPopover(m_models.popover, theme, m_addresses);
    connect(&m_models.lists, &SavedListsModel::changed, this, &SavedItemsView::refreshTokens);
    connect(
        &m_models.popover, &SavedEntryPopoverModel::changed, this, &SavedItemsView::refreshPopover);
    refreshTokens();
}

void SavedItemsView::endEditing()
{
    m_networkPopover->close();
    m_addressPopover->close();
}

TokenField *SavedItemsView::makeTokens(
    QVBoxLayout &column, TokenFieldKind kind, const QString &title, const QString &emptyText)
{
    auto *card = new QFrame;
    card->setProperty("look", u"card"_s);
    auto *head = plainLabel(title);
    head->setProperty("look", u"head"_s);
    head->setFont(Theme::font(Theme::Type::Strong));
    auto *tokens = new TokenField;
    tokens->setAccessibleName(title);
    tokens->setEmptyText(emptyText);
    auto *inside = new QVBoxLayout(card);
    inside->setContentsMargins(
        Theme::cardMargin, Theme::cardMarginTop, Theme::cardMargin, Theme::cardMargin);
    inside->setSpacing(Theme::unit);
    inside->addWidget(head);
    inside->addWidget(tokens);
    column.addWidget(card);
    const auto open = [this, kind, tokens](int index) { choose(kind, *tokens, index); };
    connect(tokens, &TokenField::activated, this, open);
    connect(tokens, &TokenField::opened, this, open);
    return tokens;
}

void SavedItemsView::choose(TokenFieldKind kind, const TokenField &tokens, int index)
{
    const auto &state = m_models.lists.state();
    const auto &shown = kind == TokenFieldKind::SavedNetworks ? state.networks : state.addresses;
    const QWidget *token = tokens.token(index);
    if (token == nullptr || index >= shown.size()) {
        return;
    }
    // Return chooses a token as well, wherever the pointer is.
    const QPoint position = token->mapTo(window(), token->rect().center());
    m_models.popover.tokenFieldMenuForRepresentedObject(kind, shown.at(index).entry, position);
}

void SavedItemsView::refreshTokens()
{
    // The token beside which a popover is open stays until that has closed.
    if (m_models.popover.state().open == Kind::None) {
        const auto &state = m_models.lists.state();
        m_networks->setEntries(entriesOf(state.networks, &SavedEntry::bssid));
        m_addresses->setEntries(entriesOf(state.addresses, &SavedEntry::address));
    }
}

void SavedItemsView::refreshPopover()
{
    const auto &state = m_models.popover.state();
    if (state.open == Kind::None) {
        refreshTokens();
        return;
    }
    const bool isNetwork = state.open == Kind::Network;
    const TokenField &tokens = isNetwork ? *m_networks : *m_addresses;
    SavedEntryPopover &popover =
        isNetwork ? static_cast<SavedEntryPopover &>(*m_networkPopover) : *m_addressPopover;
    QWidget *token = tokenOf(tokens, isNetwork ? state.bssid : state.address);
    if (token != nullptr && !popover.isOpen()) {
        popover.open(*token, PopoverPlacement::Side::Below);
    }
}

} // namespace quillon
