// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/widgets/FlowLayout.h"

#include <QStyle>
#include <QWidget>

#include <algorithm>

namespace quillon {

FlowLayout::FlowLayout(QWidget *parent, int gap)
    : QLayout(parent)
    , m_gap(gap)
{
    setContentsMargins(0, 0, 0, 0);
}

FlowLayout::~FlowLayout()
{
    qDeleteAll(m_items);
}

void FlowLayout::addItem(QLayoutItem *item)
{
    m_items.append(item);
    invalidate();
}

QLayoutItem *FlowLayout::takeAt(int index)
{
    return index >= 0 && index < m_items.size() ? m_items.takeAt(index) : nullptr;
}

int FlowLayout::arrange(int width, QList<QRect> &places) const
{
    int x = 0;
    int y = 0;
    int lineHeight = 0;
    qsizetype lineBegin = 0;
    const auto endLine = [&] {
        const int rest = alignment().testFlag(Qt::AlignHCenter) ? width - (x - m_gap) : 0;
        for (; lineBegin < places.size(); ++lineBegin) {
            places[lineBegin].translate(std::max(rest, 0) / 2, 0);
        }
    };
    for (const QLayoutItem *item : m_items) {
        // A sentence that goes on below takes whole lines.
        const QSize wanted = item->hasHeightForWidth() ? QSize(width, item->heightForWidth(width))
                                                       : item->sizeHint();
        const QSize size(std::min(wanted.width(), width), wanted.height());
        if (x > 0 && x + size.width() > width) {
            endLine();
            x = 0;
            y += lineHeight + m_gap;
            lineHeight = 0;
        }
        places.append(QRect(QPoint(x, y), size));
        x += size.width() + m_gap;
        lineHeight = std::max(lineHeight, size.height());
    }
    endLine();
    return y + lineHeight;
}

int FlowLayout::heightForWidth(int width) const
{
    const QMargins margins = contentsMargins();
    QList<QRect> places;
    return arrange(width - margins.left() - margins.right(), places) + margins.top() +
           margins.bottom();
}

QSize FlowLayout::sizeHint() const
{
    int width = 0;
    for (const QLayoutItem *item : m_items) {
        width += item->sizeHint().width() + m_gap;
    }
    return {std::max(0, width - m_gap), minimumSize().height()};
}

QSize FlowLayout::minimumSize() const
{
    QSize size;
    for (const QLayoutItem *item : m_items) {
        size = size.expandedTo(item->minimumSize());
    }
    const QMargins margins = contentsMargins();
    return size.grownBy(margins);
}

void FlowLayout::setGeometry(const QRect &rect)
{
    QLayout::setGeometry(rect);
    const QRect area = rect.marginsRemoved(contentsMargins());
    QList<QRect> places;
    arrange(area.width(), places);
    const Qt::LayoutDirection direction =
        parentWidget() != nullptr ? parentWidget()->layoutDirection() : Qt::LeftToRight;
    for (qsizetype index = 0; index < m_items.size(); ++index) {
        const QRect place = places[index].translated(area.topLeft());
        m_items[index]->setGeometry(QStyle::visualRect(direction, area, place));
    }
}

} // namespace quillon
