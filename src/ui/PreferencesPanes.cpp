// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/PreferencesPanes.h"

#include "presence/Presence.h"
#include "ui/networks/FavoriteToast.h"
#include "ui/networks/ImportToast.h"
#include "ui/preferences/AboutPreferencesView.h"
#include "ui/preferences/DisplayPreferencesView.h"
#include "ui/preferences/GeneralPreferencesView.h"
#include "ui/preferences/PreferencesWindow.h"
#include "ui/rules/DeletedRulesToast.h"
#include "ui/updates/UpdatePreferencesView.h"
#include "ui/vendors/VendorChooser.h"
#include "ui/vendors/VendorPreferencesView.h"

#include <QCoreApplication>
#include <QPushButton>

namespace quillon {

namespace {

/// Calls `end` when the program ends by the user's wish, or is ended.
template <typename Pane>
void whenTheProgramEnds(Presence &presence, Pane *pane, void (Pane::*end)())
{
    QObject::connect(&presence, &Presence::terminated, pane, end);
    QObject::connect(qApp, &QCoreApplication::aboutToQuit, pane, end);
}

void addRulesPane(PreferencesWindow &window, const PreferencesPanes &models, const Theme &theme,
    Scheduler &scheduler)
{
    auto *savedItems = new SavedItemsView(models.savedItems, theme);
    auto *vendorField = new VendorChooser(models.ruleVendor, theme, VendorChooser::Caption::Beside);
    auto *rules = new RulesPreferencesView(models.rules, theme, {savedItems, vendorField});
    window.addPane(PreferencesPane::Rules, rules);
    // They lie over the rest.
    new FavoriteToast(models.removedFavorite, theme, scheduler, &window);
    new ImportToast(models.savedItems.import, theme, scheduler, &window);
    auto *deleted = new DeletedRulesToast(models.rules.editor, theme, scheduler, &window);
    deleted->keepAbove(rules->buttons());
    whenTheProgramEnds(models.presence, savedItems, &SavedItemsView::endEditing);
}

} // namespace

void addPanes(PreferencesWindow &window, const PreferencesPanes &models, const Theme &theme,
    Scheduler &scheduler)
{
    auto *account = new CloudAccountRow(models.account, theme, &window);
    window.addPane(PreferencesPane::General,
        new GeneralPreferencesView(models.general, theme, {account->button(), account}));
    auto *advanced = new AdvancedPreferencesView(models.advanced, theme);
    window.addPane(PreferencesPane::Advanced, advanced);
    whenTheProgramEnds(models.presence, advanced, &AdvancedPreferencesView::endEditing);
    window.addPane(PreferencesPane::Display, new DisplayPreferencesView(models.display, theme));
    window.addPane(
        PreferencesPane::VendorData, new VendorPreferencesView(models.vendorData, theme));
    addRulesPane(window, models, theme, scheduler);
    window.addPane(PreferencesPane::Updates, new UpdatePreferencesView(models.updates, theme));
    window.addPane(PreferencesPane::About, new AboutPreferencesView(models.about, theme));
}

} // namespace quillon
