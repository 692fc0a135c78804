// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/features/VendorFeature.h"

#include "platform/Platform.h"

namespace quillon {

VendorFeature::VendorFeature(
    const Platform &platform, DeviceTable &devices, const CurrentInterface &currentInterface)
    : files{platform.places.supportFolder, platform.places.shippedVendorDatabase}
    , database(files.liveDatabase())
    , count(platform.settings, platform.scheduler, files, database)
    , list(platform.scheduler, database)
    , lookup(platform.settings, platform.scheduler, database)
    , choice(devices, currentInterface, platform.notifications, list)
    , ruleList(platform.scheduler, database)
    , ruleVendor(ruleList)
    , import(platform.scheduler, platform.settings, files, database)
    , download(platform.http, platform.places.vendorRegistry, import, count, list)
    , pane(platform.settings, download)
    , field(choice, list, platform.notifications)
    , ruleField(ruleVendor, ruleList, platform.notifications)
    , info(platform.settings)
{
}

} // namespace quillon
