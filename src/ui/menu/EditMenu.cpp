// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/menu/EditMenu.h"

#include "base/Localized.h"
#include "presentation/menu/EditMenuModel.h"

#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QMimeData>

namespace quillon {

namespace {

bool clipboardHasText()
{
    const QMimeData *content = QGuiApplication::clipboard()->mimeData();
    return content != nullptr && content->hasText();
}

} // namespace

template <typename Edit>
QAction *EditMenu::addEdit(const QString &text, QKeySequence::StandardKey key, Edit edit)
{
    QAction *action = addAction(text);
    // Fields have these keys themselves, and where no field is they may mean something else.
    action->setShortcut(key);
    action->setShortcutContext(Qt::WidgetShortcut);
    connect(action, &QAction::triggered, this, [this, edit] {
        if (m_field) {
            (m_field->*edit)();
        }
    });
    return action;
}

EditMenu::EditMenu(EditMenuModel &model, QWidget *parent)
    : QMenu(localized("Edit"), parent)
    , m_model(model)
{
    m_undo = addStep(localized("Undo"), QKeySequence::Undo, Step::Undo);
    m_redo = addStep(localized("Redo"), QKeySequence::Redo, Step::Redo);
    addSeparator();
    m_cut = addEdit(localized("Cut"), QKeySequence::Cut, &QLineEdit::cut);
    m_copy = addEdit(localized("Copy"), QKeySequence::Copy, &QLineEdit::copy);
    m_paste = addEdit(localized("Paste"), QKeySequence::Paste, &QLineEdit::paste);
    m_delete = addEdit(localized("Delete"), QKeySequence::Delete, &QLineEdit::del);
    m_selectAll = addEdit(localized("Select All"), QKeySequence::SelectAll, &QLineEdit::selectAll);
    addSeparator();
    m_save = addAction(localized("Save"));
    m_save->setShortcut(QKeySequence::Save);
    m_save->setAutoRepeat(false);
    connect(m_save, &QAction::triggered, &m_model, &EditMenuModel::save);
    connect(&m_model, &EditMenuModel::changed, this, &EditMenu::refresh);
    connect(this, &QMenu::aboutToShow, this, &EditMenu::refresh);
    connect(qApp, &QApplication::focusChanged, this,
        [this](QWidget *, QWidget *focused) { follow(focused); });
    follow(QApplication::focusWidget());
}

QAction *EditMenu::addStep(const QString &text, QKeySequence::StandardKey key, Step step)
{
    QAction *action = addAction(text);
    action->setShortcuts(key);
    connect(action, &QAction::triggered, this, [this, step] { take(step); });
    return action;
}

void EditMenu::follow(QWidget *focused)
{
    if (qobject_cast<QMenu *>(focused) == nullptr) {
        m_field = qobject_cast<QLineEdit *>(focused);
    }
    refresh();
}

bool EditMenu::fieldCan(Step step) const
{
    // By name, so that a field with a history of its own answers for that.
    return m_field && m_field->isEnabled() &&
           m_field->property(step == Step::Undo ? "undoAvailable" : "redoAvailable").toBool();
}

void EditMenu::take(Step step)
{
    if (fieldCan(step)) {
        QMetaObject::invokeMethod(m_field, step == Step::Undo ? "undo" : "redo");
    } else if (step == Step::Undo) {
        m_model.undo();
    } else {
        m_model.redo();
    }
}

void EditMenu::refresh()
{
    const auto &records = m_model.state();
    m_undo->setEnabled(fieldCan(Step::Undo) || records.undoEnabled);
    m_redo->setEnabled(fieldCan(Step::Redo) || records.redoEnabled);
    m_save->setEnabled(records.saveEnabled);
    const bool isWritable = m_field && m_field->isEnabled() && !m_field->isReadOnly();
    const bool hasSelection = m_field && m_field->hasSelectedText();
    m_cut->setEnabled(isWritable && hasSelection);
    m_copy->setEnabled(hasSelection);
    m_paste->setEnabled(isWritable && clipboardHasText());
    m_delete->setEnabled(isWritable && hasSelection);
    m_selectAll->setEnabled(m_field && !m_field->text().isEmpty());
}

} // namespace quillon
