// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/features/DeviceFeature.h"

#include "platform/Platform.h"

namespace quillon {

DeviceFeature::DeviceFeature(const Platform &platform, Notifier &notifier, XPCMethods &helper)
    : table(platform.settings, platform.network, platform.interfaceAddresses)
    , currentInterface(platform.settings, platform.scheduler, table)
    , randomAddress(platform.random, table)
    , addressChanger({platform.settings, platform.scheduler, platform.notifications, notifier,
          helper, platform.addressOwners, table, currentInterface, randomAddress})
    , driftAlarm({platform.settings, platform.scheduler, notifier, platform.addressOwners, table,
          addressChanger})
{
}

} // namespace quillon
