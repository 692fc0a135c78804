// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/OtherWindows.h"

#include "presence/Presence.h"
#include "presentation/preferences/PreferencesWindowModel.h"
#include "ui/updates/UpdatesPane.h"

namespace quillon {

OtherWindows::OtherWindows(const Models &models, const Theme &theme, const Desktop &desktop)
    : m_models(models)
    , m_theme(theme)
    , m_desktop(desktop)
{
    connect(&m_models.presence, &Presence::destinationChosen, this, &OtherWindows::goTo);
    connect(&m_models.preferences.window, &PreferencesWindowModel::windowOpened, this,
        &OtherWindows::openPreferences);
    m_models.presence.offer(Destination::SavedItems);
    m_models.presence.offer(Destination::Preferences);
}

OtherWindows::~OtherWindows() = default;

void OtherWindows::goTo(Destination destination)
{
    if (destination == Destination::SavedItems) {
        openSavedItems();
    }
}

void OtherWindows::openSavedItems()
{
    if (m_savedItems == nullptr) {
        m_savedItems = std::make_unique<SavedItemsWindow>(
            m_models.savedItems, m_theme, m_desktop.scheduler, m_desktop.taskBar);
    }
    m_savedItems->bringUp();
}

void OtherWindows::openPreferences()
{
    if (m_preferences == nullptr) {
        makePreferences();
    }
    m_preferences->bringUp();
}

void OtherWindows::makePreferences()
{
    m_preferences =
        std::make_unique<PreferencesWindow>(m_models.preferences, m_theme, m_desktop.taskBar);
    m_preferences->addPane(PreferencesPane::Updates, new UpdatesPane(m_models.updates, m_theme));
}

} // namespace quillon
