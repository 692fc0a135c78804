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

private:
    void refresh();
    QAction *takeOrMake(const QString &key);
    void show(QAction &action, const MenuEntry &entry, bool afterSeparator);
    void showSubmenu(QAction &action, const std::vector<MenuEntry> &entries);
    void activate(const QAction &action);
    void activate(const QAction &parent, const QAction &action);

    StatusMenuModel &m_model;
    QHash<QString, QAction *> m_actions; ///< by section and place in it
};

/// What each entry is, whatever it says at the moment: its section (an interface's title, or what
/// the section is for) and its place in the section.
QStringList menuEntryKeys(const std::vector<MenuEntry> &entries);

} // namespace quillon
