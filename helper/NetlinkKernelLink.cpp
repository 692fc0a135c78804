// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "helper/NetlinkKernelLink.h"

#include "helper/PutBack.h"

#include <netlink/attr.h>
#include <netlink/msg.h>

#include <algorithm>
#include <cerrno>
#include <linux/rtnetlink.h>
#include <net/if.h>
#include <poll.h>

namespace quillon {

namespace {

constexpr int attempts = 8;
// Duplicate address detection takes a second by default; until then a route may not name the
// address.
constexpr int detectionPauses = 60;
constexpr int detectionPauseMilliseconds = 50;

NetlinkMessage linkMessage(int type, int index)
{
    NetlinkMessage message{nlmsg_alloc_simple(type, NLM_F_REQUEST)};
    ifinfomsg header{};
    header.ifi_family = AF_UNSPEC;
    header.ifi_index = index;
    if (!message || nlmsg_append(message.get(), &header, sizeof header, NLMSG_ALIGNTO) < 0) {
        return nullptr;
    }
    return message;
}

bool readLink(const nlmsghdr *message, LinkState &state)
{
    if (message->nlmsg_type != RTM_NEWLINK) {
        return false;
    }
    nlattr *attributes[IFLA_MAX + 1];
    auto *header = const_cast<nlmsghdr *>(message);
    if (nlmsg_parse(header, sizeof(ifinfomsg), attributes, IFLA_MAX, nullptr) < 0 ||
        attributes[IFLA_IFNAME] == nullptr) {
        return false;
    }
    const auto *link = static_cast<const ifinfomsg *>(nlmsg_data(message));
    state.index = link->ifi_index;
    state.type = link->ifi_type;
    state.flags = link->ifi_flags;
    state.name = nla_get_string(attributes[IFLA_IFNAME]);
    const nlattr *address = attributes[IFLA_ADDRESS];
    state.address = {};
    if (address != nullptr && nla_len(address) == static_cast<int>(state.address.size())) {
        std::copy_n(static_cast<const std::uint8_t *>(nla_data(address)), state.address.size(),
            state.address.begin());
    }
    return true;
}

/// The kernel appends IPv4 addresses to its list, but puts IPv6 addresses at the head of theirs.
void restoreOrder(std::vector<LinkConfiguration::Message> &addresses)
{
    const auto firstIPv6 = std::stable_partition(addresses.begin(), addresses.end(),
        [](const auto &address) { return address.front() != AF_INET6; });
    std::reverse(firstIPv6, addresses.end());
}

} // namespace

int NetlinkKernelLink::find(int index, const std::string &name, LinkState &state)
{
    auto message = linkMessage(RTM_GETLINK, index);
    if (!message ||
        (!name.empty() && nla_put_string(message.get(), IFLA_IFNAME, name.c_str()) < 0)) {
        return ENOMEM;
    }
    bool found = false;
    const int error = m_socket.request(
        message.get(), [&](const nlmsghdr *answer) { found = readLink(answer, state) || found; });
    return error == 0 && !found ? ENODEV : error;
}

int NetlinkKernelLink::findByName(const std::string &name, LinkState &state)
{
    return name.empty() ? ENODEV : find(0, name, state);
}

int NetlinkKernelLink::findByIndex(int index, LinkState &state)
{
    return find(index, {}, state);
}

int NetlinkKernelLink::setAddress(int index, const contract::LinkLayerAddress &address)
{
    auto message = linkMessage(RTM_SETLINK, index);
    if (!message || nla_put(message.get(), IFLA_ADDRESS, static_cast<int>(address.size()),
                        address.data()) < 0) {
        return ENOMEM;
    }
    return m_socket.request(message.get());
}

int NetlinkKernelLink::setUp(int index, bool up)
{
    auto message = linkMessage(RTM_SETLINK, index);
    if (!message) {
        return ENOMEM;
    }
    auto *header = static_cast<ifinfomsg *>(nlmsg_data(nlmsg_hdr(message.get())));
    header->ifi_change = IFF_UP;
    header->ifi_flags = up ? static_cast<unsigned>(IFF_UP) : 0U;
    return m_socket.request(message.get());
}

int NetlinkKernelLink::readTable(int type, const NetlinkSocket::Answer &answer)
{
    NetlinkMessage message{nlmsg_alloc_simple(type, NLM_F_REQUEST | NLM_F_DUMP)};
    // Addresses and routes begin with the family; a dump takes the rest of the header as no filter.
    rtmsg header{};
    header.rtm_family = AF_UNSPEC;
    if (!message || nlmsg_append(message.get(), &header, sizeof header, NLMSG_ALIGNTO) < 0) {
        return ENOMEM;
    }
    return m_socket.request(message.get(), answer);
}

int NetlinkKernelLink::readConfiguration(const LinkState &link, LinkConfiguration &configuration)
{
    int error = EINTR;
    // A table that changed while it was read is read again, but not for ever.
    for (int attempt = 0; error == EINTR && attempt < attempts; ++attempt) {
        configuration = {};
        error = readTable(RTM_GETADDR, [&](const nlmsghdr *answer) {
            if (auto address = addressToPutBack(answer, link)) {
                configuration.addresses.push_back(std::move(*address));
            }
        });
        if (error != 0) {
            continue;
        }
        error = readTable(RTM_GETROUTE, [&](const nlmsghdr *answer) {
            if (auto route = routeToPutBack(answer, link)) {
                configuration.routes.push_back(std::move(*route));
            }
        });
    }
    restoreOrder(configuration.addresses);
    std::stable_partition(configuration.routes.begin(), configuration.routes.end(),
        [](const LinkConfiguration::Message &route) { return !hasGateway(route); });
    return error;
}

int NetlinkKernelLink::create(int type, const LinkConfiguration::Message &body)
{
    NetlinkMessage message{nlmsg_alloc_size(body.size() + NLMSG_HDRLEN + NLMSG_ALIGNTO)};
    if (!message || nlmsg_put(message.get(), NL_AUTO_PORT, NL_AUTO_SEQ, type, 0,
                        NLM_F_REQUEST | NLM_F_CREATE | NLM_F_EXCL) == nullptr) {
        return ENOMEM;
    }
    // The body is what the kernel would have sent after the header.
    auto *data = const_cast<std::uint8_t *>(body.data());
    if (nlmsg_append(message.get(), data, body.size(), NLMSG_ALIGNTO) < 0) {
        return ENOMEM;
    }
    const int error = m_socket.request(message.get());
    return error == EEXIST ? 0 : error;
}

int NetlinkKernelLink::createPatiently(const LinkConfiguration::Message &route, int &pausesLeft)
{
    int error = create(RTM_NEWROUTE, route);
    for (; error == EINVAL && hasSourceAddress(route) && pausesLeft > 0; --pausesLeft) {
        ::poll(nullptr, 0, detectionPauseMilliseconds);
        error = create(RTM_NEWROUTE, route);
    }
    return error;
}

int NetlinkKernelLink::putBack(const LinkConfiguration &configuration)
{
    int first = 0;
    const auto note = [&first](int error) { first = first == 0 ? error : first; };
    for (const auto &address : configuration.addresses) {
        note(create(RTM_NEWADDR, address));
    }
    // Shared by all routes: what is still wrong after that long stays wrong for the next one too.
    int pausesLeft = detectionPauses;
    for (const auto &route : configuration.routes) {
        note(createPatiently(route, pausesLeft));
    }
    return first;
}

} // namespace quillon
