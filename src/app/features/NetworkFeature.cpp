// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/features/NetworkFeature.h"

#include "platform/Platform.h"

namespace quillon {

NetworkFeature::NetworkFeature(
    const Platform &platform, const DeviceTable &devices, const CurrentInterface &currentInterface)
    : wifi(platform.settings, platform.wifi, devices)
    , locationPermission(
          {platform.scheduler, platform.location, platform.alerts, platform.systemSettings, wifi})
    , savedNetworks(platform.settings, wifi)
    , savedAddresses(platform.settings)
    , networkEditing({platform.settings, platform.scheduler, wifi})
    , addressEditing(platform.settings, platform.scheduler)
    , externalAddress(platform.http, platform.settings, platform.places.externalAddressService)
    , removedInMainWindow(platform.settings, wifi)
    , removedFromSavedItems(platform.settings, wifi)
    , info({platform.settings, platform.scheduler, devices, wifi, platform.radioSwitch,
          savedNetworks, removedInMainWindow})
    , traces(platform.exposure, platform.scheduler, currentInterface, devices)
    , savedLists(platform.settings, savedAddresses, removedInMainWindow)
    , savedEntryPopover({platform.settings, platform.scheduler, networkEditing, addressEditing,
          removedFromSavedItems})
    , newSavedNetwork(platform.settings, NewSavedEntryModel::Kind::Network)
    , newSavedAddress(platform.settings, NewSavedEntryModel::Kind::Address)
    , externalAddressShown(platform.settings, externalAddress)
{
}

} // namespace quillon
