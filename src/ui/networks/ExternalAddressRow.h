// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/widgets/RowButton.h"

class QLabel;
class QToolButton;

namespace quillon {

class ExternalAddressModel;

/// The address under which a public service sees the computer, what there is to say of it, and the
/// button that asks.
class ExternalAddressRow : public QWidget
{
    Q_OBJECT

public:
    ExternalAddressRow(ExternalAddressModel &model, const Theme &theme, QWidget *parent = nullptr);

private:
    void refresh();

    ExternalAddressModel &m_model;
    RowButton *m_row;
    QLabel *m_note; ///< what there is to say of it
    QToolButton *m_button;
};

} // namespace quillon
