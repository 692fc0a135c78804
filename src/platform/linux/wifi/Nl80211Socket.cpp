// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/wifi/Nl80211Socket.h"

#include "base/Log.h"
#include "platform/linux/netlink/KernelReading.h"

#include <QDeadlineTimer>
#include <netlink/attr.h>
#include <netlink/genl/ctrl.h>
#include <netlink/genl/genl.h>
#include <netlink/msg.h>
#include <netlink/netlink.h>
#include <netlink/socket.h>

#include <cerrno>
#include <chrono>
#include <linux/nl80211.h>
#include <sys/socket.h>
#include <sys/time.h>
#include <utility>

namespace quillon {

namespace {

// The kernel answers in the call itself; the limit is only there so that no fault of it hangs us.
constexpr std::chrono::seconds longestWait{2};
// A table that changes all the time is taken as it is after so many attempts.
constexpr int dumpAttempts = 5;

using Message = std::unique_ptr<nl_msg, decltype(&nlmsg_free)>;

Nl80211Messages failure(int error)
{
    Nl80211Messages messages;
    messages.error = error;
    return messages;
}

bool isRefusal(int libnlError)
{
    return libnlError == -NLE_PERM || libnlError == -NLE_NOACCESS ||
           libnlError == -NLE_AF_NOSUPPORT;
}

/// One row for each table: what asks for it, and which attribute carries the index.
struct Question
{
    uint8_t command;
    int flags;
    int indexAttribute;
};

Question question(Nl80211Request::Table table)
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

Message message(const Nl80211Request &request, quint16 family)
{
    const Question asked = question(request.table);
    Message message(nlmsg_alloc(), &nlmsg_free);
    if (message &&
        genlmsg_put(
            message.get(), NL_AUTO_PORT, NL_AUTO_SEQ, family, 0, asked.flags, asked.command, 0) &&
        asked.indexAttribute != NL80211_ATTR_UNSPEC) {
        nla_put_u32(message.get(), asked.indexAttribute, request.index);
    }
    return message;
}

/// For the reading that libnl does itself while it connects.
void limitWaiting(int descriptor)
{
    const timeval limit{.tv_sec = longestWait.count(), .tv_usec = 0};
    setsockopt(descriptor, SOL_SOCKET, SO_RCVTIMEO, &limit, sizeof limit);
}

} // namespace

void Nl80211Socket::Free::operator()(nl_sock *socket) const
{
    nl_socket_free(socket);
}

Nl80211Socket::Nl80211Socket(Listener listener)
    : m_listener(std::move(listener))
    , m_socket(nl_socket_alloc())
{
    m_access = connect();
}

WiFiAccess Nl80211Socket::connect()
{
    int result = m_socket ? genl_connect(m_socket.get()) : -NLE_NOMEM;
    if (result == 0) {
        limitWaiting(nl_socket_get_fd(m_socket.get()));
        result = genl_ctrl_resolve(m_socket.get(), NL80211_GENL_NAME);
    }
    if (result > 0) {
        nl_socket_disable_auto_ack(m_socket.get());
        m_family = static_cast<quint16>(result);
        return WiFiAccess::Granted;
    }
    if (result == -NLE_OBJ_NOTFOUND) {
        return WiFiAccess::NoWireless;
    }
    if (isRefusal(result)) {
        return WiFiAccess::Refused;
    }
    qCWarning(logPlatform, "No wireless socket: %s", nl_geterror(result));
    return WiFiAccess::Broken;
}

Nl80211Messages Nl80211Socket::ask(const Nl80211Request &request)
{
    if (m_access != WiFiAccess::Granted) {
        return failure(ENOTCONN);
    }
    const QDeadlineTimer deadline(longestWait);
    Nl80211Messages answer;
    for (int attempt = 0; attempt < dumpAttempts; ++attempt) {
        answer = askOnce(request, deadline);
        if (!answer.interrupted) {
            break;
        }
    }
    return answer;
}

Nl80211Messages Nl80211Socket::askOnce(
    const Nl80211Request &request, const QDeadlineTimer &deadline)
{
    const Message asked = message(request, m_family);
    if (!asked) {
        return failure(ENOBUFS);
    }
    if (const int sent = nl_send_auto(m_socket.get(), asked.get()); sent < 0) {
        qCWarning(logPlatform, "Wireless request not sent: %s", nl_geterror(sent));
        return failure(EIO);
    }
    return receive(request, nlmsg_hdr(asked.get())->nlmsg_seq, deadline);
}

Nl80211Messages Nl80211Socket::receive(
    const Nl80211Request &request, quint32 sequence, const QDeadlineTimer &deadline)
{
    Nl80211Messages answer;
    const int error =
        readFromKernel(nl_socket_get_fd(m_socket.get()), deadline, [&](ByteSpan datagram) {
            answer.add(datagram, m_family, sequence);
            if (m_listener) {
                m_listener(request, datagram);
            }
            return answer.finished;
        });
    return error == 0 ? answer : failure(error);
}

WiFiAccess wiFiAccess()
{
    Nl80211Socket socket;
    if (socket.access() != WiFiAccess::Granted) {
        return socket.access();
    }
    const int error = socket.ask({}).error;
    return error == EPERM || error == EACCES ? WiFiAccess::Refused : WiFiAccess::Granted;
}

} // namespace quillon
