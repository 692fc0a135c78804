// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/widgets/PopoverRow.h"

class QLabel;

namespace quillon {

class BusyButton;
class MainWindowModel;

/// The address that the interface was made with, and the way back to it.
class HardwareRow : public PopoverRow
{
    Q_OBJECT

public:
    HardwareRow(MainWindowModel &model, const Theme &theme, QWidget *parent = nullptr);

private:
    void makeContent();
    void refresh();

    MainWindowModel &m_model;
    QLabel *m_address;
    BusyButton *m_restore;
};

} // namespace quillon
