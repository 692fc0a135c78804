// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/widgets/DetailsArea.h"

#include "ui/theme/Theme.h"

#include <QEvent>
#include <QScrollBar>
#include <QVBoxLayout>

#include <algorithm>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr int fewRows = 5 * Theme::rowHeight;

} // namespace

DetailsArea::DetailsArea(QWidget *parent)
    : QScrollArea(parent)
    , m_tallest(QWIDGETSIZE_MAX)
{
    setObjectName(u"detailsArea"_s);
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    // Its sections take the keyboard, it does not.
    setFocusPolicy(Qt::NoFocus);
    setWidgetResizable(true);
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);

    auto *content = new QWidget;
    m_column = new QVBoxLayout(content);
    m_column->setContentsMargins(0, 0, 0, 0);
    m_column->setSpacing(Theme::spacing);
    setWidget(content);
    // The window's ground shows through.
    viewport()->setAutoFillBackground(false);
    content->setAutoFillBackground(false);
}

void DetailsArea::add(QWidget *section)
{
    m_column->addWidget(section);
}

void DetailsArea::setTallest(int height)
{
    const int tallest = std::max(height, fewRows);
    if (tallest != m_tallest) {
        m_tallest = tallest;
        updateGeometry();
    }
}

int DetailsArea::heightForWidth(int width) const
{
    const int wanted = m_column->hasHeightForWidth() ? m_column->totalHeightForWidth(width)
                                                     : m_column->totalSizeHint().height();
    return std::min(wanted, m_tallest);
}

QSize DetailsArea::sizeHint() const
{
    const int width = m_column->totalMinimumSize().width();
    const int height = heightForWidth(width);
    const int whole = m_column->hasHeightForWidth() ? m_column->totalHeightForWidth(width)
                                                    : m_column->totalSizeHint().height();
    const bool scrolls = height < whole - m_column->contentsMargins().bottom();
    return {width + (scrolls ? verticalScrollBar()->sizeHint().width() : 0), height};
}

bool DetailsArea::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == widget() && event->type() == QEvent::LayoutRequest) {
        updateGeometry();
    }
    return QScrollArea::eventFilter(watched, event);
}

} // namespace quillon
