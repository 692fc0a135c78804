// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/widgets/RowButton.h"

class QToolButton;

namespace quillon {

class ExternalAddressModel;

/// The address under which a public service sees the computer, and the button that asks it.
class ExternalAddressRow : public QWidget
{
    Q_OBJECT

public:
    ExternalAddressRow(ExternalAddressModel &model, const Theme &theme, QWidget *parent = nullptr);

private:
    void refresh();

    ExternalAddressModel &m_model;
    RowButton *m_row;
    QToolButton *m_button;
};

} // namespace quillon
