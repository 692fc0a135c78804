// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/widgets/RevealingScrollArea.h"

#include <QApplication>
#include <QScrollBar>

namespace quillon {

using namespace Qt::StringLiterals;

RevealingScrollArea::RevealingScrollArea(QWidget *content, QWidget *parent)
    : QScrollArea(parent)
{
    setProperty("look", u"bare"_s);
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    // What is in it takes the keyboard, it does not.
    setFocusPolicy(Qt::NoFocus);
    setWidgetResizable(true);
    setWidget(content);
    viewport()->setAutoFillBackground(false);
    content->setAutoFillBackground(false);
    connect(qApp, &QApplication::focusChanged, this,
        [this](const QWidget *, QWidget *now) { reveal(now); });
}

RevealingScrollArea::~RevealingScrollArea()
{
    // Its content goes when it is only a widget any more, and the keyboard with it.
    disconnect(qApp, nullptr, this, nullptr);
}

QSize RevealingScrollArea::minimumSizeHint() const
{
    QSize hint = QScrollArea::minimumSizeHint();
    hint.setWidth(widget()->minimumSizeHint().width() + verticalScrollBar()->sizeHint().width());
    return hint;
}

bool RevealingScrollArea::event(QEvent *event)
{
    if (event->type() == QEvent::LayoutRequest) {
        // Its content asks for another size.
        updateGeometry();
    }
    return QScrollArea::event(event);
}

void RevealingScrollArea::reveal(QWidget *focused)
{
    // What is pressed stays under the pointer until it is released.
    if (focused == nullptr || !widget()->isAncestorOf(focused) ||
        QGuiApplication::mouseButtons() != Qt::NoButton) {
        return;
    }
    if (focused->height() + 2 * ringRoom > viewport()->height()) {
        // What it is stands where it begins.
        verticalScrollBar()->setValue(focused->mapTo(widget(), QPoint(0, 0)).y() - ringRoom);
    } else {
        ensureWidgetVisible(focused, ringRoom, 2 * ringRoom);
    }
}

} // namespace quillon
