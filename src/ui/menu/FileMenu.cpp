// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/menu/FileMenu.h"

#include "base/Localized.h"
#include "presentation/menu/FileMenuModel.h"
#include "ui/menu/EditMenu.h"
#include "ui/theme/Theme.h"
#include "ui/widgets/PlainText.h"

#include <QToolButton>

namespace quillon {

using namespace Qt::StringLiterals;

FileMenu::FileMenu(FileMenuModel &model, EditMenuModel &editModel)
    : MenuView(model)
{
    setObjectName(u"fileMenu"_s);
    setAccessibleName(localized("File menu"));
    setShortcut(FileMenuModel::newNetworkRule, QKeySequence(Qt::CTRL | Qt::Key_N));
    setShortcut(FileMenuModel::newLoginRule, QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_N));
    setShortcut(FileMenuModel::closeWindow, QKeySequence(Qt::CTRL | Qt::Key_W));
    // Behind what the model has: it says where its own entries are by their numbers.
    insertMenu(nullptr, new EditMenu(editModel, this));
}

QToolButton *FileMenu::makeButton(const Theme &theme)
{
    auto *button = new QToolButton;
    button->setObjectName(u"fileMenuButton"_s);
    button->setAccessibleName(localized("File menu"));
    button->setToolTip(plainToolTip(localized("File menu (F10)")));
    button->setIcon(theme.icon(u"file-menu"_s, Theme::Ink::Text));
    button->setIconSize(QSize(Theme::iconSize, Theme::iconSize));
    button->setProperty("look", u"flat"_s);
    // A click leaves the keyboard where the Edit menu acts.
    button->setFocusPolicy(Qt::TabFocus);
    button->setPopupMode(QToolButton::InstantPopup);
    button->setShortcut(QKeySequence(Qt::Key_F10));
    button->setMenu(this);
    return button;
}

} // namespace quillon
