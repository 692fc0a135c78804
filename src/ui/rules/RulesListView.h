// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractListModel>
#include <QListView>
#include <QPersistentModelIndex>

namespace quillon {

class RulesPreferencesViewController;
class RulesTableModel;
class Theme;

/// The rules of RulesTableModel as rows of a list.
class RuleRows : public QAbstractListModel
{
    Q_OBJECT

public:
    RuleRows(RulesTableModel &table, RulesPreferencesViewController &editor, QObject *parent);

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    /// The switch or the name, by the user.
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    /// Rows come and go: what is selected meanwhile is nobody's choice.
    bool isChanging() const { return m_changes; }

private:
    void refresh();
    /// Takes rows out and puts others in, so that `rules` are shown.
    void exchange(const QStringList &rules);
    /// What the rule does, and why it is or is not in force.
    QString saidOf(int row) const;

    RulesTableModel &m_table;
    RulesPreferencesViewController &m_editor;
    QStringList m_shown; ///< the rules, in the order of the rows
    bool m_changes = false;
};

/// The list of all rules, with a switch in each row. Space switches, Return or a double click
/// edits, F2 renames, Ctrl+D duplicates, Delete deletes, Ctrl+Z undoes.
class RulesListView : public QListView
{
    Q_OBJECT

public:
    RulesListView(RulesTableModel &table, RulesPreferencesViewController &editor,
        const Theme &theme, QWidget *parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void selectionChanged(
        const QItemSelection &selected, const QItemSelection &deselected) override;
    void currentChanged(const QModelIndex &current, const QModelIndex &previous) override;

private:
    /// Selects what the model says is selected.
    void refresh();
    void tellSelection();

    RulesTableModel &m_table;
    RulesPreferencesViewController &m_editor;
    RuleRows *m_rows = nullptr;
    QPersistentModelIndex m_pressed; ///< by the last press, since the list got the keyboard
    bool m_mirrors = false;          ///< the selection comes from the model, not from the user
};

} // namespace quillon
