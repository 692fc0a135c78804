// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMenu>
#include <QPointer>

class QLineEdit;

namespace quillon {

class EditMenuModel;

/// The Edit menu of a window: it acts on the field of text that has the keyboard and, for undo and
/// redo where that cannot and for saving, on the records. What cannot be done is disabled.
class EditMenu : public QMenu
{
    Q_OBJECT

public:
    EditMenu(EditMenuModel &model, QWidget *parent);

private:
    enum class Step
    {
        Undo,
        Redo,
    };
    template <typename Edit>
    QAction *addEdit(const QString &text, QKeySequence::StandardKey key, Edit edit);
    QAction *addStep(const QString &text, QKeySequence::StandardKey key, Step step);
    void follow(QWidget *focused);
    void refresh();
    void take(Step step);
    bool fieldCan(Step step) const;

    EditMenuModel &m_model;
    QPointer<QLineEdit> m_field; ///< that has the keyboard, also while a menu is open
    QAction *m_undo = nullptr;
    QAction *m_redo = nullptr;
    QAction *m_cut = nullptr;
    QAction *m_copy = nullptr;
    QAction *m_paste = nullptr;
    QAction *m_delete = nullptr;
    QAction *m_selectAll = nullptr;
    QAction *m_save = nullptr;
};

} // namespace quillon
