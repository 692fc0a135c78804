// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "netlink/ByteSpan.h"
#include "platform/linux/wifi/ProtectionSuites.h"

#include <QByteArray>
#include <QString>

#include <optional>

namespace quillon {

/// The generations of IEEE 802.11 that a rate or an access point can be of.
enum class WiFiGeneration
{
    Legacy,                  ///< 802.11a, b and g
    HighThroughput,          ///< 802.11n
    VeryHighThroughput,      ///< 802.11ac
    HighEfficiency,          ///< 802.11ax
    ExtremelyHighThroughput, ///< 802.11be
};

/// What the information elements of a beacon or probe response tell (IEEE 802.11-2020, 9.4.2).
/// Anybody within radio range may have written them.
struct InformationElements
{
    bool complete = false; ///< there were elements, and the last one was not cut short
    QByteArray ssid;       ///< at most 32 octets of any value; empty when hidden
    WiFiGeneration generation = WiFiGeneration::Legacy; ///< the newest that is announced
    bool orthogonalRates = false;                       ///< announces a rate of OFDM
    std::optional<ProtectionSuites> rsn;
    std::optional<ProtectionSuites> wpa;
    bool otherProtection = false; ///< a kind of protection that is neither of these
    bool oweTransition = false;   ///< one of a pair, open and OWE, with the same users in mind

    bool operator==(const InformationElements &) const = default;
};

/// Of several elements of a kind the first counts, as it does for the kernel.
InformationElements informationElements(ByteSpan bytes);

/// The name of a network for people, and as the settings keep it. An SSID is octets without an
/// encoding: it is read as UTF-8 where it is valid UTF-8, else octet by octet as Latin-1, so that
/// nothing is lost. Control characters, which no list and no property-list file can hold, become
/// the Unicode pictures of them. Octets that are all zero stand for a hidden name: "". At most 32
/// octets are read.
QString networkName(const QByteArray &ssid);

} // namespace quillon
