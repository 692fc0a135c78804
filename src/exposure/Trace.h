// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <chrono>
#include <optional>

namespace quillon {

/// One thing by which a network knows an interface beside its link-layer address.
struct Trace
{
    enum class Kind
    {
        DhcpName,
        DhcpIdentifier, ///< the client identifier of IPv4
        Duid,           ///< that of IPv6
        Ipv6Address,
        MoreIpv6Addresses, ///< the value says how many
        MulticastName,     ///< mDNS
        LinkLocalName,     ///< LLMNR
        LoginIdentity      ///< 802.1X
    };
    /// What becomes of it when the interface is given another address.
    enum class Lasts
    {
        Unknown,
        FollowsAddress,       ///< it is another one then
        ChangesByItself,      ///< after a time, whatever the address
        OnThisNetwork,        ///< stays here; another network sees another one
        Always,               ///< stays, and is the same on every network
        NamesHardwareAddress, ///< stays, and the address that the device was made with is in it
        NamesOtherAddress     ///< stays, and an earlier address or another interface's is in it
    };

    Kind kind = Kind::DhcpName;
    QString value = {}; ///< "" when it is not known
    Lasts lasts = Lasts::Unknown;
    /// How long the interface has had it, where that is known.
    std::optional<std::chrono::seconds> age = {};
    /// It was there before the last change of the address, and is there still.
    bool isKept = false;
    /// Who can be told to show less, and the setting as it is written there; "" when nobody is
    /// known.
    QString owner = {};
    QString setting = {};

    bool operator==(const Trace &) const = default;
};

} // namespace quillon
