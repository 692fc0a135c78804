// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/widgets/PageStack.h"

namespace quillon {

PageStack::PageStack(QWidget *parent)
    : QStackedWidget(parent)
{
    connect(this, &QStackedWidget::currentChanged, this, &QWidget::updateGeometry);
}

QSize PageStack::sizeHint() const
{
    return currentWidget() != nullptr ? currentWidget()->sizeHint() : QSize();
}

QSize PageStack::minimumSizeHint() const
{
    return currentWidget() != nullptr ? currentWidget()->minimumSizeHint() : QSize();
}

bool PageStack::hasHeightForWidth() const
{
    return currentWidget() != nullptr && currentWidget()->hasHeightForWidth();
}

int PageStack::heightForWidth(int width) const
{
    return hasHeightForWidth() ? currentWidget()->heightForWidth(width) : -1;
}

} // namespace quillon
