// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "presentation/menu/MenuModel.h"

namespace quillon {

/// The status item's menu: the program's windows, the interfaces, the end.
class StatusMenuModel : public MenuModel
{
    Q_OBJECT

public:
    using MenuModel::MenuModel;

protected:
    std::vector<MenuEntry> entriesAbove() const override;
    std::vector<MenuEntry> entriesBelow() const override;
};

} // namespace quillon
