// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/menu/MenuView.h"

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

MenuView::MenuView(MenuModel &model)
    : m_model(model)
{
    setToolTipsVisible(true);
    connect(this, &QMenu::aboutToShow, this, [this] { m_model.menuWillOpen(); });
    connect(this, &QMenu::aboutToHide, this, [this] { m_model.menuDidClose(); });
    connect(&m_model, &MenuModel::changed, this, &MenuView::refresh);
    connect(&m_model, &MenuModel::retitled, this, &MenuView::retitle);
    refresh();
}

void MenuView::setShortcut(const QString &entryKey, const QKeySequence &keys)
{
    m_shortcuts[entryKey] = keys;
    if (QAction *action = m_actions.value(entryKey)) {
        action->setShortcut(keys);
    }
}

void MenuView::refresh()
{
    const auto &entries = m_model.entries();
    dropOthers(entries);
    bool afterSeparator = true;
    for (size_t index = 0; index < entries.size(); ++index) {
        const MenuEntry &entry = entries[index];
        QAction *action = takeOrMake(entry.key);
        QAction *there = actions().value(static_cast<qsizetype>(index));
        show(*action, entry, afterSeparator);
        if (there != action) {
            insertAction(there, action);
        }
        afterSeparator = entry.isSeparator();
    }
}

void MenuView::dropOthers(const std::vector<MenuEntry> &entries)
{
    QSet<QString> wanted;
    for (const MenuEntry &entry : entries) {
        wanted.insert(entry.key);
    }
    for (auto action = m_actions.begin(); action != m_actions.end();) {
        if (wanted.contains(action.key())) {
            ++action;
        } else {
            removeAction(action.value());
            dropSubmenu(*action.value());
            action.value()->deleteLater();
            action = m_actions.erase(action);
        }
    }
}

void MenuView::retitle(int index)
{
    actions().at(index)->setText(textOf(m_model.entries()[static_cast<size_t>(index)]));
}

QAction *MenuView::takeOrMake(const QString &key)
{
    QAction *&action = m_actions[key];
    if (action == nullptr) {
        action = new QAction(this);
        action->setShortcut(m_shortcuts.value(key));
        action->setAutoRepeat(false);
        connect(action, &QAction::triggered, this, [this, made = action] { activate(*made); });
    }
    return action;
}

QString MenuView::textOf(const MenuEntry &entry)
{
    const bool isExported = platformMenu() != nullptr;
    return isExported ? exportedMenuText(entry.title) : menuText(entry.title);
}

void MenuView::show(QAction &action, const MenuEntry &entry, bool afterSeparator)
{
    action.setSeparator(entry.isSeparator());
    action.setVisible(!entry.isSeparator() || !afterSeparator);
    action.setText(textOf(entry));
    action.setToolTip(plainToolTip(entry.hint));
    action.setEnabled(entry.isEnabled());
    action.setCheckable(entry.action == MenuEntry::Action::ChangeInterface);
    action.setChecked(entry.checked);
    showSubmenu(action, entry.submenu);
}

void MenuView::showSubmenu(QAction &action, const std::vector<MenuEntry> &entries)
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

void MenuView::activate(const QAction &action)
{
    const int index = static_cast<int>(actions().indexOf(&action));
    m_model.activate({index});
    // A click ticks an action by itself; what is ticked is the model's word.
    refresh();
}

void MenuView::activate(const QAction &parent, const QAction &action)
{
    const int index = static_cast<int>(actions().indexOf(&parent));
    const int place =
        parent.menu() == nullptr ? -1 : static_cast<int>(parent.menu()->actions().indexOf(&action));
    m_model.activate({index, place});
}

} // namespace quillon
