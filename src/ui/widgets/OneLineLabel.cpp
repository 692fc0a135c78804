// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/widgets/OneLineLabel.h"

#include "ui/widgets/PlainText.h"

#include <QHBoxLayout>
#include <QLabel>

namespace quillon {

OneLineLabel::OneLineLabel(Qt::TextElideMode leftOut, QWidget *parent)
    : QWidget(parent)
    , m_label(plainLabel())
    , m_leftOut(leftOut)
{
    m_label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    auto *line = new QHBoxLayout(this);
    line->setContentsMargins(0, 0, 0, 0);
    line->addWidget(m_label);
}

void OneLineLabel::setLine(const QString &text)
{
    if (text != m_line) {
        m_line = text;
        m_label->setToolTip(plainToolTip(text));
        fit();
    }
}

void OneLineLabel::fit()
{
    // On its own it would stand where a text of its language begins.
    m_label->setAlignment(
        Qt::AlignAbsolute | Qt::AlignVCenter | (isRightToLeft() ? Qt::AlignRight : Qt::AlignLeft));
    const QString line = plainEntry(m_line);
    m_label->setText(plainEntry(m_label->fontMetrics().elidedText(line, m_leftOut, width())));
    m_label->setAccessibleName(line);
}

void OneLineLabel::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    fit();
}

} // namespace quillon
