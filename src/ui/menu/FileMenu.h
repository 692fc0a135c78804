// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/menu/MenuView.h"

class QToolButton;

namespace quillon {

class EditMenuModel;
class FileMenuModel;
class Theme;

/// The File menu of a window, with the Edit menu at its end. Its keys work in every window that has
/// the menu's button.
class FileMenu : public MenuView
{
    Q_OBJECT

public:
    FileMenu(FileMenuModel &model, EditMenuModel &editModel);

    /// A button that opens the menu, also by F10 from anywhere in its window. It belongs to the
    /// caller; the menu outlives it.
    QToolButton *makeButton(const Theme &theme);
};

} // namespace quillon
