// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "fakes/FakeNetworkHost.h"
#include "platform/InterfaceAddresses.h"

namespace quillon::test {

/// The interface-address list of a fake machine.
class FakeInterfaceAddresses : public InterfaceAddresses
{
public:
    explicit FakeInterfaceAddresses(const FakeNetworkHost &host)
        : m_host(host)
    {
    }

    QList<Entry> ipv4() const override
    {
        QList<Entry> entries;
        if (m_cannotBeHad) {
            return entries;
        }
        for (const FakeNetworkHost::Interface &interface : m_host.interfaces()) {
            for (const QString &address : interface.ipv4) {
                entries.append({interface.device, address});
            }
        }
        return entries;
    }

    /// From now on the list cannot be had.
    void fail() { m_cannotBeHad = true; }

private:
    const FakeNetworkHost &m_host;
    bool m_cannotBeHad = false;
};

} // namespace quillon::test
