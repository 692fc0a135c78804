// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/features/NetworkFeature.h"

#include "platform/Platform.h"

namespace quillon {

NetworkFeature::NetworkFeature(const Platform &platform, const DeviceTable &devices)
    : wifi(platform.settings, platform.wifi, devices)
    , locationPermission(
          {platform.scheduler, platform.location, platform.alerts, platform.systemSettings, wifi})
    , savedNetworks(platform.settings, wifi)
    , savedAddresses(platform.settings)
    , networkEditing({platform.settings, platform.scheduler, wifi})
    , addressEditing(platform.settings, platform.scheduler)
    , externalAddress(platform.http, platform.settings, platform.places.externalAddressService)
    , info({platform.settings, platform.scheduler, devices, wifi, savedNetworks})
    , savedLists(platform.settings, savedAddresses)
    , savedEntryPopover(networkEditing, addressEditing, platform.scheduler)
    , externalAddressShown(platform.settings, externalAddress)
{
}

} // namespace quillon
