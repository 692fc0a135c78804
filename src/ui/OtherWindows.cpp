// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/OtherWindows.h"

#include "presence/Presence.h"
#include "presentation/overview/Overview.h"
#include "presentation/preferences/PreferencesWindowModel.h"

namespace quillon {

OtherWindows::OtherWindows(const Models &models, const Theme &theme, const Desktop &desktop)
    : m_models(models)
    , m_theme(theme)
    , m_desktop(desktop)
{
    connect(&m_models.presence, &Presence::destinationChosen, this, &OtherWindows::goTo);
    connect(&m_models.preferences.window, &PreferencesWindowModel::windowOpened, this,
        &OtherWindows::openPreferences);
    for (const Destination destination : {Destination::Overview, Destination::History,
             Destination::Preferences, Destination::SavedItems, Destination::Rules,
             Destination::NewNetworkRule, Destination::NewLoginRule, Destination::About}) {
        m_models.presence.offer(destination);
    }
}

OtherWindows::~OtherWindows() = default;

// The preferences say themselves when they are wanted.
void OtherWindows::goTo(Destination destination)
{
    if (destination == Destination::Overview) {
        openOverview();
    } else if (destination == Destination::History) {
        openHistoryWindow();
    }
}

void OtherWindows::openHistoryWindow()
{
    if (m_history == nullptr) {
        m_history = std::make_unique<HistoryWindow>(
            m_models.history, m_theme, m_desktop.scheduler, m_desktop.taskBar);
    }
    m_history->bringUp();
}

void OtherWindows::openPreferences()
{
    if (m_preferences == nullptr) {
        m_preferences =
            std::make_unique<PreferencesWindow>(m_models.preferences, m_theme, m_desktop.taskBar);
        addPanes(*m_preferences, m_models.panes, m_theme, m_desktop.scheduler);
    }
    m_preferences->bringUp();
}

void OtherWindows::openOverview()
{
    m_models.overview.overview.openOverviewWindow();
    if (m_overview == nullptr) {
        m_overview =
            std::make_unique<OverviewWindow>(m_models.overview, m_theme, m_desktop.taskBar);
    }
    m_overview->bringUp();
}

} // namespace quillon
