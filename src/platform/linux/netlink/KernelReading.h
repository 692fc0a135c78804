// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/linux/netlink/MessageBytes.h"

#include <functional>

class QDeadlineTimer;

namespace quillon {

/// Gives `take` each datagram that the kernel sends to a netlink socket, until it says that the
/// answer is complete. 0 then, otherwise an errno: ETIMEDOUT when the deadline passes before,
/// whatever arrived meanwhile. What other processes send to the socket is left out. A datagram has
/// at most 64 KiB. Any thread.
int readFromKernel(
    int descriptor, const QDeadlineTimer &deadline, const std::function<bool(ByteSpan)> &take);

} // namespace quillon
