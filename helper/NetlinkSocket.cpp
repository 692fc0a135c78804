// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "helper/NetlinkSocket.h"

#include <netlink/msg.h>
#include <netlink/netlink.h>

#include <cerrno>
#include <cstring>

namespace quillon {

namespace {

struct Exchange
{
    const NetlinkSocket::Answer *answer;
    int result = 0;
    bool finished = false;
};

int onValid(nl_msg *message, void *argument)
{
    const auto *exchange = static_cast<Exchange *>(argument);
    if (*exchange->answer) {
        (*exchange->answer)(nlmsg_hdr(message));
    }
    return NL_OK;
}

int onEnd(nl_msg *, void *argument)
{
    static_cast<Exchange *>(argument)->finished = true;
    return NL_STOP;
}

int onTableEnd(nl_msg *message, void *argument)
{
    auto *exchange = static_cast<Exchange *>(argument);
    exchange->finished = true;
    if (const int error = failureOfTable(nlmsg_hdr(message)); error != 0) {
        exchange->result = error;
    }
    return NL_STOP;
}

int onInterrupted(nl_msg *, void *argument)
{
    static_cast<Exchange *>(argument)->result = EINTR;
    return NL_OK;
}

int onError(sockaddr_nl *, nlmsgerr *error, void *argument)
{
    auto *exchange = static_cast<Exchange *>(argument);
    exchange->result = -error->error;
    exchange->finished = true;
    return NL_STOP;
}

} // namespace

int failureOfTable(const nlmsghdr *end)
{
    int status = 0;
    if (nlmsg_datalen(end) >= static_cast<int>(sizeof status)) {
        std::memcpy(&status, nlmsg_data(end), sizeof status);
    }
    // No errno is as low; and the lowest number has no opposite.
    constexpr int highestErrno = 4095;
    return status <= 0 && status >= -highestErrno ? -status : EBADMSG;
}

void FreeNetlinkMessage::operator()(nl_msg *message) const
{
    nlmsg_free(message);
}

void FreeNetlinkSocket::operator()(nl_sock *socket) const
{
    nl_socket_free(socket);
}

int NetlinkSocket::open()
{
    if (m_socket) {
        return 0;
    }
    std::unique_ptr<nl_sock, FreeNetlinkSocket> socket{nl_socket_alloc()};
    if (!socket) {
        return ENOMEM;
    }
    if (nl_connect(socket.get(), NETLINK_ROUTE) < 0) {
        return errno == 0 ? EIO : errno;
    }
    // Whole tables come in large pieces, and a piece that does not fit is lost.
    nl_socket_set_buffer_size(socket.get(), 1 << 20, 0);
    nl_socket_enable_msg_peek(socket.get());
    m_socket = std::move(socket);
    return 0;
}

int NetlinkSocket::request(nl_msg *message, const Answer &answer)
{
    if (const int problem = open(); problem != 0) {
        return problem;
    }
    const std::unique_ptr<nl_cb, decltype(&nl_cb_put)> callbacks{
        nl_cb_alloc(NL_CB_DEFAULT), nl_cb_put};
    if (!callbacks) {
        return ENOMEM;
    }
    Exchange exchange{&answer};
    nl_cb_set(callbacks.get(), NL_CB_VALID, NL_CB_CUSTOM, onValid, &exchange);
    nl_cb_set(callbacks.get(), NL_CB_ACK, NL_CB_CUSTOM, onEnd, &exchange);
    nl_cb_set(callbacks.get(), NL_CB_FINISH, NL_CB_CUSTOM, onTableEnd, &exchange);
    nl_cb_set(callbacks.get(), NL_CB_DUMP_INTR, NL_CB_CUSTOM, onInterrupted, &exchange);
    nl_cb_err(callbacks.get(), NL_CB_CUSTOM, onError, &exchange);

    int status = nl_send_auto(m_socket.get(), message);
    while (status >= 0 && !exchange.finished) {
        status = nl_recvmsgs(m_socket.get(), callbacks.get());
    }
    if (!exchange.finished) {
        // What is left in a broken conversation must not be taken for the next answer.
        m_socket.reset();
        return EIO;
    }
    return exchange.result;
}

} // namespace quillon
