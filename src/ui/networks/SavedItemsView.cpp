// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/networks/SavedItemsView.h"

#include "base/Localized.h"
#include "presentation/history/HistoryImport.h"
#include "presentation/networks/SavedEntryPopoverModel.h"
#include "ui/networks/NewSavedEntryPopover.h"
#include "ui/networks/SavedAddressPopover.h"
#include "ui/networks/SavedNetworkPopover.h"
#include "ui/theme/Theme.h"
#include "ui/widgets/AccessibleRole.h"
#include "ui/widgets/BusyButton.h"
#include "ui/widgets/ClicksOnce.h"
#include "ui/widgets/PlainText.h"
#include "ui/widgets/TokenField.h"

#include <QFrame>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

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
    m_networks = makeCard(*column, TokenFieldKind::SavedNetworks,
        {localized("Networks"), localized("Join a network and press its heart."),
            localized("Network…"), localized("Save a network by hand")},
        theme);
    m_addresses = makeCard(*column, TokenFieldKind::SavedAddresses,
        {localized("Addresses"), localized("Open the saved addresses and press the heart."),
            localized("Address…"), localized("Save an address by hand")},
        theme);
    makeImportButton(*column, theme);
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
    for (NewSavedEntryPopover *form : std::as_const(m_forms)) {
        form->close();
    }
}

void SavedItemsView::makeAddButton(
    QVBoxLayout &card, NewSavedEntryModel &model, const CardTexts &texts, const Theme &theme)
{
    auto *button = new QPushButton;
    // What it opens is found in it. Before it has a text: that is told, and it is looked at.
    setAccessibleRole(*button, QAccessible::Button);
    button->setText(plainLine(texts.add));
    button->setAccessibleName(texts.add);
    button->setProperty("look", u"quiet"_s);
    button->setIcon(theme.icon(u"add"_s, Theme::Ink::Muted));
    button->setIconSize(QSize(Theme::inlineIconSize, Theme::inlineIconSize));
    button->setToolTip(plainToolTip(texts.addToolTip));
    button->setAutoDefault(true);
    card.addWidget(button, 0, Qt::AlignLeading);
    auto *form = new NewSavedEntryPopover(model, theme, button);
    connect(button, &QPushButton::clicked, form,
        [form, button] { form->toggle(*button, PopoverPlacement::Side::Below); });
    connect(form, &Popover::aboutToClose, this, &SavedItemsView::refreshTokens);
    m_forms << form;
}

void SavedItemsView::makeImportButton(QVBoxLayout &column, const Theme &theme)
{
    auto *button = new BusyButton(theme, Theme::Ink::Text, localized("Import from History"));
    button->setBusyText(localized("Importing…"));
    button->setToolTip(
        plainToolTip(localized("Save the addresses and networks that the history knows")));
    button->setAutoDefault(true);
    column.addWidget(button, 0, Qt::AlignLeading);
    HistoryImport &import = m_models.import;
    button->installEventFilter(new ClicksOnce(button)); // a second time imports the next ones
    connect(button, &QPushButton::clicked, &import, &HistoryImport::import);
    connect(&import, &HistoryImport::changed, button,
        [&import, button] { button->setBusy(import.state().isBusy); });
    button->setBusy(import.state().isBusy);
}

TokenField *SavedItemsView::makeCard(
    QVBoxLayout &column, TokenFieldKind kind, const CardTexts &texts, const Theme &theme)
{
    auto *card = new QFrame;
    card->setProperty("look", u"card"_s);
    auto *head = plainLabel(texts.title);
    head->setProperty("look", u"head"_s);
    head->setFont(Theme::font(Theme::Type::Strong));
    auto *tokens = new TokenField;
    tokens->setAccessibleName(texts.title);
    tokens->setEmptyText(texts.empty);
    auto *inside = new QVBoxLayout(card);
    inside->setContentsMargins(
        Theme::cardMargin, Theme::cardMarginTop, Theme::cardMargin, Theme::cardMargin);
    inside->setSpacing(Theme::unit);
    inside->addWidget(head);
    inside->addWidget(tokens);
    makeAddButton(*inside,
        kind == TokenFieldKind::SavedNetworks ? m_models.newNetwork : m_models.newAddress, texts,
        theme);
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
    // What a popover is open beside stays where it is until that has closed.
    const bool isFormOpen = std::ranges::any_of(
        std::as_const(m_forms), [](const NewSavedEntryPopover *form) { return form->isOpen(); });
    if (m_models.popover.state().open == Kind::None && !isFormOpen) {
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
