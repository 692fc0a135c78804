// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "netlink/NetlinkSocket.h"
#include "platform/linux/wifi/Nl80211Exchange.h"

#include <functional>

namespace quillon {

/// Whether this process may ask for the machine's Wi-Fi.
enum class WiFiAccess
{
    Granted,
    NoWireless, ///< the kernel has no wireless configuration: there is no Wi-Fi hardware
    Refused,    ///< whoever confines the process forbids it
    Broken,     ///< the kernel did not answer as it should; the log says why
};

/// A generic netlink socket for questions to "nl80211" (nl80211.h of the kernel). None of these
/// questions needs rights, and none makes a radio do anything. Waits for the kernel's answer to a
/// question, two seconds at most, repetitions included (ETIMEDOUT). One thread at a time.
class Nl80211Socket : public Nl80211Exchange
{
public:
    /// Gets each message of an answer as it came.
    using Listener = std::function<void(const Nl80211Request &, const nlmsghdr &)>;

    explicit Nl80211Socket(Listener listener = {});

    WiFiAccess access() const { return m_access; }
    /// The number that the kernel gave to the family, 0 unless access is granted.
    quint16 family() const { return m_family; }

    /// Error ENOTCONN unless access is granted.
    Nl80211Messages ask(const Nl80211Request &request) override;

private:
    WiFiAccess connect();

    Listener m_listener;
    NetlinkSocket m_socket{{.protocol = NETLINK_GENERIC, .patience = std::chrono::seconds(2)}};
    quint16 m_family = 0;
    WiFiAccess m_access = WiFiAccess::Broken;
};

/// Asks the kernel for its interfaces and says how that went.
WiFiAccess wiFiAccess();

} // namespace quillon
