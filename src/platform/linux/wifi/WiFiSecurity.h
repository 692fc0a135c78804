// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/WiFiClient.h"
#include "platform/linux/wifi/InformationElements.h"

namespace quillon {

/// How the network that sent these elements is protected. `privacy` is the bit of that name in its
/// capability field; none when that is not known.
///
/// A personal or enterprise network that no single name of a generation covers, or whose elements
/// are damaged after the authentication suites, is Personal or Enterprise. What offers both kinds,
/// or nothing that we know, is UnknownSecurity. Whatever is not certain to be open is not None.
WiFiInterface::Security security(const InformationElements &elements, std::optional<bool> privacy);

} // namespace quillon
