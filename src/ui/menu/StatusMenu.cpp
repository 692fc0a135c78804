// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/menu/StatusMenu.h"

#include "ui/widgets/PlainText.h"

#include <QSet>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

/// A submenu belongs to the menu, not to the action that opens it.
void dropSubmenu(QAction &action)
{
    if (QMenu *submenu = action.menu()) {
        action.setMenu(static_cast<QMenu *>(nullptr));
        submenu->deleteLater();
    }
}

} // namespace

QString menuText(const QString &title)
{
    return plainLine(title).replace(u'&', u"&&"_s);
}

QString exportedMenuText(const QString &title)
{
    // There an underscore marks a mnemonic, and an ampersand is itself. Qt turns the first
    // ampersand into an underscore, unless it is the last character, and leaves the others alone.
    QString text = plainLine(title).replace(u'_', u"__"_s);
    const auto first = text.indexOf(u'&');
    if (first >= 0 && first < text.size() - 1) {
        text.insert(first, u'&');
    }
    return text;
}

QStringList menuEntryKeys(const std::vector<MenuEntry> &entries)
{
    QStringList keys;
    QString section = u"top"_s;
    int place = 0;
    for (const MenuEntry &entry : entries) {
        if (entry.action == MenuEntry::Action::ChangeInterface) {
            section = u"interface "_s + entry.title;
            place = 0;
        } else if (entry.action == MenuEntry::Action::Quit) {
            section = u"quit"_s;
            place = 0;
        }
        keys.append(section + u'/' + QString::number(place++));
    }
    return keys;
}

StatusMenu::StatusMenu(StatusMenuModel &model)
    : m_model(model)
{
    connect(this, &QMenu::aboutToShow, this, [this] { m_model.menuWillOpen(); });
    connect(&m_model, &StatusMenuModel::changed, this, &StatusMenu::refresh);
    refresh();
}

void StatusMenu::refresh()
{
    const auto &entries = m_model.entries();
    const QStringList keys = menuEntryKeys(entries);
    const QSet<QString> wanted(keys.begin(), keys.end());
    for (auto entry = m_actions.begin(); entry != m_actions.end();) {
        if (wanted.contains(entry.key())) {
            ++entry;
        } else {
            removeAction(entry.value());
            dropSubmenu(*entry.value());
            entry.value()->deleteLater();
            entry = m_actions.erase(entry);
        }
    }
    bool afterSeparator = true;
    for (qsizetype index = 0; index < keys.size(); ++index) {
        const MenuEntry &entry = entries[static_cast<size_t>(index)];
        QAction *action = takeOrMake(keys.at(index));
        const auto present = actions();
        QAction *there = index < present.size() ? present.at(index) : nullptr;
        show(*action, entry, afterSeparator);
        if (there != action) {
            insertAction(there, action);
        }
        afterSeparator = entry.isSeparator();
    }
}

QAction *StatusMenu::takeOrMake(const QString &key)
{
    QAction *&action = m_actions[key];
    if (action == nullptr) {
        action = new QAction(this);
        connect(action, &QAction::triggered, this, [this, made = action] { activate(*made); });
    }
    return action;
}

QString StatusMenu::textOf(const MenuEntry &entry)
{
    const bool isExported = platformMenu() != nullptr;
    return isExported ? exportedMenuText(entry.title) : menuText(entry.title);
}

void StatusMenu::show(QAction &action, const MenuEntry &entry, bool afterSeparator)
{
    action.setSeparator(entry.isSeparator());
    action.setVisible(!entry.isSeparator() || !afterSeparator);
    action.setText(textOf(entry));
    action.setEnabled(entry.isEnabled());
    action.setCheckable(entry.action == MenuEntry::Action::ChangeInterface);
    action.setChecked(entry.checked);
    showSubmenu(action, entry.submenu);
}

void StatusMenu::showSubmenu(QAction &action, const std::vector<MenuEntry> &entries)
{
    QMenu *submenu = action.menu();
    if (entries.empty()) {
        dropSubmenu(action);
        return;
    }
    if (submenu == nullptr) {
        submenu = new QMenu(this);
        action.setMenu(submenu);
    }
    auto items = submenu->actions();
    while (items.size() > static_cast<qsizetype>(entries.size())) {
        // Later: it may be the one whose click is being handled.
        QAction *item = items.takeLast();
        submenu->removeAction(item);
        item->deleteLater();
    }
    for (size_t index = 0; index < entries.size(); ++index) {
        if (static_cast<qsizetype>(index) == items.size()) {
            QAction *made = submenu->addAction(QString());
            // A click means nothing once the item that the submenu belongs to has gone.
            connect(made, &QAction::triggered, &action,
                [this, &action, made] { activate(action, *made); });
            items.append(made);
        }
        QAction *item = items.at(static_cast<qsizetype>(index));
        item->setText(textOf(entries[index]));
        item->setEnabled(entries[index].isEnabled());
    }
}

void StatusMenu::activate(const QAction &action)
{
    const int index = static_cast<int>(actions().indexOf(&action));
    m_model.activate({index});
    // A click ticks an action by itself; what is ticked is the model's word.
    refresh();
}

void StatusMenu::activate(const QAction &parent, const QAction &action)
{
    const int index = static_cast<int>(actions().indexOf(&parent));
    const int place =
        parent.menu() == nullptr ? -1 : static_cast<int>(parent.menu()->actions().indexOf(&action));
    m_model.activate({index, place});
}

} // namespace quillon
