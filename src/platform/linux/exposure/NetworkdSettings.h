// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/ExposureSource.h"
#include "platform/linux/exposure/IniText.h"

namespace quillon {

/// What systemd-networkd sends for a link, by its .network file with what stands beside it
/// (`network`, none when that cannot be read), by networkd.conf and by what it keeps of the lease.
struct NetworkdDhcp
{
    ExposureFacts::Dhcp ipv4;
    ExposureFacts::Dhcp ipv6;
};
NetworkdDhcp sentByNetworkd(
    const std::optional<IniText> &network, const IniText &general, const IniText &lease);

} // namespace quillon
