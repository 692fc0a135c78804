// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/widgets/SecondaryWindow.h"

class QAction;
class QLabel;
class QProgressBar;
class QPushButton;
class QStackedWidget;

namespace quillon {

class EditMenuModel;
class EmptyState;
class HistoryController;
class HistoryTable;
class InlineLine;
class Scheduler;
class SearchField;
class Theme;
class Toast;

/// The history's window: search, table, and what can be done with the selected records.
class HistoryWindow : public SecondaryWindow
{
    Q_OBJECT

public:
    struct Models
    {
        HistoryController &history;
        EditMenuModel &edit;
        Presence &presence;
    };

    HistoryWindow(const Models &models, const Theme &theme, Scheduler &scheduler, TaskBar &taskBar);
    ~HistoryWindow() override;

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    QWidget *makeTop();
    QWidget *makeList();
    QWidget *makeWork();
    QWidget *makeButtons();
    QPushButton *makeButton(QAction &action, const QString &symbol, const QString &look);
    QAction *makeAction(const QString &objectName, const QString &text, const QString &hint,
        std::function<void()> act);
    void makeKeys(EditMenuModel &edit);
    void openMenu(const QPoint &place);
    void askForFile();
    void refresh();
    void refreshWork();

    HistoryController &m_model;
    const Theme &m_theme;
    QAction *m_saveAddresses;
    QAction *m_saveNetworks;
    QAction *m_export;
    QAction *m_delete;
    QLabel *m_summary;
    SearchField *m_search;
    HistoryTable *m_table;
    EmptyState *m_empty;
    QStackedWidget *m_list;
    QLabel *m_detail;
    InlineLine *m_failure;
    QWidget *m_work;
    QLabel *m_workText;
    QProgressBar *m_progress;
    Toast *m_toast;
};

} // namespace quillon
