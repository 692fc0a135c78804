// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/window/FactsCard.h"

#include "ui/theme/Theme.h"

#include <QPainter>
#include <QVBoxLayout>

#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;

FactsCard::FactsCard(const Theme &theme, QWidget *parent)
    : QFrame(parent)
    , m_theme(theme)
    , m_column(new QVBoxLayout(this))
{
    setObjectName(u"facts"_s);
    setProperty("look", u"card"_s);
    setProperty("rows", true);
    m_column->setContentsMargins(Theme::unit, Theme::unit / 2, Theme::unit, Theme::unit / 2);
    m_column->setSpacing(1);
    connect(&theme, &Theme::changed, this, qOverload<>(&QWidget::update));
}

void FactsCard::add(QWidget *row)
{
    m_rows.append(row);
    m_column->addWidget(row);
}

void FactsCard::paintEvent(QPaintEvent *event)
{
    QFrame::paintEvent(event);
    QPainter painter(this);
    bool isFirst = true;
    for (const QWidget *row : std::as_const(m_rows)) {
        if (!row->isHidden()) {
            if (!std::exchange(isFirst, false)) {
                painter.fillRect(
                    QRect(row->x(), row->y() - 1, row->width(), 1), m_theme.colors().surfaceBorder);
            }
        }
    }
}

} // namespace quillon
