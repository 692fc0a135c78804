// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/features/PreferencesFeature.h"

#include "base/SettingsKeys.h"
#include "platform/Platform.h"

namespace quillon {

PreferencesFeature::PreferencesFeature(const Platform &platform, XPCMethods &helper,
    Presence &presence, GlobalHotKeys &hotKeys, const DeviceTable &devices, SettingsSync &sync)
    : loginController(platform.settings, platform.loginItem)
    , general({platform.settings, platform.scheduler, presence, hotKeys, loginController,
          platform.loginItem, sync})
    , advanced(helper, presence, platform.groupSettings, platform.scheduler)
    , defaultMinutes(platform.settings)
    , driftAlarm(platform.settings, keys::driftAlarm)
    , owners(devices, platform.addressOwners, platform.scheduler)
    , display(platform.settings)
    , about(platform.links, platform.places.licenseFile, platform.places.vendorRegistry)
{
}

} // namespace quillon
