// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/linux/netlink/MessageBytes.h"
#include "platform/linux/wifi/Nl80211Records.h"

#include <QList>
#include <QString>

namespace quillon {

/// The answers to one request, collected from its datagrams.
struct Nl80211Messages
{
    QList<StationInterface> interfaces;
    QList<JoinedNetwork> networks;
    QList<RemoteStation> stations;
    QList<ChannelNoise> noises;
    QString countryCode;
    bool finished = false;    ///< the last message of the answer was seen
    bool interrupted = false; ///< the tables changed while they were read (NLM_F_DUMP_INTR)
    int error = 0;            ///< errno of a refusal or of a table that broke off, else 0

    /// Adds the messages of one datagram that answer the request `sequence`; `family` is the number
    /// that the kernel gave "nl80211". Whatever is truncated or malformed is left out.
    void add(ByteSpan datagram, quint16 family, quint32 sequence);
};

} // namespace quillon
