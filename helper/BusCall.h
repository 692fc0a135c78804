// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <string>
#include <systemd/sd-bus.h>

namespace quillon {

// The helper speaks D-Bus by libsystemd's sd-bus: it reads a message where it lies, without copies
// that its sender could make large, and tells errors by numbers. No exception may pass through it.

struct UnrefBusMessage
{
    void operator()(sd_bus_message *message) const { sd_bus_message_unref(message); }
};
using BusMessage = std::unique_ptr<sd_bus_message, UnrefBusMessage>;

/// A method call to send. None when there is no memory for it.
BusMessage busCall(
    sd_bus &bus, const char *name, const char *path, const char *interface, const char *method);

/// The name of the error that `answer` is; empty when it is none.
std::string busErrorOf(sd_bus_message &answer);

/// Gets the answer: a reply, or an error, which comes after the time limit at the latest.
using BusAnswer = std::function<void(sd_bus_message &answer)>;

/// Sends `call` and returns; false when it could not be sent, and then `answer` is not called. It
/// is called once, when the bus is processed, unless the bus is closed before.
bool callLater(sd_bus &bus, const BusMessage &call, std::chrono::seconds limit, BusAnswer answer);

/// Runs what a message leads to. Whatever goes wrong in it ends with this message: an exception
/// must neither pass through sd-bus nor end the helper. A negative errno value then.
int handleBusMessage(const std::function<int()> &handle) noexcept;

} // namespace quillon
