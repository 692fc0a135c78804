// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "presentation/menu/MenuModel.h"

#include <QHash>
#include <QMenu>

namespace quillon {

/// A menu that mirrors a MenuModel. A host outside of this process may show it, which knows its
/// items by numbers that follow the actions' lives, so an item that stays is kept and only
/// rewritten, and keeps its meaning for as long as it lives.
class MenuView : public QMenu
{
    Q_OBJECT

public:
    explicit MenuView(MenuModel &model);

    /// Shows what the model has. Also to be called when the menu was given to a status item: a host
    /// reads the marks in a title in another way than a menu of this process.
    void refresh();

    /// Keys that choose the entry while a window that has the menu has the keyboard.
    void setShortcut(const QString &entryKey, const QKeySequence &keys);

private:
    QAction *takeOrMake(const QString &key);
    void dropOthers(const std::vector<MenuEntry> &entries);
    QString textOf(const MenuEntry &entry);
    void show(QAction &action, const MenuEntry &entry, bool afterSeparator);
    void showSubmenu(QAction &action, const std::vector<MenuEntry> &entries);
    void retitle(int index);
    void activate(const QAction &action);
    void activate(const QAction &parent, const QAction &action);

    MenuModel &m_model;
    QHash<QString, QAction *> m_actions; ///< by the entry's key
    QHash<QString, QKeySequence> m_shortcuts;
};

/// A title as an action's text that reads like it, without a mnemonic: in a menu of this process,
/// and in one that Qt exports over the bus for a host to show.
QString menuText(const QString &title);
QString exportedMenuText(const QString &title);

} // namespace quillon
