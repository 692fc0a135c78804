// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "helper/NetlinkKernelLink.h"

#include "helper/LinkStack.h"
#include "helper/Log.h"
#include "helper/MessageBody.h"
#include "helper/NetlinkRoutes.h"
#include "helper/PutBack.h"
#include "helper/PutBackNexthops.h"
#include "helper/PutBackRoutes.h"
#include "helper/RoutesInOrder.h"
#include "netlink/NetlinkAttributes.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <iterator>
#include <linux/if_addr.h>
#include <linux/if_link.h>
#include <linux/neighbour.h>
#include <linux/nexthop.h>
#include <linux/rtnetlink.h>
#include <net/if.h>
#include <poll.h>

namespace quillon {

namespace {

// Duplicate address detection takes a second by default; until then a route may not name the
// address. All NetlinkRoutes::maximalPauses make three seconds.
constexpr int detectionPauseMilliseconds = 50;

NetlinkMessage linkMessage(int type, int index, unsigned change = 0, unsigned flags = 0)
{
    ifinfomsg header{};
    header.ifi_index = index;
    header.ifi_change = change;
    header.ifi_flags = flags;
    return netlinkMessage(type, 0, header);
}

bool formsAddresses(const NetlinkAttributes<IFLA_MAX> &link)
{
    const NetlinkAttributes<AF_INET6> families(link.bytes(IFLA_AF_SPEC));
    const NetlinkAttributes<IFLA_INET6_MAX> ipv6(families.bytes(AF_INET6));
    return ipv6.value<std::uint8_t>(IFLA_INET6_ADDR_GEN_MODE) == IN6_ADDR_GEN_MODE_EUI64;
}

bool readLink(const nlmsghdr &message, LinkState &state)
{
    const auto link = headerOf<ifinfomsg>(message);
    const NetlinkAttributes<IFLA_MAX> attributes(attributesOf<ifinfomsg>(message));
    if (message.nlmsg_type != RTM_NEWLINK || !link || !attributes.has(IFLA_IFNAME)) {
        return false;
    }
    state.index = link->ifi_index;
    state.type = link->ifi_type;
    state.flags = link->ifi_flags;
    state.name = attributes.text(IFLA_IFNAME);
    state.master = attributes.value<int>(IFLA_MASTER).value_or(0);
    // An index of another namespace is no link of ours.
    state.lower =
        attributes.has(IFLA_LINK_NETNSID) ? 0 : attributes.value<int>(IFLA_LINK).value_or(0);
    state.formsAddresses = formsAddresses(attributes);
    state.address = {};
    if (const ByteSpan address = attributes.bytes(IFLA_ADDRESS);
        address.size() == state.address.size()) {
        std::memcpy(state.address.data(), address.data(), address.size());
    }
    return true;
}

int errorOf(const NetlinkAnswer &table)
{
    return table.error == 0 && table.interrupted ? EINTR : table.error;
}

std::vector<LinkState> withLinksOnTop(const LinkState &link, const LinkConfiguration &configuration)
{
    std::vector<LinkState> links{link};
    links.insert(links.end(), configuration.linksOnTop.begin(), configuration.linksOnTop.end());
    return links;
}

/// Of these links, the first and those on top of it that have the same address: they follow it.
std::vector<LinkState> thoseThatFollow(const std::vector<LinkState> &links)
{
    std::vector<LinkState> found;
    std::copy_if(links.begin(), links.end(), std::back_inserter(found),
        [&](const LinkState &link) { return link.address == links.front().address; });
    return found;
}

/// The kernel appends IPv4 addresses to its list, but puts IPv6 addresses at the head of theirs.
void restoreOrder(std::vector<LinkConfiguration::Message> &addresses)
{
    const auto firstIPv6 = std::stable_partition(addresses.begin(), addresses.end(),
        [](const auto &address) { return address.front() != AF_INET6; });
    std::reverse(firstIPv6, addresses.end());
}

bool isIPv4(const LinkConfiguration::Message &address)
{
    return address.front() == AF_INET;
}

/// Whether `message` is about the IPv4 address `before`, of the same link.
bool isSameIPv4(const nlmsghdr &message, const LinkConfiguration::Message &before)
{
    const auto now = headerOf<ifaddrmsg>(message);
    ifaddrmsg then{};
    std::memcpy(&then, before.data(), std::min(before.size(), sizeof then));
    const NetlinkAttributes<IFA_MAX> ofNow(attributesOf<ifaddrmsg>(message));
    const NetlinkAttributes<IFA_MAX> ofThen(attributesOf(before, sizeof then));
    return message.nlmsg_type == RTM_NEWADDR && now && now->ifa_index == then.ifa_index &&
           std::ranges::equal(ofNow.bytes(IFA_LOCAL), ofThen.bytes(IFA_LOCAL));
}

void logLosses(const LinkConfiguration &configuration, const NetlinkRoutes &routes)
{
    const auto logLoss = [&](const char *what, int count) {
        if (count > 0) {
            logLine("device=" + harmless(configuration.device) + ": " + what + ": " +
                    std::to_string(count));
        }
    };
    logLoss("routes put back without their source address, which cannot be used now",
        routes.sourcesLost());
    logLoss("routes and nexthops that went with an IPv4 address that was taken away meanwhile",
        routes.takenWithAddress());
    logLoss("nexthop objects and groups that cannot be put back now", routes.nexthopsLost());
}

} // namespace

int NetlinkKernelLink::find(int index, const std::string &name, LinkState &state)
{
    const auto message = linkMessage(RTM_GETLINK, index);
    if (!message ||
        (!name.empty() && nla_put_string(message.get(), IFLA_IFNAME, name.c_str()) < 0)) {
        return ENOMEM;
    }
    bool found = false;
    const NetlinkAnswer answer = m_socket.request(
        message, [&](const nlmsghdr &part) { found = readLink(part, state) || found; });
    return answer.error == 0 && !found ? ENODEV : answer.error;
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
    const auto message = linkMessage(RTM_SETLINK, index);
    if (!message || nla_put(message.get(), IFLA_ADDRESS, static_cast<int>(address.size()),
                        address.data()) < 0) {
        return ENOMEM;
    }
    return m_socket.request(message).error;
}

int NetlinkKernelLink::setUp(int index, bool up)
{
    const unsigned flags = up ? static_cast<unsigned>(IFF_UP) : 0U;
    return m_socket.request(linkMessage(RTM_SETLINK, index, IFF_UP, flags)).error;
}

int NetlinkKernelLink::readLinks(std::vector<LinkState> &links)
{
    const NetlinkAnswer answer = m_socket.readTable(
        netlinkMessage(RTM_GETLINK, NLM_F_DUMP, ifinfomsg{}), [&] { links.clear(); },
        [&](const nlmsghdr &part) {
            if (LinkState state; readLink(part, state)) {
                links.push_back(state);
            }
        });
    return errorOf(answer);
}

int NetlinkKernelLink::readTable(const NetlinkMessage &request, ToPutBack *toPutBack,
    const std::vector<LinkState> &links, std::vector<LinkConfiguration::Message> &table)
{
    const auto before = table.size();
    const NetlinkAnswer answer = m_socket.readTable(
        request, [&] { table.resize(before); },
        [&](const nlmsghdr &part) {
            for (const auto &link : links) {
                if (auto body = toPutBack(&part, link)) {
                    table.push_back(std::move(*body));
                    return;
                }
            }
        });
    return errorOf(answer);
}

int NetlinkKernelLink::readNeighbors(const LinkState &link, LinkConfiguration &configuration)
{
    configuration = {};
    configuration.device = link.name;
    std::vector<LinkState> all;
    if (const int error = readLinks(all); error != 0) {
        return error;
    }
    configuration.linksOnTop = linksOnTop(link, all);
    // The kernel shows those that it answers for (proxies) only to who asks for them alone.
    for (const std::uint8_t flags : {std::uint8_t{0}, std::uint8_t{NTF_PROXY}}) {
        ndmsg header{};
        header.ndm_flags = flags;
        const int error = readTable(netlinkMessage(RTM_GETNEIGH, NLM_F_DUMP, header),
            neighborToPutBack, withLinksOnTop(link, configuration), configuration.neighbors);
        if (error != 0) {
            return error;
        }
    }
    return 0;
}

int NetlinkKernelLink::readFormedAddresses(const LinkState &link, LinkConfiguration &configuration)
{
    auto links = thoseThatFollow(withLinksOnTop(link, configuration));
    std::erase_if(links, [](const LinkState &one) { return !one.formsAddresses; });
    return readTable(netlinkMessage(RTM_GETADDR, NLM_F_DUMP, ifaddrmsg{}), formedAddress, links,
        configuration.formedAddresses);
}

int NetlinkKernelLink::readConfiguration(const LinkState &link, LinkConfiguration &configuration)
{
    int error = readNeighbors(link, configuration);
    const auto links = withLinksOnTop(link, configuration);
    if (error == 0) {
        error = readTable(netlinkMessage(RTM_GETADDR, NLM_F_DUMP, ifaddrmsg{}), addressToPutBack,
            links, configuration.addresses);
    }
    if (error == 0) {
        error = readTable(netlinkMessage(RTM_GETADDR, NLM_F_DUMP, ifaddrmsg{}), formedAddress,
            thoseThatFollow(links), configuration.formedAddresses);
    }
    if (error == 0) {
        error = readRoutes(links, configuration);
    }
    restoreOrder(configuration.addresses);
    return error;
}

int NetlinkKernelLink::readRoutes(
    const std::vector<LinkState> &links, LinkConfiguration &configuration)
{
    if (const int error = readTable(netlinkMessage(RTM_GETNEXTHOP, NLM_F_DUMP, nhmsg{}),
            nexthopToPutBack, links, configuration.nexthops);
        error != 0) {
        return error;
    }
    const auto nexthops = keepConcerned(configuration.nexthops);
    RoutesInOrder routes{links};
    const NetlinkAnswer answer = m_socket.readTable(
        netlinkMessage(RTM_GETROUTE, NLM_F_DUMP, rtmsg{}), [&] { routes.clear(); },
        [&](const nlmsghdr &part) {
            std::optional<LinkConfiguration::Message> body;
            for (auto link = links.begin(); link != links.end() && !body; ++link) {
                body = routeToPutBack(&part, *link, nexthops);
            }
            routes.add(part, std::move(body));
        });
    configuration.routes = routes.take();
    return errorOf(answer);
}

int NetlinkKernelLink::restoreUp(const LinkState &before)
{
    LinkState now;
    // One that has gone meanwhile has nothing to restore.
    if (findByIndex(before.index, now) != 0 || ((now.flags ^ before.flags) & IFF_UP) == 0) {
        return 0;
    }
    return setUp(before.index, (before.flags & IFF_UP) != 0);
}

int NetlinkKernelLink::renewFormedAddresses(const LinkConfiguration &configuration)
{
    int first = 0;
    const auto note = [&first](int error) { first = first == 0 ? error : first; };
    for (const auto &before : configuration.formedAddresses) {
        LinkState link;
        if (findByIndex(linkOfAddress(before), link) != 0) {
            continue;
        }
        const auto now = formedAnew(before, link.address);
        if (now == before) {
            // On top of the link, and has not followed it.
            continue;
        }
        // The new one first: a subnet without an address loses its route.
        if ((link.flags & IFF_UP) != 0) {
            note(create(m_socket, RTM_NEWADDR, NLM_F_EXCL, now));
        }
        note(remove(m_socket, RTM_DELADDR, before));
    }
    return first;
}

int NetlinkKernelLink::removeFormedAddresses(const LinkConfiguration &configuration)
{
    int first = 0;
    for (const auto &address : configuration.formedAddresses) {
        const int error = remove(m_socket, RTM_DELADDR, address);
        first = first == 0 ? error : first;
    }
    return first;
}

// The kernel keeps IPv4 addresses while a link is down. One that is missing was taken away by who
// owns it: the lease of the network that was left. Given back it would stand beside that of the new
// one.
bool NetlinkKernelLink::isIPv4AddressTaken(const LinkConfiguration &configuration)
{
    std::vector<LinkConfiguration::Message> left;
    std::copy_if(configuration.addresses.begin(), configuration.addresses.end(),
        std::back_inserter(left), isIPv4);
    ifaddrmsg header{};
    header.ifa_family = AF_INET;
    const auto all = left;
    const NetlinkAnswer answer = m_socket.readTable(
        netlinkMessage(RTM_GETADDR, NLM_F_DUMP, header), [&] { left = all; },
        [&](const nlmsghdr &part) {
            std::erase_if(left, [&](const auto &before) { return isSameIPv4(part, before); });
        });
    return errorOf(answer) == 0 && !left.empty();
}

int NetlinkKernelLink::putNeighborsBack(const LinkConfiguration &configuration)
{
    int first = 0;
    for (const auto &neighbor : configuration.neighbors) {
        const int error = create(m_socket, RTM_NEWNEIGH, NLM_F_REPLACE, neighbor);
        first = first == 0 ? error : first;
    }
    return first;
}

int NetlinkKernelLink::putBack(const LinkConfiguration &configuration)
{
    int first = 0;
    const auto note = [&first](int error) { first = first == 0 ? error : first; };
    for (const auto &link : configuration.linksOnTop) {
        note(restoreUp(link));
    }
    // Going down again, a link loses the neighbors that it had got back.
    if (std::any_of(configuration.linksOnTop.begin(), configuration.linksOnTop.end(),
            [](const LinkState &link) { return (link.flags & IFF_UP) == 0; })) {
        note(putNeighborsBack(configuration));
    }
    for (const auto &address : configuration.addresses) {
        if (!isIPv4(address)) {
            note(create(m_socket, RTM_NEWADDR, NLM_F_EXCL, address));
        }
    }
    NetlinkRoutes routes{m_socket, [] { ::poll(nullptr, 0, detectionPauseMilliseconds); }};
    routes.watchAddresses([&] { return isIPv4AddressTaken(configuration); });
    note(routes.putBack(configuration));
    logLosses(configuration, routes);
    return first;
}

} // namespace quillon
