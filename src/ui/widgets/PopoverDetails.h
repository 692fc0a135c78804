// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

namespace quillon {

/// What stands in a row's popover. It follows its models by itself.
class PopoverDetails : public QWidget
{
    Q_OBJECT

public:
    /// Shows what the models hold. Also called before each opening, so that the popover finds its
    /// size with what it is going to show.
    virtual void refresh() = 0;
};

} // namespace quillon
