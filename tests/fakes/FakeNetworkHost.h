// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/NetworkHost.h"

#include <QStringList>

namespace quillon::test {

/// A machine whose interfaces can be plugged, renamed, given addresses and broken. It takes and
/// tells addresses as the kernel does.
class FakeNetworkHost : public NetworkHost
{
public:
    struct Interface
    {
        QString port;        ///< port name; empty for what is no port, such as a tunnel
        QString device;      ///< interface name
        QString factory;     ///< factory address; empty when it has none to tell
        QString address;     ///< the address in use
        QStringList ipv4;    ///< in the order in which they were added
        bool active = true;  ///< the link is up
        QString router = {}; ///< of its default route; empty when it has none
        /// Takes no new address but does not say so, as one that is switched off.
        bool keepsAddress = false;
        /// Is listed, but answers no query any more.
        bool broken = false;
    };

    FakeNetworkHost() = default;
    /// The machine that tests/data/machines/`name`.json describes. Ends the test program when there
    /// is no such description.
    explicit FakeNetworkHost(const QString &name);

    std::optional<QList<PortRecord>> ports() override;
    InterfaceInfo info(const QString &device) override;

    void plug(const Interface &interface);
    void unplug(const QString &device);
    /// False, and nothing happens, when another interface has the name already.
    bool rename(const QString &device, const QString &newName);
    /// Makes `address` the one in use; false when there is no such interface or none can have it.
    bool giveAddress(const QString &device, const QString &address);
    /// The interface to change by hand; it must exist.
    Interface &at(const QString &device);
    const QList<Interface> &interfaces() const { return m_interfaces; }
    QString addressOf(const QString &device) const;
    /// From now on nothing can be read, or it can again.
    void setUnreadable(bool unreadable) { m_unreadable = unreadable; }
    /// What the host was asked, in order: "ports", "info <device>".
    const QStringList &journal() const { return m_journal; }
    void clearJournal() { m_journal.clear(); }

private:
    static InterfaceInfo answer(const Interface &interface);

    QList<Interface> m_interfaces;
    QStringList m_journal;
    bool m_unreadable = false;
};

} // namespace quillon::test
