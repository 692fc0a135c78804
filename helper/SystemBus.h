// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "contract/SdBus.h"

#include <memory>

namespace quillon {

/// Tells the bus and the service manager to read their folders again. Waits for their answers; that
/// one of them is not there or refuses is logged and is no failure, since both read at their start
/// anyway.
void announceChangedFiles(sdbus::IConnection &connection);

/// The system bus at its fixed address, whatever the environment says: a variable could point us at
/// a false bus with a false polkit. Throws sdbus::Error.
std::unique_ptr<sdbus::IConnection> connectToSystemBus();

} // namespace quillon
