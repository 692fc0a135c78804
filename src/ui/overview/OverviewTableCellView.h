// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "presentation/overview/OverviewController.h"

#include <QFrame>

class QBoxLayout;
class QPushButton;

namespace quillon {

class BusyButton;
class InlineLine;
class OverviewCountdown;
class OverviewFacts;
class Theme;

/// The card of one interface. It mirrors an OverviewCell and calls the controller. What is in it is
/// made when it comes into sight for the first time: until then it only keeps its place, and says
/// to assistive technology which interface it is.
class OverviewTableCellView : public QFrame
{
    Q_OBJECT

public:
    /// Both go after it.
    OverviewTableCellView(OverviewController &controller, int row, const Theme &theme);

    const OverviewRow &row() const { return m_cell.row(); }
    bool isFilled() const { return m_facts != nullptr; }
    void fill();
    /// How high it takes itself to be as long as nothing is in it.
    void setUsualHeight(int height);
    /// Whether Tab stops in it: in one row of the list.
    void setCurrent(bool current);
    /// The place of `control` among its buttons; -1 for the card itself.
    int placeOf(const QWidget *control) const;
    /// Gives the keyboard to that button, to the card where that cannot be used.
    void focusPlace(int place);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// A key that leads to another row was pressed in it.
    void keyToOtherRow(int key);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    int actionsWidth() const;
    int leastWidth() const;
    void makeActions();
    QPushButton *makeQuiet(const QString &objectName, const QString &icon, int iconSize);
    void nameActions();
    void arrange();
    void refresh();
    void refreshActions();
    void updateRuleButton();
    void describe();
    bool leadsToOtherRow(QKeyEvent *event);

    OverviewController &m_controller;
    OverviewCell &m_cell;
    int m_row;
    const Theme &m_theme;
    int m_usualHeight = 0;
    bool m_isCurrent = false;

    OverviewFacts *m_facts = nullptr;
    QBoxLayout *m_top = nullptr;
    QWidget *m_actions = nullptr;
    QPushButton *m_rules = nullptr;
    BusyButton *m_randomize = nullptr;
    BusyButton *m_restore = nullptr;
    QPushButton *m_configure = nullptr;
    OverviewCountdown *m_countdown = nullptr;
    InlineLine *m_line = nullptr;
    std::optional<RuleStatusSign> m_shownRules;
    QList<QWidget *> m_controls; ///< in the order of Tab
};

} // namespace quillon
