// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/networks/ExternalAddressRow.h"

#include "base/Localized.h"
#include "presentation/networks/ExternalAddressModel.h"
#include "ui/widgets/PlainText.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>

namespace quillon {

using namespace Qt::StringLiterals;

ExternalAddressRow::ExternalAddressRow(
    ExternalAddressModel &model, const Theme &theme, QWidget *parent)
    : QWidget(parent)
    , m_model(model)
    , m_row(new RowButton(theme, localized("External address")))
    , m_note(plainLabel())
    , m_button(new QToolButton)
{
    m_row->setObjectName(u"externalAddress"_s);
    m_row->setHasPopover(false);
    m_button->setObjectName(u"refreshExternalIP"_s);
    m_button->setProperty("look", u"quiet"_s);
    m_button->setIcon(theme.icon(u"refresh"_s, Theme::Ink::Muted));
    m_button->setIconSize(QSize(Theme::iconSize, Theme::iconSize));
    m_button->setFixedSize(Theme::target, Theme::target);
    m_button->setFocusPolicy(Qt::StrongFocus);
    m_button->setAccessibleName(localized("Refresh external address"));
    m_button->setToolTip(
        plainToolTip(localized("Asks a public service under which address it sees you")));
    m_note->setObjectName(u"externalAddressNote"_s);
    m_note->setProperty("look", u"caption"_s);
    m_note->setFont(Theme::font(Theme::Type::Caption));
    auto *line = new QHBoxLayout(this);
    line->setContentsMargins(0, 0, 0, 0);
    line->setSpacing(Theme::unit / 2);
    line->addWidget(m_row, 1);
    line->addWidget(m_note);
    line->addWidget(m_button);
    line->addSpacing(Theme::unit / 2);
    connect(m_button, &QToolButton::clicked, &m_model, &ExternalAddressModel::refreshExternalIP);
    connect(&m_model, &ExternalAddressModel::changed, this, &ExternalAddressRow::refresh);
    refresh();
}

void ExternalAddressRow::refresh()
{
    const QString text = m_model.text();
    // Anything else is said in place of one.
    const bool isAddress = text.contains(u':') || (!text.isEmpty() && text.front().isDigit());
    m_note->setText(plainLine(m_model.note()));
    m_note->setVisible(!m_note->text().isEmpty());
    m_note->setToolTip(plainToolTip(m_model.explanation()));
    m_note->setAccessibleDescription(m_model.explanation());
    m_row->setValue(text, isAddress ? RowButton::ValueLook::Address : RowButton::ValueLook::Muted);
}

} // namespace quillon
