// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/widgets/RevealingScrollArea.h"

class QVBoxLayout;

namespace quillon {

class OverviewController;
class OverviewTableCellView;
class Theme;

/// The cards of all interfaces, one below the other. Only those that have been in sight have
/// anything in them: there may be hundreds. To the keyboard the list is one stop: arrows lead from
/// row to row, Tab through the buttons of one.
class OverviewTable : public RevealingScrollArea
{
    Q_OBJECT

public:
    explicit OverviewTable(const Theme &theme, QWidget *parent = nullptr);

    /// Null for none. It outlives its cards.
    void setController(OverviewController *controller);
    /// Has all rows inside the visible part draw themselves.
    void reloadVisibleRows();
    OverviewTableCellView *cell(int row) const;
    /// By how much its rows are higher than what is seen of them; negative where they are less.
    int hiddenHeight() const;
    /// Gives the keyboard to the current row, if there is one.
    void focusCurrentRow();

protected:
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    /// What is to be the same when the rows were made anew.
    struct Place
    {
        int scrolled = 0;
        QString device; ///< of the current row
        int control = -1;
        bool hasKeyboard = false;
    };

    void removeRows();
    void makeRows();
    OverviewTableCellView *viewForRow(int row);
    void layOut();
    bool fillInSight();
    void follow(QWidget *focused);
    void setCurrent(OverviewTableCellView *current);
    void moveFrom(OverviewTableCellView *from, int key);
    int rowsOnAPage() const;

    const Theme &m_theme;
    OverviewController *m_controller = nullptr;
    QVBoxLayout *m_column;
    QList<OverviewTableCellView *> m_cells;
    OverviewTableCellView *m_current = nullptr;
    Place m_place;
};

} // namespace quillon
