// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "helper/KernelLink.h"

#include <cerrno>
#include <map>
#include <net/if.h>
#include <net/if_arp.h>
#include <string>
#include <vector>

namespace quillon::test {

/// A kernel with interfaces that can be made to behave like different drivers. Going down loses the
/// configuration, as in the real one.
class FakeKernelLink : public KernelLink
{
public:
    struct Interface
    {
        LinkState state;
        /// Refuse a new address while up, with this errno value.
        int refusesWhileUp = 0;
        /// Refuse it always.
        int refusesAlways = 0;
        /// Says yes and keeps the old one.
        bool ignoresAddress = false;
        /// Is gone as soon as it has its address.
        bool vanishesAfterwards = false;
        LinkConfiguration configuration;
    };

    Interface &add(const std::string &name, unsigned flags = IFF_UP, unsigned type = ARPHRD_ETHER)
    {
        auto &interface = m_interfaces[++m_last];
        interface.state = {m_last, name, type, flags, {2, 0, 0, 0, 0, 1}};
        return interface;
    }

    int findByName(const std::string &name, LinkState &state) override
    {
        for (const auto &[index, interface] : m_interfaces) {
            if (interface.state.name == name || alternativeNames[name] == interface.state.name) {
                state = interface.state;
                return 0;
            }
        }
        return ENODEV;
    }
    int findByIndex(int index, LinkState &state) override
    {
        if (m_interfaces.count(index) == 0) {
            return ENODEV;
        }
        state = m_interfaces[index].state;
        return 0;
    }
    int setAddress(int index, const contract::LinkLayerAddress &address) override
    {
        auto &interface = m_interfaces[index];
        const bool up = (interface.state.flags & IFF_UP) != 0;
        steps.push_back(up ? "set while up" : "set while down");
        if (flushesNeighborsInAnyCase) {
            interface.configuration.neighbors.clear();
        }
        if (interface.refusesAlways != 0) {
            return interface.refusesAlways;
        }
        if (up && interface.refusesWhileUp != 0) {
            return interface.refusesWhileUp;
        }
        if (!interface.ignoresAddress) {
            interface.state.address = address;
            interface.configuration.neighbors.clear();
        }
        if (interface.vanishesAfterwards) {
            m_interfaces.erase(index);
        }
        return 0;
    }
    int setUp(int index, bool up) override
    {
        steps.push_back(up ? "up" : "down");
        auto &interface = m_interfaces[index];
        const int failure = up ? failsToComeUp : failsToGoDown;
        if (failure != 0) {
            return failure;
        }
        interface.state.flags =
            up ? interface.state.flags | IFF_UP : interface.state.flags & ~unsigned{IFF_UP};
        if (!up) {
            interface.configuration = {};
        }
        return 0;
    }
    int readNeighbors(const LinkState &link, LinkConfiguration &configuration) override
    {
        steps.push_back("read neighbors");
        configuration.neighbors = m_interfaces[link.index].configuration.neighbors;
        m_lastRead = link.index;
        return failsToRead;
    }
    int readFormedAddresses(const LinkState &link, LinkConfiguration &configuration) override
    {
        configuration.formedAddresses = m_interfaces[link.index].configuration.formedAddresses;
        return failsToReadFormed;
    }
    int renewFormedAddresses(const LinkConfiguration &configuration) override
    {
        formedRenewed = configuration.formedAddresses;
        return failsToRenewFormed;
    }
    int removeFormedAddresses(const LinkConfiguration &configuration) override
    {
        formedRemoved = configuration.formedAddresses;
        return failsToRemoveFormed;
    }
    int readConfiguration(const LinkState &link, LinkConfiguration &configuration) override
    {
        steps.push_back("read");
        configuration = m_interfaces[link.index].configuration;
        m_lastRead = link.index;
        return failsToRead;
    }
    int putBack(const LinkConfiguration &configuration) override
    {
        steps.push_back("put back");
        auto &present = m_interfaces[m_lastRead].configuration;
        present.addresses = configuration.addresses;
        present.routes = configuration.routes;
        return failsToPutBack;
    }
    int putNeighborsBack(const LinkConfiguration &configuration) override
    {
        steps.push_back("put neighbors back");
        m_interfaces[m_lastRead].configuration.neighbors = configuration.neighbors;
        return failsToPutNeighborsBack;
    }

    Interface &named(const std::string &name)
    {
        for (auto &[index, interface] : m_interfaces) {
            if (interface.state.name == name) {
                return interface;
            }
        }
        return add(name);
    }

    std::vector<std::string> steps;
    std::map<std::string, std::string> alternativeNames;
    int failsToRead = 0;
    int failsToReadFormed = 0;
    int failsToRenewFormed = 0;
    int failsToRemoveFormed = 0;
    std::vector<LinkConfiguration::Message> formedRenewed;
    std::vector<LinkConfiguration::Message> formedRemoved;
    int failsToGoDown = 0;
    int failsToComeUp = 0;
    int failsToPutBack = 0;
    int failsToPutNeighborsBack = 0;
    /// Also where the address is refused, as some drivers do.
    bool flushesNeighborsInAnyCase = false;

private:
    std::map<int, Interface> m_interfaces;
    int m_last = 0;
    int m_lastRead = 0;
};

} // namespace quillon::test
