// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/cloud/CloudAccountRow.h"
#include "ui/networks/SavedItemsView.h"
#include "ui/preferences/AdvancedPreferencesView.h"
#include "ui/rules/RulesPreferencesView.h"

namespace quillon {

class AboutPreferencesViewController;
class DisplayPreferencesViewController;
class GeneralPreferencesViewController;
class PreferencesWindow;
class Presence;
class RemovedFavorite;
class Scheduler;
class UpdatePreferencesViewController;
class VendorFieldModel;
class VendorPaneModel;

/// What the panes of the preferences show. All outlive them.
struct PreferencesPanes
{
    Presence &presence;
    GeneralPreferencesViewController &general;
    CloudAccountRow::Models account;
    AdvancedPreferencesView::Models advanced;
    DisplayPreferencesViewController &display;
    VendorPaneModel &vendorData;
    SavedItemsView::Models savedItems;
    RemovedFavorite &removedFavorite;
    RulesPreferencesView::Models rules;
    VendorFieldModel &ruleVendor;
    UpdatePreferencesViewController &updates;
    AboutPreferencesViewController &about;
};

/// Makes all panes, in the order of the toolbar.
void addPanes(PreferencesWindow &window, const PreferencesPanes &models, const Theme &theme,
    Scheduler &scheduler);

} // namespace quillon
