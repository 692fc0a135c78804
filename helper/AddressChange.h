// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "helper/KernelLink.h"
#include "helper/Outcome.h"

#include <string>

namespace quillon {

/// How an address gets onto an interface.
enum class AddressStrategy
{
    /// Set while the interface is up, falling back to the other way where its driver refuses that.
    Live,
    /// Take the interface down, set, bring it up, and put its addresses and routes back. The kernel
    /// then forms its IPv6 addresses anew.
    DownSetUp,
};

/// The way for this interface, the one place where that is decided.
AddressStrategy strategyFor(const LinkState &link, bool deviceIsWiFi);

/// Changes the link-layer address of one interface. Blocks while the kernel works; requests that
/// follow each other are therefore never interleaved, on one device or on two.
class AddressChange
{
public:
    explicit AddressChange(KernelLink &kernel);

    /// The interface of this name, which has passed the contract's validation. Errors:
    /// NoSuchDevice, UnsupportedDevice.
    Outcome find(const std::string &device, LinkState &link);
    /// `asked` is what find() gave when the change was asked for: another interface that bears its
    /// name by now is left alone. `address` has passed the contract's validation. Errors: those of
    /// find(), ChangeFailed, AddressDidNotTake.
    Outcome change(
        const LinkState &asked, const contract::LinkLayerAddress &address, bool deviceIsWiFi);

private:
    Outcome setLive(const LinkState &link, const contract::LinkLayerAddress &address);
    Outcome setWhileDown(const LinkState &link, const contract::LinkLayerAddress &address);
    int takeFollowersDown(const LinkConfiguration &configuration);
    Outcome confirm(const LinkState &link, const contract::LinkLayerAddress &address);

    KernelLink &m_kernel;
};

} // namespace quillon
