// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "presentation/menu/StatusMenuModel.h"

#include <QHash>
#include <QMenu>

namespace quillon {

/// The status item's menu: mirrors StatusMenuModel. A host outside of this process shows it and
/// knows its items by numbers that follow the actions' lives, so an item that stays is kept and
/// only rewritten. An item keeps its meaning for as long as it lives: the place it has in its
/// interface's section.
class StatusMenu : public QMenu
{
    Q_OBJECT

public:
    explicit StatusMenu(StatusMenuModel &model);

    /// Shows what the model has. Also to be called when the menu was given to a status item: a host
    /// reads the marks in a title in another way than a menu of this process.
    void refresh();

private:
    QAction *takeOrMake(const QString &key);
    QString textOf(const MenuEntry &entry);
    void show(QAction &action, const MenuEntry &entry, bool afterSeparator);
    void showSubmenu(QAction &action, const std::vector<MenuEntry> &entries);
    void activate(const QAction &action);
    void activate(const QAction &parent, const QAction &action);

    StatusMenuModel &m_model;
    QHash<QString, QAction *> m_actions; ///< by section and place in it
};

/// A title as an action's text that reads like it, without a mnemonic: in a menu of this process,
/// and in one that Qt exports over the bus for a host to show.
QString menuText(const QString &title);
QString exportedMenuText(const QString &title);

/// What each entry is, whatever it says at the moment: its section (an interface's title, or what
/// the section is for) and its place in the section.
QStringList menuEntryKeys(const std::vector<MenuEntry> &entries);

} // namespace quillon
