// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/WiFiClient.h"
#include "platform/linux/wifi/Nl80211Exchange.h"

namespace quillon {

/// What the machine's Wi-Fi interface has joined; of several the first one that has joined a
/// network, in the order of their indexes, which is that of the port list. None when there is none
/// or the question for interfaces failed; tables that cannot be read otherwise leave their fields
/// at "not known".
///
/// When the kernel shows all as joined nowhere the first has only `device` and `countryCode`. The
/// name of a network that hides it is what the interface was told to join.
std::optional<WiFiInterface> readWiFi(Nl80211Exchange &exchange);

/// The channel with this centre frequency (IEEE 802.11-2020 annex E); number 0 when none has it.
/// Frequency and width in MHz.
WiFiInterface::Channel channelOf(quint32 frequency, int width);

} // namespace quillon
