// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "presence/Destination.h"
#include "ui/networks/SavedItemsView.h"
#include "ui/preferences/PreferencesWindow.h"
#include "ui/rules/RulesPane.h"

#include <QObject>

#include <memory>

namespace quillon {

class RemovedFavorite;
class Scheduler;
class VendorFieldModel;

/// The windows beside the main one. Each is made when it is first wanted. Main thread.
class OtherWindows : public QObject
{
    Q_OBJECT

public:
    struct Models
    {
        Presence &presence;
        PreferencesWindow::Models preferences;
        SavedItemsView::Models savedItems;
        RemovedFavorite &removedFromSavedItems;
        RulesPane::Models rules;
        VendorFieldModel &ruleVendor;
    };
    struct Desktop
    {
        Scheduler &scheduler;
        TaskBar &taskBar;
    };

    OtherWindows(const Models &models, const Theme &theme, const Desktop &desktop);
    ~OtherWindows() override;

private:
    void openPreferences();
    void addRulesPane();

    Models m_models;
    const Theme &m_theme;
    Desktop m_desktop;
    std::unique_ptr<PreferencesWindow> m_preferences;
};

} // namespace quillon
