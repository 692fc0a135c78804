// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/networks/SavedAddressesRow.h"

#include "base/Localized.h"
#include "presence/Presence.h"
#include "presentation/networks/SavedListsModel.h"
#include "presentation/window/MainWindowModel.h"
#include "ui/theme/Theme.h"
#include "ui/widgets/HeartButton.h"
#include "ui/widgets/LimitedScrollArea.h"
#include "ui/widgets/PlainText.h"
#include "ui/widgets/Popover.h"
#include "ui/widgets/PopoverHead.h"
#include "ui/widgets/TokenField.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

/// Some lines of tokens, so that the popover has room on a low screen.
constexpr int tallestTokens = 7 * Theme::rowHeight;

} // namespace

SavedAddressesRow::SavedAddressesRow(const Models &models, const Theme &theme, QWidget *parent)
    : PopoverRow(theme, localized("Saved addresses"), new QWidget, parent)
    , m_models(models)
    , m_heart(new HeartButton(theme))
    , m_tokens(new TokenField)
{
    setObjectName(u"softwareButton"_s);
    auto *head = new PopoverHead(theme);
    head->setTitle(localized("Saved addresses"));
    head->addAtEnd(m_heart);
    m_tokens->setObjectName(u"quickAddressesField"_s);
    m_tokens->setAccessibleName(localized("Saved addresses"));
    m_tokens->setEmptyText(localized("Add the current address with the heart."));
    auto *hint = plainLabel(localized("Click to put one into the field, or drag it there."));
    hint->setProperty("look", u"caption"_s);
    hint->setWordWrap(true);
    auto *column = new QVBoxLayout(popover().content());
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(Theme::unit);
    column->addWidget(head);
    column->addWidget(new LimitedScrollArea(m_tokens, tallestTokens));
    column->addWidget(hint);
    column->addSpacing(Theme::unit / 2);
    auto *edit = new QPushButton(localized("Edit Saved Items"));
    edit->setObjectName(u"editSavedItems"_s);
    edit->setAccessibleName(localized("Edit Saved Items"));
    edit->setToolTip(plainToolTip(localized("Opens the window of saved networks and addresses")));
    edit->setAutoDefault(true);
    column->addWidget(edit, 0, Qt::AlignRight);

    connect(edit, &QPushButton::clicked, this, &SavedAddressesRow::editSavedItems);
    connect(this, &RowButton::clicked, &m_models.saved, &SavedListsModel::toggleSoftwarePopover);
    connect(this, &PopoverRow::popoverClosed, &m_models.saved,
        &SavedListsModel::softwarePopoverWillClose);
    connect(
        m_heart, &QToolButton::clicked, &m_models.saved, &SavedListsModel::chooseFavoriteButton);
    connect(m_tokens, &TokenField::activated, this, &SavedAddressesRow::choose);
    // The popover is what is dragged from: it must be there until the drag has ended.
    connect(m_tokens, &TokenField::dragBegan, &popover(), &Popover::stepAside);
    connect(m_tokens, &TokenField::dragEnded, &m_models.saved,
        &SavedListsModel::softwarePopoverWillClose);
    connect(&m_models.saved, &SavedListsModel::changed, this, &SavedAddressesRow::refresh);
    connect(&m_models.window, &MainWindowModel::changed, this, &SavedAddressesRow::refresh);
    refresh();
}

void SavedAddressesRow::choose(int index)
{
    m_models.window.populateHexFieldFromDrop(m_tokens->entries().value(index).text);
    m_models.saved.softwarePopoverWillClose();
    Q_EMIT filled();
}

void SavedAddressesRow::editSavedItems()
{
    m_models.saved.softwarePopoverWillClose();
    m_models.presence.goTo(Destination::SavedItems);
}

void SavedAddressesRow::refresh()
{
    const auto &state = m_models.saved.state();
    QList<TokenField::Entry> entries;
    QStringList names;
    for (const auto &token : state.quickAddresses) {
        entries.append({token.text, token.entry.address.value_or(QString())});
        names.append(token.text);
    }
    m_tokens->setEntries(entries);
    if (names.isEmpty()) {
        setValue(localized("None"), ValueLook::Muted);
    } else {
        setValue(names.join(u", "_s));
    }
    setHasPopover(m_models.window.state().softwareButtonVisible);
    m_heart->setFavorite(state.favorite.removes, state.favorite.accessibilityText);
    setPopoverShown(state.softwarePopoverShown);
}

} // namespace quillon
