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
};

/// What the kernel forgets when an interface goes down, as messages to hand back to it.
struct LinkConfiguration
{
    using Message = std::vector<std::uint8_t>;
    std::vector<Message> addresses;
    /// Those without a gateway first, so that gateways are reachable when their routes come.
    std::vector<Message> routes;
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
    /// The configuration of `link`, without what the kernel made of the link's address by itself.
    virtual int readConfiguration(const LinkState &link, LinkConfiguration &configuration) = 0;
    /// What is there already stays as it is. Tries everything and returns the first failure.
    virtual int putBack(const LinkConfiguration &configuration) = 0;
};

} // namespace quillon
