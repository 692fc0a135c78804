// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "presence/Destination.h"
#include "ui/PreferencesPanes.h"
#include "ui/history/HistoryWindow.h"
#include "ui/overview/OverviewWindow.h"
#include "ui/preferences/PreferencesWindow.h"

#include <QObject>

#include <memory>

namespace quillon {

class AboutPreferencesViewController;
class DisplayPreferencesViewController;
class GeneralPreferencesViewController;
class VendorPaneModel;

/// The windows beside the main one. Each is made when it is first wanted. Main thread.
class OtherWindows : public QObject
{
    Q_OBJECT

public:
    struct Models
    {
        Presence &presence;
        PreferencesWindow::Models preferences;
        PreferencesPanes panes;
        OverviewWindow::Models overview;
        HistoryWindow::Models history;
    };
    struct Desktop
    {
        Scheduler &scheduler;
        TaskBar &taskBar;
    };

    OtherWindows(const Models &models, const Theme &theme, const Desktop &desktop);
    ~OtherWindows() override;

private:
    void goTo(Destination destination);
    void openHistoryWindow();
    void openPreferences();
    void openOverview();

    Models m_models;
    const Theme &m_theme;
    Desktop m_desktop;
    std::unique_ptr<HistoryWindow> m_history;
    std::unique_ptr<PreferencesWindow> m_preferences;
    std::unique_ptr<OverviewWindow> m_overview;
};

} // namespace quillon
