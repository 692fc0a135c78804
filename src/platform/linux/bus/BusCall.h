// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/Error.h"

#include <QDBusConnection>
#include <QDBusMessage>

#include <chrono>
#include <functional>

class QObject;

namespace quillon {

using BusReply = std::function<void(const QDBusMessage &)>;

/// Calls a method of another program without waiting. `reply` is called once, on the thread of
/// `context`, in a later turn of its loop, with the answer or an error message (also when the bus
/// is gone, or the time is over); never when `context` is destroyed before. Time limits are those
/// of the D-Bus specification.
void callBus(const QDBusConnection &bus, QObject *context, const QDBusMessage &call,
    std::chrono::milliseconds limit, BusReply reply);

/// The question to a message bus whether a program owns `name`, to be sent; the answer is a
/// boolean.
QDBusMessage nameHasOwner(const QString &name);

/// A D-Bus error as an Error: its domain is the D-Bus error name, its code that of the contract, or
/// 0 for a name that is not the contract's. The message is cut to a length that a log can take.
Error busError(const QDBusMessage &message);

/// Whether the peer itself answered with an error of the contract.
bool isContractError(const QDBusMessage &message);

} // namespace quillon
