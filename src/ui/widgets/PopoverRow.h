// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/widgets/RowButton.h"

namespace quillon {

class Popover;

/// A row with its popover. Whether that is shown is a model's to say: clicked() and popoverClosed()
/// tell it what the user did.
class PopoverRow : public RowButton
{
    Q_OBJECT

public:
    PopoverRow(
        const Theme &theme, const QString &label, QWidget *content, QWidget *parent = nullptr);
    ~PopoverRow() override;

    Popover &popover() const { return *m_popover; }
    void setPopoverShown(bool shown);

Q_SIGNALS:
    /// Whoever closed it.
    void popoverClosed();

private:
    Popover *m_popover;
};

} // namespace quillon
