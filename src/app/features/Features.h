// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/features/CloudFeature.h"
#include "app/features/DeviceFeature.h"
#include "app/features/HistoryFeature.h"
#include "app/features/NetworkFeature.h"
#include "app/features/PreferencesFeature.h"
#include "app/features/RuleFeature.h"
#include "app/features/UpdateFeature.h"
#include "app/features/VendorFeature.h"
#include "helperlink/XPCMethods.h"
#include "hotkeys/GlobalHotKeys.h"
#include "presence/Presence.h"
#include "presence/StatusItemAbsence.h"
#include "presentation/menu/EditMenuModel.h"
#include "presentation/menu/FileMenuModel.h"
#include "presentation/menu/StatusMenuModel.h"
#include "presentation/overview/Overview.h"
#include "presentation/preferences/PreferencesWindowModel.h"
#include "presentation/window/MainWindowModel.h"
#include "presentation/window/ReadMeModel.h"

namespace quillon {

/// Every feature of the program, each made of the ones before it. They do not call upwards: what
/// one fact leads to elsewhere stands in EventWiring, the order of the start in LaunchSequence, and
/// only these two and their owner see the whole.
struct Features
{
    Features(const Platform &platform, Notifier &notifier, RecordStore::OpenFailure openFailure);

    Presence presence;
    StatusItemAbsence statusItemAbsence;
    XPCMethods helper;
    DeviceFeature devices;
    HistoryFeature history;
    NetworkFeature networks;
    RuleFeature rules;
    VendorFeature vendors;
    UpdateFeature updates;
    CloudFeature cloud;

    GlobalHotKeys hotKeys;
    MainWindowModel mainWindow;
    ReadMeModel readMe;
    StatusMenuModel statusMenu;
    FileMenuModel fileMenu;
    EditMenuModel editMenu;
    PreferencesWindowModel preferencesWindow;
    PreferencesFeature preferences;
    Overview overview;
};

} // namespace quillon
