// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/networks/SavedItemsView.h"

#include <QWidget>

namespace quillon {

class Presence;
class RemovedFavorite;
class Scheduler;
class TaskBar;

/// A window of its own for the saved networks and addresses. Closing it only hides it: the program
/// goes on. Main thread.
class SavedItemsWindow : public QWidget
{
    Q_OBJECT

public:
    struct Models
    {
        SavedItemsView::Models view;
        RemovedFavorite &removed;
        Presence &presence;
    };

    SavedItemsWindow(
        const Models &models, const Theme &theme, Scheduler &scheduler, TaskBar &taskBar);
    ~SavedItemsWindow() override;

    /// Shows it in front, with the keyboard.
    void bringUp();

protected:
    void showEvent(QShowEvent *event) override;

private:
    void makeShortcuts();
    void followTaskBar();

    Presence &m_presence;
    TaskBar &m_taskBar;
};

} // namespace quillon
