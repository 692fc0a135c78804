// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <memory>
#include <systemd/sd-bus.h>

namespace quillon {

struct CloseBus
{
    /// What was sent before still goes out.
    void operator()(sd_bus *bus) const { sd_bus_flush_close_unref(bus); }
};
using SystemBus = std::unique_ptr<sd_bus, CloseBus>;

/// Tell the bus, or the service manager, to read their folders again. They wait for the answer;
/// that nobody is there or refuses is logged and is no failure, since both read at their start
/// anyway.
void reloadBus(sd_bus &bus);
void reloadServiceManager(sd_bus &bus);

/// Waits until nobody owns `name`, for `limit` at most.
void waitUntilGone(sd_bus &bus, const char *name, std::chrono::milliseconds limit);

/// The system bus at its fixed address, whatever the environment says: a variable could point us at
/// a false bus with a false polkit. The bus keeps every message with descriptors away from this
/// connection. None when there is no bus.
SystemBus connectToSystemBus();

} // namespace quillon
