// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/OtherWindows.h"

#include "presence/Presence.h"
#include "presentation/preferences/PreferencesWindowModel.h"
#include "ui/networks/FavoriteToast.h"
#include "ui/rules/DeletedRulesToast.h"
#include "ui/vendors/VendorChooser.h"

#include <QCoreApplication>

namespace quillon {

OtherWindows::OtherWindows(const Models &models, const Theme &theme, const Desktop &desktop)
    : m_models(models)
    , m_theme(theme)
    , m_desktop(desktop)
{
    connect(&m_models.preferences.window, &PreferencesWindowModel::windowOpened, this,
        &OtherWindows::openPreferences);
    for (const Destination destination : {Destination::SavedItems, Destination::Rules,
             Destination::NewNetworkRule, Destination::NewLoginRule}) {
        m_models.presence.offer(destination);
    }
}

OtherWindows::~OtherWindows() = default;

void OtherWindows::openPreferences()
{
    if (m_preferences == nullptr) {
        m_preferences =
            std::make_unique<PreferencesWindow>(m_models.preferences, m_theme, m_desktop.taskBar);
        addRulesPane();
    }
    m_preferences->bringUp();
}

void OtherWindows::addRulesPane()
{
    auto *savedItems = new SavedItemsView(m_models.savedItems, m_theme);
    auto *vendorField =
        new VendorChooser(m_models.ruleVendor, m_theme, VendorChooser::Caption::Beside);
    m_preferences->addPane(
        PreferencesPane::Rules, new RulesPane(m_models.rules, m_theme, {savedItems, vendorField}));
    // They lie over the rest.
    QWidget *window = m_preferences.get();
    new FavoriteToast(m_models.removedFromSavedItems, m_theme, m_desktop.scheduler, window);
    new DeletedRulesToast(m_models.rules.editor, m_theme, m_desktop.scheduler, window);
    // The program ends by the user's wish, or is ended.
    connect(&m_models.presence, &Presence::terminated, savedItems, &SavedItemsView::endEditing);
    connect(qApp, &QCoreApplication::aboutToQuit, savedItems, &SavedItemsView::endEditing);
}

} // namespace quillon
