// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/widgets/ContentScrollArea.h"

#include "ui/theme/Theme.h"

#include <QEvent>
#include <QScrollBar>

#include <algorithm>

namespace quillon {

ContentScrollArea::ContentScrollArea(QWidget *content, int tallest, QWidget *parent)
    : RevealingScrollArea(content, parent)
    , m_tallest(tallest)
{
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Minimum);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
}

int ContentScrollArea::contentHeight(int width) const
{
    return widget()->hasHeightForWidth() ? widget()->heightForWidth(width)
                                         : widget()->sizeHint().height();
}

int ContentScrollArea::heightForWidth(int width) const
{
    return std::min(contentHeight(width), m_tallest);
}

QSize ContentScrollArea::sizeHint() const
{
    const int width = widget()->sizeHint().width();
    return {width, heightForWidth(width)};
}

QSize ContentScrollArea::minimumSizeHint() const
{
    const int width = widget()->minimumSizeHint().width();
    const bool hasBar =
        verticalScrollBarPolicy() != Qt::ScrollBarAlwaysOff && contentHeight(width) > m_tallest;
    return {width + (hasBar ? verticalScrollBar()->sizeHint().width() : 0), Theme::rowHeight};
}

void ContentScrollArea::showEvent(QShowEvent *event)
{
    RevealingScrollArea::showEvent(event);
    // What was asked for while it was hidden was not heard.
    QEvent asked(QEvent::LayoutRequest);
    RevealingScrollArea::event(&asked);
    verticalScrollBar()->setSingleStep(Theme::rowHeight);
    verticalScrollBar()->setValue(0);
}

} // namespace quillon
