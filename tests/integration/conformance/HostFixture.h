// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/NetworkHost.h"

#include <functional>

namespace quillon::test {

/// A machine whose interfaces a test plugs and changes while a host reads them.
class HostFixture
{
public:
    virtual ~HostFixture() = default;

    virtual NetworkHost &host() = 0;

    /// A wired network card, switched off. Its device name must begin with "en".
    virtual void plugCard(const QString &device, const QString &address) = 0;
    virtual void plugBridge(const QString &device, const QString &address) = 0;
    /// An interface that is no port whose address a person would change: the host's end of a
    /// container's uplink.
    virtual void plugContainerEnd(const QString &device, const QString &address) = 0;
    virtual void unplug(const QString &device) = 0;
    /// False when the machine refuses.
    virtual bool rename(const QString &device, const QString &newName) = 0;
    /// False when the machine refuses.
    virtual bool giveAddress(const QString &device, const QString &address) = 0;
    virtual void giveIPv4(const QString &device, const QString &ipv4) = 0;
    virtual void takeIPv4(const QString &device, const QString &ipv4) = 0;
    /// Switches a card on, with a cable to a neighbor that is on, or off.
    virtual void setLink(const QString &device, bool up) = 0;
    /// Whether `condition` holds once the machine has come to rest.
    virtual bool soon(const std::function<bool()> &condition) = 0;
};

} // namespace quillon::test
