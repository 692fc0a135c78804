// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class QBoxLayout;
class QPushButton;
class QVBoxLayout;

namespace quillon {

class EmptyState;
class RulesListView;
class RulesPreferencesViewController;
class RulesTableModel;
class Strip;
class Theme;

/// The list of all rules with its commands below it, or what stands there while there is none.
class RulesListPage : public QWidget
{
    Q_OBJECT

public:
    RulesListPage(RulesTableModel &table, RulesPreferencesViewController &editor,
        const Theme &theme, QWidget *parent = nullptr);

    /// What gets the keyboard when the page is entered.
    QWidget *firstControl() const;
    /// Puts it under the list: the rows stay under the pointer when it comes and goes.
    void takeStrip(Strip *strip);

    /// Those below the list.
    const QWidget &buttons() const { return *m_bar; }

    QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    using Command = void (RulesPreferencesViewController::*)();

    QPushButton *makeButton(const Theme &theme, const QString &icon, const QString &text,
        const QString &toolTip, Command command);
    void refresh();

    RulesTableModel &m_table;
    RulesPreferencesViewController &m_editor;
    RulesListView *m_list;
    EmptyState *m_empty;
    QWidget *m_card;
    QVBoxLayout *m_column;
    QWidget *m_bar;
    QBoxLayout *m_buttons;           ///< in one line where there is room, else in two
    QList<QPushButton *> m_commands; ///< on what is selected
    QPushButton *m_addRule;
};

} // namespace quillon
