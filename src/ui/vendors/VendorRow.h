// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/widgets/PopoverRow.h"

class QLabel;

namespace quillon {

class PopoverHead;
class VendorInfoModel;

/// Who made the interface, by the address that it has; its popover tells more of them.
class VendorRow : public PopoverRow
{
    Q_OBJECT

public:
    VendorRow(VendorInfoModel &model, const Theme &theme, QWidget *parent = nullptr);

private:
    void makeContent();
    void refresh();

    VendorInfoModel &m_model;
    PopoverHead *m_head;
    QLabel *m_address;
    QLabel *m_identifier;
    QLabel *m_registry;
};

} // namespace quillon
