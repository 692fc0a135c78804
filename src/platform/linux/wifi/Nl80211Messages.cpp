// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/wifi/Nl80211Messages.h"

#include <linux/genetlink.h>
#include <linux/nl80211.h>
#include <utility>

namespace quillon {

namespace {

template <typename T>
void append(QList<T> &list, std::optional<T> found)
{
    if (found) {
        list.append(*std::move(found));
    }
}

} // namespace

void Nl80211Messages::add(const nlmsghdr &message, quint16 family)
{
    const auto header = headerOf<genlmsghdr>(message);
    if (message.nlmsg_type != family || !header) {
        return;
    }
    const ByteSpan attributes = attributesOf<genlmsghdr>(message);
    switch (header->cmd) {
    case NL80211_CMD_NEW_INTERFACE:
        append(interfaces, stationInterface(attributes));
        break;
    case NL80211_CMD_NEW_SCAN_RESULTS:
        append(networks, joinedNetwork(attributes));
        break;
    case NL80211_CMD_NEW_STATION:
        append(stations, remoteStation(attributes));
        break;
    case NL80211_CMD_NEW_SURVEY_RESULTS:
        append(noises, channelNoise(attributes));
        break;
    case NL80211_CMD_GET_REG: // the answer has the command of the question
        countryCode = regulatoryCountry(attributes);
        break;
    default:
        break;
    }
}

} // namespace quillon
