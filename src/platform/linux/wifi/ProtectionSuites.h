// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "netlink/ByteSpan.h"

#include <QList>
#include <QtGlobal>

namespace quillon {

/// How a network is protected, as its RSN element (IEEE 802.11-2020, 9.4.2.24) or the older vendor
/// element of WPA says. Suites are numbers: the three octets of the organization, then the type.
struct ProtectionSuites
{
    /// Every field was there up to a field's end, in a version that we know. The rest holds what
    /// could be read before.
    bool intact = false;
    quint32 groupCipher = 0;
    QList<quint32> pairwiseCiphers;
    QList<quint32> authentication;
    bool frameProtectionRequired = false; ///< management frames, MFPR

    bool operator==(const ProtectionSuites &) const = default;
};

/// From the RSN element's content. Fields left out at the end have the standard's defaults.
ProtectionSuites rsnSuites(ByteSpan content);
/// From the WPA element's content after organization and type.
ProtectionSuites wpaSuites(ByteSpan content);

} // namespace quillon
