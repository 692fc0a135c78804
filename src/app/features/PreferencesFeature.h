// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "loginitem/StartAtLoginController.h"
#include "presentation/cloud/CloudAccountModel.h"
#include "presentation/cloud/CloudSignInModel.h"
#include "presentation/cloud/PassphraseModel.h"
#include "presentation/preferences/AboutPreferencesViewController.h"
#include "presentation/preferences/AdvancedPreferencesViewController.h"
#include "presentation/preferences/DefaultMinutes.h"
#include "presentation/preferences/DisplayPreferencesViewController.h"
#include "presentation/preferences/GeneralPreferencesViewController.h"
#include "presentation/preferences/InterfaceOwners.h"

namespace quillon {

class DeviceTable;
class SettingsSync;
struct Platform;

/// The start at login, and what the panes of the preferences show.
struct PreferencesFeature
{
    PreferencesFeature(const Platform &platform, XPCMethods &helper, Presence &presence,
        GlobalHotKeys &hotKeys, const DeviceTable &devices, SettingsSync &sync);

    StartAtLoginController loginController;
    GeneralPreferencesViewController general;
    CloudAccountModel cloudAccount;
    CloudSignInModel cloudSignIn;
    PassphraseModel cloudPassphrase;
    AdvancedPreferencesViewController advanced;
    DefaultMinutes defaultMinutes;
    BoundSetting driftAlarm;
    InterfaceOwners owners;
    DisplayPreferencesViewController display;
    AboutPreferencesViewController about;
};

} // namespace quillon
