// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/widgets/PopoverDetails.h"

class QLabel;

namespace quillon {

class BusyButton;
class MainWindowModel;
class Theme;

/// The hardware address as large as the current one, and the button that restores it.
class HardwareDetails : public PopoverDetails
{
    Q_OBJECT

public:
    HardwareDetails(MainWindowModel &model, const Theme &theme);

    void refresh() override;

private:
    MainWindowModel &m_model;
    QLabel *m_address;
    BusyButton *m_restore;
};

} // namespace quillon
