// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/features/RuleFeature.h"

#include "app/features/DeviceFeature.h"
#include "app/features/NetworkFeature.h"
#include "platform/Platform.h"

namespace quillon {

RuleFeature::RuleFeature(const Platform &platform, Notifier &notifier, DeviceFeature &devices,
    NetworkFeature &networks, RecordStore &store)
    : queries(store, platform.settings, devices.table)
    , invariants({store, platform.scheduler, platform.notifications, queries})
    , timers({platform.scheduler, platform.notifications, notifier, devices.table,
          devices.addressChanger})
    , execution({platform.scheduler, devices.table, devices.addressChanger, timers})
    , evaluation({platform.settings, platform.notifications, devices.table,
          devices.currentInterface, store, invariants, queries, execution})
    , switches({store, platform.notifications, queries, evaluation})
    , networkRules(store, evaluation)
    , editing({store, queries, evaluation})
    , status(devices.table)
    , list({platform.settings, platform.notifications, devices.currentInterface, queries})
    , countdown(timers, devices.currentInterface)
    , table({platform.settings, devices.table, queries})
    , form({platform.settings, devices.table, networks.savedNetworks, networks.savedAddresses,
          devices.randomAddress})
    , preferences({platform.settings, platform.scheduler, platform.notifications, store, queries,
          switches, editing, networks.savedNetworks, table, form})
{
}

} // namespace quillon
