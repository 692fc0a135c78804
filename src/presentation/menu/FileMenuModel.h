// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "presentation/menu/MenuModel.h"

namespace quillon {

/// The File menu of windows: new rules, closing the window, the interfaces.
class FileMenuModel : public MenuModel
{
    Q_OBJECT

public:
    using MenuModel::MenuModel;

    // Entries that keys of the keyboard choose, too.
    static inline const QString newNetworkRule = QStringLiteral("new-network-rule");
    static inline const QString newLoginRule = QStringLiteral("new-login-rule");
    static inline const QString closeWindow = QStringLiteral("close-window");

protected:
    std::vector<MenuEntry> entriesAbove() const override;
    std::vector<MenuEntry> entriesBelow() const override { return {}; }
};

} // namespace quillon
