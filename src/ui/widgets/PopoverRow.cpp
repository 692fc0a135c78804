// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/widgets/PopoverRow.h"

#include "ui/widgets/AccessibleRole.h"
#include "ui/widgets/PopoverDetails.h"

namespace quillon {

PopoverRow::PopoverRow(const Theme &theme, const QString &label, int bodyWidth, QWidget *parent)
    : RowButton(theme, label, parent)
    , m_theme(theme)
    , m_bodyWidth(bodyWidth)
{
}

PopoverRow::~PopoverRow()
{
    if (m_popover != nullptr) {
        // It closes with its anchor, of which only a part is left then.
        m_popover->disconnect(this);
    }
}

Popover &PopoverRow::popover()
{
    if (m_popover == nullptr) {
        PopoverDetails *const details = makeDetails();
        details->refresh();
        m_popover = new Popover(m_theme, details, this);
        m_popover->setBodyWidth(m_bodyWidth);
        setAccessibleRole(*m_popover, QAccessible::Dialog);
        connect(m_popover, &Popover::aboutToShow, details, &PopoverDetails::refresh);
        connect(m_popover, &Popover::aboutToClose, this, &PopoverRow::popoverClosed);
    }
    return *m_popover;
}

void PopoverRow::setPopoverShown(bool shown)
{
    const bool isOpen = m_popover != nullptr && m_popover->isOpen();
    if (shown && !isOpen) {
        popover().open(*this);
    } else if (!shown && isOpen) {
        m_popover->close();
    }
}

} // namespace quillon
