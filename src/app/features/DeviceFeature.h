// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "devices/AddressChanger.h"
#include "devices/CurrentInterface.h"
#include "devices/DeviceTable.h"
#include "devices/DriftAlarm.h"
#include "devices/RandomAddress.h"

namespace quillon {

struct Platform;

/// Everything about interfaces and their addresses, put together.
struct DeviceFeature
{
    DeviceFeature(const Platform &platform, Notifier &notifier, XPCMethods &helper);

    DeviceTable table;
    CurrentInterface currentInterface;
    RandomAddress randomAddress;
    AddressChanger addressChanger;
    DriftAlarm driftAlarm;
};

} // namespace quillon
