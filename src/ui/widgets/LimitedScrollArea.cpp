// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/widgets/LimitedScrollArea.h"

#include "ui/theme/Theme.h"

#include <QApplication>
#include <QEvent>
#include <QLayout>
#include <QScrollBar>

#include <algorithm>

namespace quillon {

using namespace Qt::StringLiterals;

LimitedScrollArea::LimitedScrollArea(QWidget *content, int tallest, QWidget *parent)
    : QScrollArea(parent)
    , m_tallest(tallest)
{
    setObjectName(u"limitedScrollArea"_s);
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    // What is in it takes the keyboard, it does not.
    setFocusPolicy(Qt::NoFocus);
    setWidgetResizable(true);
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Minimum);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
    setMaximumHeight(tallest);
    setWidget(content);
    // What it lies on shows through.
    viewport()->setAutoFillBackground(false);
    content->setAutoFillBackground(false);
    verticalScrollBar()->setSingleStep(Theme::rowHeight);
    connect(
        qApp, &QApplication::focusChanged, this, [this](QWidget *, QWidget *now) { reveal(now); });
}

LimitedScrollArea::~LimitedScrollArea()
{
    // What is in it goes when this is only a widget any more, and the keyboard with it.
    disconnect(qApp, nullptr, this, nullptr);
}

int LimitedScrollArea::heightForWidth(int width) const
{
    const QWidget &content = *widget();
    const int wanted =
        content.hasHeightForWidth() ? content.heightForWidth(width) : content.sizeHint().height();
    return std::min(std::max(wanted, content.minimumSizeHint().height()), m_tallest);
}

QSize LimitedScrollArea::sizeHint() const
{
    const QSize content = widget()->sizeHint();
    return {content.width(), std::min(content.height(), m_tallest)};
}

QSize LimitedScrollArea::minimumSizeHint() const
{
    const QSize content = widget()->minimumSizeHint();
    return {content.width(), std::min(content.height(), m_tallest)};
}

void LimitedScrollArea::reveal(QWidget *focused)
{
    if (focused != nullptr && widget()->isAncestorOf(focused)) {
        ensureWidgetVisible(focused, 0, Theme::unit);
    }
}

bool LimitedScrollArea::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == widget() && event->type() == QEvent::LayoutRequest) {
        updateGeometry();
    }
    return QScrollArea::eventFilter(watched, event);
}

void LimitedScrollArea::showEvent(QShowEvent *event)
{
    verticalScrollBar()->setValue(0);
    QScrollArea::showEvent(event);
}

} // namespace quillon
