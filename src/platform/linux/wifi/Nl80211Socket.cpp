// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/wifi/Nl80211Socket.h"

#include "base/Log.h"
#include "netlink/NetlinkAttributes.h"

#include <cerrno>
#include <cstring>
#include <linux/genetlink.h>
#include <linux/nl80211.h>
#include <utility>

namespace quillon {

namespace {

bool isRefusal(int error)
{
    return error == EPERM || error == EACCES || error == EAFNOSUPPORT;
}

/// One row for each table: what asks for it, and which attribute carries the index.
struct Question
{
    uint8_t command;
    int flags;
    int indexAttribute;
};

Question questionOf(Nl80211Request::Table table)
{
    switch (table) {
    case Nl80211Request::Table::Interfaces:
        return {NL80211_CMD_GET_INTERFACE, NLM_F_DUMP, NL80211_ATTR_UNSPEC};
    case Nl80211Request::Table::Networks:
        return {NL80211_CMD_GET_SCAN, NLM_F_DUMP, NL80211_ATTR_IFINDEX};
    case Nl80211Request::Table::Stations:
        return {NL80211_CMD_GET_STATION, NLM_F_DUMP, NL80211_ATTR_IFINDEX};
    case Nl80211Request::Table::Noises:
        return {NL80211_CMD_GET_SURVEY, NLM_F_DUMP, NL80211_ATTR_IFINDEX};
    case Nl80211Request::Table::RegulatoryDomain:
        return {NL80211_CMD_GET_REG, 0, NL80211_ATTR_WIPHY};
    }
    Q_UNREACHABLE();
}

} // namespace

Nl80211Socket::Nl80211Socket(Listener listener)
    : m_listener(std::move(listener))
    , m_access(connect())
{
}

WiFiAccess Nl80211Socket::connect()
{
    const auto asked =
        netlinkMessage(GENL_ID_CTRL, 0, genlmsghdr{CTRL_CMD_GETFAMILY, /*version=*/1, 0});
    if (asked) {
        nla_put_string(asked.get(), CTRL_ATTR_FAMILY_NAME, NL80211_GENL_NAME);
    }
    const NetlinkAnswer answer = m_socket.request(asked, [this](const nlmsghdr &message) {
        if (message.nlmsg_type == GENL_ID_CTRL) {
            const NetlinkAttributes<CTRL_ATTR_MAX> family(attributesOf<genlmsghdr>(message));
            m_family = family.value<quint16>(CTRL_ATTR_FAMILY_ID).value_or(0);
        }
    });
    if (answer.error == 0 && m_family != 0) {
        return WiFiAccess::Granted;
    }
    if (answer.error == ENOENT) {
        return WiFiAccess::NoWireless;
    }
    if (isRefusal(answer.error)) {
        return WiFiAccess::Refused;
    }
    qCWarning(logPlatform, "No wireless socket: %s", std::strerror(answer.error));
    return WiFiAccess::Broken;
}

Nl80211Messages Nl80211Socket::ask(const Nl80211Request &request)
{
    Nl80211Messages messages;
    if (m_access != WiFiAccess::Granted) {
        messages.error = ENOTCONN;
        return messages;
    }
    const Question question = questionOf(request.table);
    const auto asked =
        netlinkMessage(m_family, question.flags, genlmsghdr{question.command, /*version=*/0, 0});
    if (asked && question.indexAttribute != NL80211_ATTR_UNSPEC) {
        nla_put_u32(asked.get(), question.indexAttribute, request.index);
    }
    const NetlinkAnswer answer = m_socket.readTable(
        asked, [&] { messages = {}; },
        [&](const nlmsghdr &message) {
            messages.add(message, m_family);
            if (m_listener) {
                m_listener(request, message);
            }
        });
    messages.error = answer.error;
    return messages;
}

WiFiAccess wiFiAccess()
{
    Nl80211Socket socket;
    if (socket.access() != WiFiAccess::Granted) {
        return socket.access();
    }
    const int error = socket.ask({}).error;
    return isRefusal(error) ? WiFiAccess::Refused : WiFiAccess::Granted;
}

} // namespace quillon
