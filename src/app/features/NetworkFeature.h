// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "networks/ExternalIPAddress.h"
#include "networks/LocationPermission.h"
#include "networks/SavedAddressEditing.h"
#include "networks/SavedAddresses.h"
#include "networks/SavedNetworkEditing.h"
#include "networks/SavedNetworks.h"
#include "networks/WiFiNetwork.h"
#include "presentation/networks/ExternalAddressModel.h"
#include "presentation/networks/NetworkInfoModel.h"
#include "presentation/networks/NewSavedEntryModel.h"
#include "presentation/networks/RemovedFavorite.h"
#include "presentation/networks/SavedEntryPopoverModel.h"
#include "presentation/networks/SavedListsModel.h"
#include "presentation/networks/TracesModel.h"

namespace quillon {

class CurrentInterface;
class DeviceTable;
struct Platform;

/// Everything about networks, put together: the Wi-Fi record, the saved lists, the external
/// address, and what the window shows of them.
struct NetworkFeature
{
    NetworkFeature(const Platform &platform, const DeviceTable &devices,
        const CurrentInterface &currentInterface);

    WiFiNetwork wifi;
    LocationPermission locationPermission;
    SavedNetworks savedNetworks;
    SavedAddresses savedAddresses;
    SavedNetworkEditing networkEditing;
    SavedAddressEditing addressEditing;
    ExternalIPAddress externalAddress;

    RemovedFavorite removedInMainWindow;
    RemovedFavorite removedFromSavedItems;
    NetworkInfoModel info;
    TracesModel traces;
    SavedListsModel savedLists;
    SavedEntryPopoverModel savedEntryPopover;
    NewSavedEntryModel newSavedNetwork;
    NewSavedEntryModel newSavedAddress;
    ExternalAddressModel externalAddressShown;
};

} // namespace quillon
