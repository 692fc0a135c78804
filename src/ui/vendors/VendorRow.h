// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/widgets/PopoverRow.h"

namespace quillon {

class VendorInfoModel;

/// Who made the selected interface.
class VendorRow : public PopoverRow
{
    Q_OBJECT

public:
    VendorRow(VendorInfoModel &model, const Theme &theme);

protected:
    PopoverDetails *makeDetails() override;

private:
    void refresh();

    VendorInfoModel &m_model;
};

} // namespace quillon
