// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "contract/SdBus.h"

#include <chrono>
#include <memory>

namespace quillon {

/// Tell the bus, or the service manager, to read its folders again. They wait for the answer; that
/// nobody is there or refuses is logged and is no failure, since both read at their start anyway.
void reloadBus(sdbus::IConnection &connection);
void reloadServiceManager(sdbus::IConnection &connection);

/// Waits until nobody owns `name`, for `limit` at most.
void waitUntilGone(
    sdbus::IConnection &connection, const char *name, std::chrono::milliseconds limit);

/// The system bus at its fixed address, whatever the environment says: a variable could point us at
/// a false bus with a false polkit. Throws sdbus::Error.
std::unique_ptr<sdbus::IConnection> connectToSystemBus();

} // namespace quillon
