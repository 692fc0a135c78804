// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/wifi/Nl80211Messages.h"

#include <cerrno>
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

void addReply(Nl80211Messages &messages, ByteSpan payload)
{
    const auto command = hostNumber<quint8>(payload);
    if (payload.size() < GENL_HDRLEN || !command) {
        return;
    }
    const ByteSpan attributes = payload.subspan(GENL_HDRLEN);
    switch (*command) {
    case NL80211_CMD_NEW_INTERFACE:
        append(messages.interfaces, stationInterface(attributes));
        break;
    case NL80211_CMD_NEW_SCAN_RESULTS:
        append(messages.networks, joinedNetwork(attributes));
        break;
    case NL80211_CMD_NEW_STATION:
        append(messages.stations, remoteStation(attributes));
        break;
    case NL80211_CMD_NEW_SURVEY_RESULTS:
        append(messages.noises, channelNoise(attributes));
        break;
    case NL80211_CMD_GET_REG: // the answer has the command of the question
        messages.countryCode = regulatoryCountry(attributes);
        break;
    default:
        break;
    }
}

// An answer's end says how it went: an errno by its negative value, and there is none above 4095.
int errnoOf(ByteSpan payload)
{
    constexpr qint32 highestErrno = 4095;
    const auto status = static_cast<qint32>(hostNumber<quint32>(payload).value_or(1));
    return status <= 0 && status >= -highestErrno ? -status : EBADMSG;
}

} // namespace

void Nl80211Messages::add(ByteSpan datagram, quint16 family, quint32 sequence)
{
    forEachMessage(datagram, [&](const nlmsghdr &header, ByteSpan payload) {
        if (header.nlmsg_seq != sequence || finished) {
            return;
        }
        interrupted = interrupted || (header.nlmsg_flags & NLM_F_DUMP_INTR);
        if (header.nlmsg_type == NLMSG_DONE || header.nlmsg_type == NLMSG_ERROR) {
            error = errnoOf(payload);
            finished = true;
        } else if (header.nlmsg_type == family) {
            addReply(*this, payload);
            finished = !(header.nlmsg_flags & NLM_F_MULTI);
        }
    });
}

} // namespace quillon
