// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/networks/SavedItemsView.h"
#include "ui/widgets/SecondaryWindow.h"

namespace quillon {

class RemovedFavorite;
class Scheduler;

/// A window of its own for the saved networks and addresses. Main thread.
class SavedItemsWindow : public SecondaryWindow
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
};

} // namespace quillon
