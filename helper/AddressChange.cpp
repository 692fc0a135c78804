// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "helper/AddressChange.h"

#include <cerrno>
#include <cstring>
#include <net/if.h>
#include <net/if_arp.h>

namespace quillon {

namespace {

Outcome changeFailed(const LinkState &link, const char *what, int error)
{
    return Refusal{contract::error::changeFailed,
        link.name + ": " + what + " failed: " + std::strerror(error)};
}

bool driverWantsItDown(int error)
{
    return error == EBUSY || error == EOPNOTSUPP;
}

} // namespace

AddressStrategy strategyFor(const LinkState &link, bool deviceIsWiFi)
{
    // A Wi-Fi interface has to leave its network, whatever its driver would let pass: going down
    // leaves.
    if (deviceIsWiFi && (link.flags & IFF_UP) != 0) {
        return AddressStrategy::DownSetUp;
    }
    return AddressStrategy::Live;
}

AddressChange::AddressChange(KernelLink &kernel)
    : m_kernel{kernel}
{
}

Outcome AddressChange::change(
    const LinkState &asked, const contract::LinkLayerAddress &address, bool deviceIsWiFi)
{
    LinkState link;
    if (auto refusal = find(asked.name, link)) {
        return refusal;
    }
    if (link.index != asked.index) {
        return Refusal{contract::error::noSuchDevice,
            asked.name + " is another interface than the one that the request was about."};
    }
    Outcome refusal;
    switch (strategyFor(link, deviceIsWiFi)) {
    case AddressStrategy::Live:
        refusal = setLive(link, address);
        break;
    case AddressStrategy::DownSetUp:
        refusal = setWhileDown(link, address);
        break;
    }
    return refusal ? refusal : confirm(link, address);
}

Outcome AddressChange::find(const std::string &device, LinkState &link)
{
    // The kernel also finds by alternative names, and a name can move to another interface: from
    // here on only the index counts, and it must be the index of exactly this name.
    if (m_kernel.findByName(device, link) != 0 || link.name != device || link.index <= 0) {
        return Refusal{contract::error::noSuchDevice, "There is no interface " + device + "."};
    }
    if (link.type != ARPHRD_ETHER || (link.flags & IFF_LOOPBACK) != 0) {
        return Refusal{
            contract::error::unsupportedDevice, device + " is not an Ethernet-like interface."};
    }
    return std::nullopt;
}

Outcome AddressChange::setLive(const LinkState &link, const contract::LinkLayerAddress &address)
{
    LinkConfiguration configuration;
    if (const int error = m_kernel.readNeighbors(link, configuration); error != 0) {
        return changeFailed(link, "reading the static neighbors", error);
    }
    if (const int error = m_kernel.readFormedAddresses(link, configuration); error != 0) {
        return changeFailed(link, "reading the IPv6 addresses", error);
    }
    const int error = m_kernel.setAddress(link.index, address);
    const int putBackError = m_kernel.putNeighborsBack(configuration);
    if (driverWantsItDown(error) && (link.flags & IFF_UP) != 0) {
        return setWhileDown(link, address);
    }
    if (error != 0) {
        return changeFailed(link, "setting the address", error);
    }
    if (const int formedError = m_kernel.renewFormedAddresses(configuration); formedError != 0) {
        return changeFailed(link, "renewing the IPv6 addresses", formedError);
    }
    if (putBackError != 0) {
        return changeFailed(link, "putting the static neighbors back", putBackError);
    }
    return std::nullopt;
}

Outcome AddressChange::setWhileDown(
    const LinkState &link, const contract::LinkLayerAddress &address)
{
    LinkConfiguration configuration;
    if (const int error = m_kernel.readConfiguration(link, configuration); error != 0) {
        // Without knowing what to put back it would be wrong to take it down.
        return changeFailed(link, "reading addresses and routes", error);
    }
    if (const int error = m_kernel.setUp(link.index, false); error != 0) {
        return changeFailed(link, "taking the interface down", error);
    }
    const int setError = m_kernel.setAddress(link.index, address);
    const int followersError = setError == 0 ? takeFollowersDown(configuration) : 0;
    const int formedError = setError == 0 ? m_kernel.removeFormedAddresses(configuration) : 0;
    // Before it comes up: no packet leaves by what a stranger answers meanwhile.
    const int neighborError = m_kernel.putNeighborsBack(configuration);
    // Whatever the outcome, the interface is brought up again.
    const int upError = m_kernel.setUp(link.index, true);
    const int putBackError = upError == 0 ? m_kernel.putBack(configuration) : 0;
    if (setError != 0) {
        return changeFailed(link, "setting the address", setError);
    }
    if (upError != 0) {
        return changeFailed(link, "bringing the interface up", upError);
    }
    if (followersError != 0) {
        return changeFailed(link, "taking the interfaces on top down", followersError);
    }
    if (formedError != 0) {
        return changeFailed(link, "removing the IPv6 addresses of before", formedError);
    }
    if (neighborError != 0) {
        return changeFailed(link, "putting the static neighbors back", neighborError);
    }
    if (putBackError != 0) {
        return changeFailed(link, "putting addresses and routes back", putBackError);
    }
    return std::nullopt;
}

// A bridge takes its port's address over and stays up without it: it keeps the IPv6 addresses of
// before. Putting everything back brings it up again.
int AddressChange::takeFollowersDown(const LinkConfiguration &configuration)
{
    int first = 0;
    for (const LinkState &before : configuration.linksOnTop) {
        LinkState now;
        if (before.formsAddresses && m_kernel.findByIndex(before.index, now) == 0 &&
            now.address != before.address && (now.flags & IFF_UP) != 0) {
            const int error = m_kernel.setUp(before.index, false);
            first = first == 0 ? error : first;
        }
    }
    return first;
}

Outcome AddressChange::confirm(const LinkState &link, const contract::LinkLayerAddress &address)
{
    LinkState now;
    const int error = m_kernel.findByIndex(link.index, now);
    if (error != 0 || now.address != address) {
        return Refusal{contract::error::addressDidNotTake,
            link.name + " did not take the address " + contract::addressText(address) + "."};
    }
    return std::nullopt;
}

} // namespace quillon
