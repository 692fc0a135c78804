// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/widgets/OneLineLabel.h"

#include "ui/widgets/PlainText.h"

#include <QEvent>
#include <QLabel>

#include <utility>

namespace quillon {

namespace {

/// As much of a plain line as there is room for: an isolate may have lost its end by that, which
/// the end of the text is as well.
QString shownText(const QLabel &label, const QString &line, Qt::TextElideMode leftOut, int room)
{
    return label.fontMetrics().elidedText(line, leftOut, room);
}

} // namespace

OneLineLabel::OneLineLabel(Qt::TextElideMode leftOut, QWidget *parent)
    : QWidget(parent)
    , m_label(plainLabel())
    , m_leftOut(leftOut)
{
    // In no layout: that would be laid out anew, and all that it is in, with every text.
    m_label->setParent(this);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

QSize OneLineLabel::sizeHint() const
{
    return {0, m_label->sizeHint().height()};
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
    m_label->setText(shownText(*m_label, line, m_leftOut, width()));
    m_label->setAccessibleName(line);
    followHeight();
}

void OneLineLabel::followHeight()
{
    const int height = m_label->sizeHint().height();
    if (height != std::exchange(m_height, height)) {
        updateGeometry();
    }
}

void OneLineLabel::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    m_label->resize(size());
    fit();
}

bool OneLineLabel::event(QEvent *event)
{
    // The label asks for another size, as with another font.
    if (event->type() == QEvent::LayoutRequest) {
        followHeight();
    }
    return QWidget::event(event);
}

} // namespace quillon
