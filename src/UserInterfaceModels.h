// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/QuillonAppDelegate.h"
#include "ui/UserInterface.h"

namespace quillon {

/// Which models of the features the user interface shows. They outlive it.
inline UserInterface::Models modelsOf(Features &features)
{
    NetworkFeature &networks = features.networks;
    RuleFeature &rules = features.rules;
    VendorFeature &vendors = features.vendors;
    PreferencesFeature &panes = features.preferences;
    return {.window = {features.mainWindow, features.readMe, features.presence},
        .statusMenu = features.statusMenu,
        .fileMenu = features.fileMenu,
        .editMenu = features.editMenu,
        .savedLists = networks.savedLists,
        .removedInMainWindow = networks.removedInMainWindow,
        .others = {.presence = features.presence,
            .preferences = {features.preferencesWindow, features.presence},
            .panes = {.presence = features.presence,
                .general = panes.general,
                .account = {panes.cloudAccount, panes.cloudSignIn, panes.cloudPassphrase},
                .advanced = {panes.advanced, panes.defaultMinutes, panes.driftAlarm, panes.owners},
                .display = panes.display,
                .vendorData = vendors.pane,
                .savedItems = {networks.savedLists, networks.savedEntryPopover,
                    networks.newSavedNetwork, networks.newSavedAddress, features.history.import},
                .removedFavorite = networks.removedFromSavedItems,
                .rules = {rules.preferences, rules.table, rules.form},
                .ruleVendor = vendors.ruleField,
                .updates = features.updates.pane,
                .about = panes.about},
            .overview = {features.overview, features.readMe, features.presence},
            .history = {features.history.controller, features.editMenu, features.presence}},
        .network = networks.info,
        .traces = networks.traces,
        .externalAddress = networks.externalAddressShown,
        .rules = {rules.status, rules.list, features.presence},
        .countdown = rules.countdown,
        .vendorField = vendors.field,
        .vendorInfo = vendors.info,
        .vendorPane = vendors.pane};
}

} // namespace quillon
