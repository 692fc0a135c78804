// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/networks/SavedAddressesDetails.h"

#include "base/Localized.h"
#include "presentation/networks/SavedListsModel.h"
#include "presentation/window/MainWindowModel.h"
#include "ui/networks/TokenScrollArea.h"
#include "ui/theme/Theme.h"
#include "ui/widgets/AccessibleRole.h"
#include "ui/widgets/HeartButton.h"
#include "ui/widgets/InlineLine.h"
#include "ui/widgets/PlainText.h"
#include "ui/widgets/PopoverHead.h"
#include "ui/widgets/TokenField.h"

#include <QPushButton>
#include <QVBoxLayout>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr int ring = TokenScrollArea::ringRoom;

} // namespace

SavedAddressesDetails::SavedAddressesDetails(
    SavedListsModel &model, MainWindowModel &window, const Theme &theme)
    : m_model(model)
    , m_window(window)
    , m_heart(new HeartButton(theme))
    , m_tokens(new TokenField)
    , m_area(new TokenScrollArea(m_tokens))
    , m_hint(new InlineLine(theme))
{
    auto *head = new PopoverHead(theme);
    head->setTitle(localized("Saved addresses"));
    head->addAtEnd(m_heart);
    m_tokens->setObjectName(u"quickAddressesField"_s);
    m_tokens->setAccessibleName(localized("Saved addresses"));
    m_tokens->setEmptyText(localized("Add the current address with the heart."));
    auto *edit = new QPushButton(localized("Edit Saved Items"));
    edit->setObjectName(u"editSavedItems"_s);
    edit->setAccessibleName(localized("Edit Saved Items"));
    edit->setToolTip(plainToolTip(localized("Opens the window of saved networks and addresses")));
    edit->setAutoDefault(true);
    auto *ending = new QHBoxLayout;
    ending->setContentsMargins(0, Theme::unit, ring, 0);
    ending->addStretch();
    ending->addWidget(edit);
    // All begins where the tokens begin.
    head->setContentsMargins(ring, 0, ring, 0);
    m_hint->setContentsMargins(ring, ring, ring, 0);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(Theme::unit / 2);
    column->addWidget(head);
    column->addWidget(m_area);
    column->addWidget(m_hint);
    column->addLayout(ending);

    connect(edit, &QPushButton::clicked, this, &SavedAddressesDetails::editChosen);
    connect(m_heart, &QToolButton::clicked, &m_model, &SavedListsModel::chooseFavoriteButton);
    connect(m_tokens, &TokenField::activated, this, &SavedAddressesDetails::choose);
    connect(m_tokens, &TokenField::dragBegan, this, &SavedAddressesDetails::dragBegan);
    connect(m_tokens, &TokenField::dragEnded, this, &SavedAddressesDetails::dragEnded);
    connect(&m_model, &SavedListsModel::changed, this, &SavedAddressesDetails::refresh);
    connect(&m_window, &MainWindowModel::changed, this, &SavedAddressesDetails::refresh);
}

void SavedAddressesDetails::choose(int index)
{
    if (m_window.chooseAddress(m_tokens->entries().value(index).text)) {
        Q_EMIT filled();
    } else {
        announce(*m_hint, m_hint->text());
    }
}

void SavedAddressesDetails::refresh()
{
    const auto &state = m_model.state();
    QList<TokenField::Entry> entries;
    for (const auto &token : state.quickAddresses) {
        entries.append({token.text, token.entry.address.value_or(QString())});
    }
    m_tokens->setEntries(entries);
    m_area->updateGeometry();
    const QString whyNot = m_window.state().whyNoField;
    m_tokens->setWhyNot(whyNot);
    if (whyNot.isEmpty()) {
        m_hint->say(localized("Click to put one into the field, or drag it there."));
    } else {
        m_hint->say(whyNot, InlineLine::Kind::Notice);
    }
    m_heart->setFavorite(state.favorite.removes, state.favorite.accessibilityText);
}

} // namespace quillon
