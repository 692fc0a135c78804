// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/features/NetworkFeature.h"

#include "app/EventWiring.h"
#include "app/LaunchSequence.h"
#include "platform/Platform.h"
#include "presentation/window/Presence.h"

namespace quillon {

NetworkFeature::NetworkFeature(
    const Platform &platform, const DeviceTable &devices, RecordStore &records)
    : wifi(platform.settings, platform.wifi, devices)
    , locationPermission(
          {platform.scheduler, platform.location, platform.alerts, platform.systemSettings, wifi})
    , savedNetworks(platform.settings, wifi)
    , savedAddresses(platform.settings)
    , networkEditing({platform.settings, platform.scheduler, wifi, records})
    , addressEditing(platform.settings, platform.scheduler)
    , externalAddress(platform.http, platform.settings, platform.places.externalAddressService)
    , info({platform.settings, platform.scheduler, wifi, savedNetworks})
    , savedLists(platform.settings, savedAddresses)
    , savedEntryPopover(networkEditing, addressEditing, platform.scheduler)
    , externalAddressShown(platform.settings, externalAddress)
{
}

void NetworkFeature::connectTo(EventWiring &wiring, LaunchSequence &launch, Presence &presence)
{
    const auto on = [&wiring](auto &from, auto signal, auto reaction) {
        QObject::connect(&from, signal, &wiring, reaction);
    };
    on(launch, &LaunchSequence::mainWindowPrepared, [this] { wifi.updateWiFiNetwork(); });
    on(launch, &LaunchSequence::quickAddressesDue,
        [this] { savedLists.updateQuickAddressesField(); });
    on(launch, &LaunchSequence::locationPermissionDue,
        [this] { locationPermission.requestNetworkPermissions(); });
    on(launch, &LaunchSequence::externalAddressDue,
        [this] { externalAddress.updateExternalIPAddress(false); });

    on(wiring, &EventWiring::savedAddressesChanged,
        [this] { savedLists.updateQuickAddressesField(); });
    on(wiring, &EventWiring::externalAddressWanted,
        [this] { externalAddress.updateExternalIPAddress(false); });

    on(wifi, &WiFiNetwork::networkButtonShown,
        [this](bool shown) { info.showNetworkButton(shown); });
    on(locationPermission, &LocationPermission::servicesFoundDisabled,
        [&presence] { presence.openWindow(); });
    on(networkEditing, &SavedNetworkEditing::networkDefinitionChanged,
        [this] { savedEntryPopover.showNetworkDefinition(); });
    on(networkEditing, &SavedNetworkEditing::editingFinished,
        [this] { savedEntryPopover.closeNetworkPopover(); });
    on(addressEditing, &SavedAddressEditing::editingFinished,
        [this] { savedEntryPopover.closeAddressPopover(); });
}

} // namespace quillon
