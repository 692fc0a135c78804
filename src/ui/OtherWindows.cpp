// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/OtherWindows.h"

#include "presence/Presence.h"
#include "presentation/preferences/PreferencesWindowModel.h"
#include "ui/preferences/AboutPreferencesView.h"
#include "ui/preferences/DisplayPreferencesView.h"
#include "ui/preferences/GeneralPreferencesView.h"
#include "ui/vendors/VendorPreferencesViewController.h"

namespace quillon {

OtherWindows::OtherWindows(const Models &models, const Theme &theme, const Desktop &desktop)
    : m_models(models)
    , m_theme(theme)
    , m_desktop(desktop)
{
    connect(&m_models.presence, &Presence::destinationChosen, this, &OtherWindows::goTo);
    connect(&m_models.preferences.window, &PreferencesWindowModel::windowOpened, this,
        &OtherWindows::openPreferences);
    for (const Destination destination :
        {Destination::SavedItems, Destination::Preferences, Destination::About}) {
        m_models.presence.offer(destination);
    }
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
        m_preferences =
            std::make_unique<PreferencesWindow>(m_models.preferences, m_theme, m_desktop.taskBar);
        addPanes();
    }
    m_preferences->bringUp();
}

void OtherWindows::addPanes()
{
    PreferencesWindow &window = *m_preferences;
    window.addPane(PreferencesPane::General, new GeneralPreferencesView(m_models.general, m_theme));
    window.addPane(
        PreferencesPane::Advanced, new AdvancedPreferencesView(m_models.advanced, m_theme));
    window.addPane(PreferencesPane::Display, new DisplayPreferencesView(m_models.display, m_theme));
    window.addPane(PreferencesPane::VendorData,
        new VendorPreferencesViewController(m_models.vendorData, m_theme));
    window.addPane(PreferencesPane::About, new AboutPreferencesView(m_models.about, m_theme));
}

} // namespace quillon
