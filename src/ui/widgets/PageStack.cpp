// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/widgets/PageStack.h"

#include <QVBoxLayout>

namespace quillon {

PageStack::PageStack(QWidget *parent)
    : QWidget(parent)
{
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
}

void PageStack::addWidget(QWidget *page)
{
    layout()->addWidget(page);
    if (m_current == nullptr) {
        m_current = page;
    } else {
        page->hide();
    }
}

void PageStack::setCurrentWidget(QWidget *page)
{
    if (page != m_current) {
        setUpdatesEnabled(false);
        m_current->hide();
        m_current = page;
        m_current->show();
        setUpdatesEnabled(true);
    }
}

} // namespace quillon
