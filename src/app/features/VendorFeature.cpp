// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/features/VendorFeature.h"

#include "app/EventWiring.h"
#include "app/LaunchSequence.h"
#include "app/features/VendorWiring.h"
#include "platform/Platform.h"

namespace quillon {

VendorFeature::VendorFeature(const Platform &platform)
    : files{platform.places.supportFolder, platform.places.shippedVendorDatabase}
    , database(files.liveDatabase())
    , count(platform.settings, platform.scheduler, files, database)
    , list(platform.scheduler, database)
    , lookup(platform.settings, platform.scheduler, database)
    , choice(platform.settings, platform.notifications, list)
    , import(platform.scheduler, platform.settings, files, database)
    , download(platform.http, platform.places.vendorRegistry, import, count, list)
    , pane(platform.settings, download)
    , field(choice, list, platform.notifications)
{
}

void VendorFeature::connectTo(EventWiring &wiring, LaunchSequence &launch)
{
    const auto on = [&wiring](auto &from, auto signal, auto reaction) {
        QObject::connect(&from, signal, &wiring, reaction);
    };
    on(launch, &LaunchSequence::mainWindowPrepared, [this] { pane.showStoredTexts(); });
    on(launch, &LaunchSequence::vendorDatabaseDue,
        [this] { count.createSupportFolderAndVendorDatabase(); });
    on(launch, &LaunchSequence::vendorCountDue, [this] { count.updateVendorCount(); });
    on(launch, &LaunchSequence::vendorCountDue, [this] { list.loadVendorField(); });
    on(launch, &LaunchSequence::vendorFieldDue, [this] { choice.updateVendorField({}); });

    on(wiring, &EventWiring::currentVendorStale,
        [this](const QString &address) { lookup.updateVendor(address); });
    on(wiring, &EventWiring::vendorFieldStale,
        [this](const QString &device) { choice.updateVendorField(device); });
    on(wiring, &EventWiring::vendorSelectionStale,
        [this](const QString &device) { choice.setVendorSelectionForDevice(device); });
    on(wiring, &EventWiring::vendorViewPopoverClosed, [this] { field.closeVendorViewPopover(); });

    connectVendors(&wiring, {count, list, lookup, choice, import, download, pane, field});
}

} // namespace quillon
