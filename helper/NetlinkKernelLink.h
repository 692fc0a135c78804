// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "helper/KernelLink.h"
#include "netlink/NetlinkSocket.h"

#include <optional>

namespace quillon {

/// KernelLink by rtnetlink, in the network namespace of the process. Changing anything needs
/// CAP_NET_ADMIN.
class NetlinkKernelLink : public KernelLink
{
public:
    int findByName(const std::string &name, LinkState &state) override;
    int findByIndex(int index, LinkState &state) override;
    int setAddress(int index, const contract::LinkLayerAddress &address) override;
    int setUp(int index, bool up) override;
    int readNeighbors(const LinkState &link, LinkConfiguration &configuration) override;
    int readFormedAddresses(const LinkState &link, LinkConfiguration &configuration) override;
    int readConfiguration(const LinkState &link, LinkConfiguration &configuration) override;
    int renewFormedAddresses(const LinkConfiguration &configuration) override;
    int removeFormedAddresses(const LinkConfiguration &configuration) override;
    int putNeighborsBack(const LinkConfiguration &configuration) override;
    int putBack(const LinkConfiguration &configuration) override;

private:
    using ToPutBack = std::optional<LinkConfiguration::Message>(
        const nlmsghdr *, const LinkState &);

    int find(int index, const std::string &name, LinkState &state);
    int readLinks(std::vector<LinkState> &links);
    int readTable(const NetlinkMessage &request, ToPutBack *toPutBack,
        const std::vector<LinkState> &links, std::vector<LinkConfiguration::Message> &table);
    int readRoutes(const std::vector<LinkState> &links, LinkConfiguration &configuration);
    int restoreUp(const LinkState &before);
    bool isIPv4AddressTaken(const LinkConfiguration &configuration);

    NetlinkSocket m_socket{{.protocol = NETLINK_ROUTE}};
};

} // namespace quillon
