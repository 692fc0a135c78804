// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/widgets/PopoverRow.h"

namespace quillon {

class MainWindowModel;

/// The address that the interface was made with, and the way back to it.
class HardwareRow : public PopoverRow
{
    Q_OBJECT

public:
    HardwareRow(MainWindowModel &model, const Theme &theme);

protected:
    PopoverDetails *makeDetails() override;

private:
    void refresh();

    MainWindowModel &m_model;
};

} // namespace quillon
