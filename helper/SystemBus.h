// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <memory>
#include <systemd/sd-bus.h>

namespace quillon {

struct CloseBus
{
    /// At once: to wait for a bus that reads nothing could take for ever.
    void operator()(sd_bus *bus) const { sd_bus_close_unref(bus); }
};
using SystemBus = std::unique_ptr<sd_bus, CloseBus>;

/// Tell the bus, or the service manager, to read their folders again. They wait for the answer;
/// that nobody is there or refuses is logged and is no failure, since both read at their start
/// anyway.
void reloadBus(sd_bus &bus);
void reloadServiceManager(sd_bus &bus);

/// Lets the kernel keep little of what the bus does not read, so that it shows soon.
void limitOutput(sd_bus &bus);
/// Whether there is something that the bus has not taken yet. Not while the connection is being
/// made, when much has to wait.
bool isOutputWaiting(sd_bus &bus);
/// Whether the bus takes something now, or within `limit`.
bool takesOutput(sd_bus &bus, std::chrono::milliseconds limit);
/// Lets go out what waits; what the bus does not take within `limit` is lost.
void finishOutput(sd_bus &bus, std::chrono::milliseconds limit);

/// Waits until nobody owns `name`, for `limit` at most.
void waitUntilGone(sd_bus &bus, const char *name, std::chrono::milliseconds limit);

/// The system bus at its fixed address, whatever the environment says: a variable could point us at
/// a false bus with a false polkit. The bus keeps every message with descriptors away from this
/// connection. None when there is no bus.
SystemBus connectToSystemBus();

} // namespace quillon
