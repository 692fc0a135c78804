// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "netlink/NetlinkMessage.h"
#include "platform/linux/wifi/Nl80211Records.h"

#include <QList>
#include <QString>

namespace quillon {

/// What the messages of an answer tell.
struct Nl80211Messages
{
    QList<StationInterface> interfaces;
    QList<JoinedNetwork> networks;
    QList<RemoteStation> stations;
    QList<ChannelNoise> noises;
    QString countryCode;
    int error = 0; ///< errno of an answer that failed, else 0

    /// `family` is the number that the kernel gave "nl80211"; messages of others are left out, and
    /// whatever is truncated or malformed.
    void add(const nlmsghdr &message, quint16 family);
};

} // namespace quillon
