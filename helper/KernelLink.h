// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "contract/Validation.h"

#include <cstdint>
#include <string>
#include <vector>

namespace quillon {

/// One interface as the kernel describes it (RTM_NEWLINK).
struct LinkState
{
    int index = 0;
    std::string name;
    /// ARPHRD_… of <net/if_arp.h>.
    unsigned type = 0;
    /// IFF_… of <net/if.h>.
    unsigned flags = 0;
    contract::LinkLayerAddress address{};
    /// The index of the link that this one stands on (a VLAN on its wire); 0 for none.
    int lower = 0;
    /// The index of the bridge, bond or the like that this one is a port of; 0 for none.
    int master = 0;
    /// The kernel forms IPv6 addresses of this link from its link-layer address (EUI-64).
    bool formsAddresses = false;
};

/// What the kernel forgets of an interface and of those on top of it when its address changes or it
/// goes down, as messages to hand back to the kernel.
struct LinkConfiguration
{
    using Message = std::vector<std::uint8_t>;
    struct Route
    {
        Message body;
        /// Of IPv4 routes of one destination and metric the kernel takes the first. This one stood
        /// before another interface's, which stays there meanwhile.
        bool isAhead = false;

        bool operator==(const Route &) const = default;
    };
    /// The name of the interface, for the log.
    std::string device;
    /// The interfaces on top as they were, the lower ones first. Some follow when the interface
    /// goes down, and all that were down come up with it.
    std::vector<LinkState> linksOnTop;
    /// Those that a person or a program gave. They are forgotten at every change of the address.
    std::vector<Message> neighbors;
    /// Of these the kernel forgets the IPv6 ones; the IPv4 ones tell which routes can come back.
    std::vector<Message> addresses;
    /// IPv6 addresses formed from the link-layer address, of the link and of those on top that have
    /// the same one. They would betray it and do not come back.
    std::vector<Message> formedAddresses;
    /// Nexthop objects, then the groups that they are in.
    std::vector<Message> nexthops;
    /// Those without a gateway first, so that gateways are reachable when their routes come.
    std::vector<Route> routes;
};

/// The kernel's side of an address change. Every operation waits for the kernel's answer and
/// returns 0 or its errno value.
class KernelLink
{
public:
    virtual ~KernelLink() = default;

    virtual int findByName(const std::string &name, LinkState &state) = 0;
    virtual int findByIndex(int index, LinkState &state) = 0;
    virtual int setAddress(int index, const contract::LinkLayerAddress &address) = 0;
    virtual int setUp(int index, bool up) = 0;
    /// What is forgotten when the address changes: the neighbors alone.
    virtual int readNeighbors(const LinkState &link, LinkConfiguration &configuration) = 0;
    /// Adds the formed addresses of links where the kernel is who forms them: it renews them when
    /// the link comes up, and not before. After readNeighbors().
    virtual int readFormedAddresses(const LinkState &link, LinkConfiguration &configuration) = 0;
    /// What is forgotten when `link` goes down: everything, without what the kernel made of the
    /// addresses of links by itself.
    virtual int readConfiguration(const LinkState &link, LinkConfiguration &configuration) = 0;
    /// Puts those that are formed from the address of now in the place of these; on a link that is
    /// down nothing, as the kernel forms them when it comes up. Tries everything and returns the
    /// first failure.
    virtual int renewFormedAddresses(const LinkConfiguration &configuration) = 0;
    /// Those that the kernel keeps while a link is down, where it was told to keep addresses. Tries
    /// everything and returns the first failure.
    virtual int removeFormedAddresses(const LinkConfiguration &configuration) = 0;
    /// Also while the link is down. Replaces what the kernel has learned meanwhile. Tries
    /// everything and returns the first failure.
    virtual int putNeighborsBack(const LinkConfiguration &configuration) = 0;
    /// Everything but the neighbors. What is there already stays as it is. Tries everything and
    /// returns the first failure.
    virtual int putBack(const LinkConfiguration &configuration) = 0;
};

} // namespace quillon
