// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/widgets/Popover.h"
#include "ui/widgets/RowButton.h"

namespace quillon {

class PopoverDetails;

/// A row with its popover. Whether that is shown is a model's to say: clicked() and popoverClosed()
/// tell it what the user did.
class PopoverRow : public RowButton
{
    Q_OBJECT

public:
    /// The popover's body is `bodyWidth` pixels wide.
    PopoverRow(const Theme &theme, const QString &label, int bodyWidth = Popover::usualWidth,
        QWidget *parent = nullptr);
    ~PopoverRow() override;

    /// Made when it is asked for the first time: in most runs most are never opened.
    Popover &popover();
    void setPopoverShown(bool shown);

Q_SIGNALS:
    /// Whoever closed it.
    void popoverClosed();

protected:
    /// Called once.
    virtual PopoverDetails *makeDetails() = 0;
    const Theme &theme() const { return m_theme; }

private:
    const Theme &m_theme;
    int m_bodyWidth;
    Popover *m_popover = nullptr;
};

} // namespace quillon
