// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/widgets/PopoverRow.h"

#include "ui/widgets/AccessibleRole.h"
#include "ui/widgets/Popover.h"

namespace quillon {

PopoverRow::PopoverRow(const Theme &theme, const QString &label, QWidget *content, QWidget *parent)
    : RowButton(theme, label, parent)
    , m_popover(new Popover(theme, content, this))
{
    m_popover->setAccessibleName(label);
    setAccessibleRole(*m_popover, QAccessible::Dialog);
    connect(m_popover, &Popover::aboutToClose, this, &PopoverRow::popoverClosed);
}

PopoverRow::~PopoverRow()
{
    // It closes with its anchor, of which only a part is left then.
    m_popover->disconnect(this);
}

void PopoverRow::setPopoverShown(bool shown)
{
    if (shown && !m_popover->isOpen()) {
        m_popover->open(*this);
    } else if (!shown && m_popover->isOpen()) {
        m_popover->close();
    }
}

} // namespace quillon
