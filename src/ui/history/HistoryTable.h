// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "presentation/history/HistoryController.h"

#include <QTableView>

namespace quillon {

class HistoryNoteDelegate;
class HistoryRows;
class Theme;

/// The history as a table: one row of fixed height for each record, however many there are. Only
/// what is in sight is read.
class HistoryTable : public QTableView
{
    Q_OBJECT

public:
    static constexpr int recordHeight = 32; ///< with usual texts

    HistoryTable(HistoryController &controller, const Theme &theme, QWidget *parent = nullptr);

    /// The note of the current row.
    void editNote();
    /// Gives it the keyboard, on a row that is selected.
    void takeKeyboard();

    /// A row is what is found by typing, in the search field.
    void keyboardSearch(const QString &) override {}

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    /// Tells customContextMenuRequested(); by the key, the menu is for the current row.
    void contextMenuEvent(QContextMenuEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    void reset() override;
    void rowsInserted(const QModelIndex &parent, int start, int end) override;
    void selectionChanged(
        const QItemSelection &selected, const QItemSelection &deselected) override;

private:
    void makeColumns();
    QList<int> usualWidths() const;
    void setMeasures();
    void rememberWidths();
    void fold();
    void showOrder();
    void sortByColumn(int section);
    void tellSelection();
    void selectOne(qsizetype row);
    void noteWhereItIs();
    void selectAgain();
    void closeNote();

    HistoryController &m_controller;
    HistoryRows *m_rows;
    HistoryNoteDelegate *m_delegate;
    bool m_fromTop = true;        ///< the next list is another one
    QList<qint64> m_selectedKeys; ///< across a reset
    int m_scrolled = 0;
};

} // namespace quillon
