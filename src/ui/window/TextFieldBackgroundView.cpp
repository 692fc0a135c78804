// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/window/TextFieldBackgroundView.h"

#include "presentation/window/MainWindowModel.h"

#include <QDragEnterEvent>
#include <QMimeData>
#include <QStyle>

namespace quillon {

using namespace Qt::StringLiterals;

TextFieldBackgroundView::TextFieldBackgroundView(MainWindowModel &model, QWidget *parent)
    : QFrame(parent)
    , m_model(model)
{
    setObjectName(identifier());
    setProperty("look", u"card"_s);
    setAcceptDrops(true);
}

QString TextFieldBackgroundView::identifier()
{
    return u"updateAdddressView"_s;
}

bool TextFieldBackgroundView::draggingEntered(const QMimeData &pasteboard) const
{
    return isUpdateAddressView() && pasteboard.hasText() &&
           m_model.draggingEntered(pasteboard.text());
}

bool TextFieldBackgroundView::performDragOperation() const
{
    return isUpdateAddressView() && m_model.performDragOperation();
}

void TextFieldBackgroundView::concludeDragOperation(const QMimeData &pasteboard)
{
    m_model.concludeDragOperation(pasteboard.text());
}

void TextFieldBackgroundView::dragEnterEvent(QDragEnterEvent *event)
{
    if (draggingEntered(*event->mimeData())) {
        event->setDropAction(Qt::CopyAction);
        event->accept();
        showDropping(true);
    } else {
        event->ignore();
    }
}

void TextFieldBackgroundView::dragLeaveEvent(QDragLeaveEvent *)
{
    showDropping(false);
}

void TextFieldBackgroundView::dropEvent(QDropEvent *event)
{
    showDropping(false);
    if (!performDragOperation()) {
        event->ignore();
        return;
    }
    event->setDropAction(Qt::CopyAction);
    event->accept();
    concludeDragOperation(*event->mimeData());
}

void TextFieldBackgroundView::showDropping(bool dropping)
{
    setProperty("dropping", dropping);
    style()->unpolish(this);
    style()->polish(this);
}

} // namespace quillon
