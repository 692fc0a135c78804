// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/widgets/PopoverRow.h"

#include <functional>

namespace quillon {

class MainWindowModel;

/// The address that the interface was made with, and the way back to it.
class HardwareRow : public PopoverRow
{
    Q_OBJECT

public:
    /// Makes what stands below the address in the popover, another feature's; once.
    using MakeFurther = std::function<QWidget *(QWidget *parent)>;

    HardwareRow(MainWindowModel &model, const Theme &theme, MakeFurther makeFurther = {});

protected:
    PopoverDetails *makeDetails() override;

private:
    void refresh();

    MainWindowModel &m_model;
    const MakeFurther m_makeFurther;
};

} // namespace quillon
