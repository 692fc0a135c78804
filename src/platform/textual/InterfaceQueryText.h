// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/NetworkHost.h"

namespace quillon {

/// What the output of "ifconfig DEVICE" tells: the first "inet ", "ether " and "status: " of the
/// whole text, each empty when it does not occur. Nothing is trimmed or checked.
InterfaceInfo interfaceInfo(const QString &query);

} // namespace quillon
