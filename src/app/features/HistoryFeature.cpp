// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/features/HistoryFeature.h"

#include "platform/Platform.h"

#include <utility>

namespace quillon {

HistoryFeature::HistoryFeature(
    const Platform &platform, const DeviceTable &devices, RecordStore::OpenFailure openFailure)
    : store(platform.scheduler, platform.places.supportFolder, std::move(openFailure))
    , history(store, devices, platform.settings, platform.scheduler)
    , controller({store, platform.settings, platform.scheduler, platform.alerts})
    , knownPlaces(store, platform.scheduler)
    , import(platform.settings, knownPlaces)
{
}

} // namespace quillon
