// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/features/Features.h"

#include "platform/Platform.h"

#include <utility>

namespace quillon {

Features::Features(
    const Platform &platform, Notifier &notifier, RecordStore::OpenFailure openFailure)
    : presence(platform.settings)
    , statusItemAbsence(platform.settings, platform.scheduler, notifier, presence)
    , helper(platform.helperLink, platform.scheduler, platform.notifications)
    , devices(platform, notifier, helper)
    , history(platform, devices.table, std::move(openFailure))
    , networks(platform, devices.table, devices.currentInterface)
    , rules(platform, notifier, devices, networks, history.store)
    , vendors(platform, devices.table, devices.currentInterface)
    , updates(platform, notifier)
    , cloud(platform, notifier, history.store)
    , hotKeys({platform.settings, platform.hotKeys, presence, devices.addressChanger, notifier})
    , mainWindow({platform.settings, platform.scheduler, devices.table, devices.currentInterface,
          devices.addressChanger})
    , readMe(helper)
    , statusMenu({platform.settings, devices.table, devices.currentInterface,
          devices.addressChanger, helper, presence, rules.timers})
    , fileMenu({platform.settings, devices.table, devices.currentInterface, devices.addressChanger,
          helper, presence, rules.timers})
    , editMenu(history.store)
    , preferencesWindow(platform.settings, platform.notifications)
    , preferences(platform, helper, presence, hotKeys, devices.table, cloud.sync)
    , overview({platform.settings, platform.scheduler, platform.notifications, devices.table,
          devices.currentInterface, devices.addressChanger, rules.timers, presence, helper})
{
}

} // namespace quillon
