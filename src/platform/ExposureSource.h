// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

#include <chrono>
#include <functional>
#include <optional>

namespace quillon {

/// What an interface tells others on its network beside its link-layer address, as those who
/// configure it have it. Texts come from outside: of any content, at most 255 characters.
struct ExposureFacts
{
    /// Unknown is what could not be read; it is never to be taken for No.
    enum class Answer
    {
        Unknown,
        No,
        Yes
    };
    /// What the owner's settings say that an identifier is made of.
    enum class Made
    {
        Unknown,
        OfAddressInUse,
        OfHardwareAddress,
        OfMachine,
        OfConnection, ///< of the profile, which is another one for each network
        Fixed         ///< somebody chose it
    };
    struct Dhcp
    {
        Answer isUsed = Answer::Unknown;
        Answer sendsName = Answer::Unknown;
        QString name = {}; ///< "" for the computer's own
        Answer sendsIdentifier = Answer::Unknown;
        /// As it is sent, empty when not known: option 61 of IPv4 with its type, or the DUID.
        QByteArray identifier = {};
        Made identifierMade = Made::Unknown;

        bool operator==(const Dhcp &) const = default;
    };
    struct Ipv6Address
    {
        QByteArray octets = {}; ///< 16
        bool isLinkLocal = false;
        bool isTemporary = false; ///< replaced after a time by itself
        bool hasEnd = false;      ///< given for a time, by a router or a DHCP server
        bool isLeased = false;    ///< by a DHCP server, as far as that can be seen
        /// Since the interface has it; none when not known.
        std::optional<std::chrono::seconds> age = {};

        bool operator==(const Ipv6Address &) const = default;
    };
    struct LocalName
    {
        Answer isTold = Answer::Unknown;
        QString name = {}; ///< "" for the computer's own

        bool operator==(const LocalName &) const = default;
    };
    /// 802.1X.
    struct Login
    {
        Answer isUsed = Answer::Unknown;
        QString identity = {};
        QString anonymousIdentity = {}; ///< sent in the open in its place; "" for none

        bool operator==(const Login &) const = default;
    };

    QString owner; ///< "NetworkManager", "systemd-networkd", "dhclient"; "" when not known
    QString hostName;
    Dhcp ipv4;
    Dhcp ipv6;
    /// None when they could not be read.
    std::optional<QList<Ipv6Address>> ipv6Addresses = {};
    LocalName avahi;         ///< mDNS
    LocalName resolvedMdns;  ///< mDNS by systemd-resolved
    LocalName resolvedLlmnr; ///< LLMNR by systemd-resolved
    Login login;

    bool operator==(const ExposureFacts &) const = default;
};

/// Reads them. Nothing is changed, no secret asked for and nobody started. Main thread.
class ExposureSource
{
public:
    using Reply = std::function<void(const ExposureFacts &facts)>;

    virtual ~ExposureSource() = default;

    /// `reply` is called once, within seconds, never before the call returns; not when this goes
    /// before.
    virtual void read(const QString &device, Reply reply) = 0;
};

} // namespace quillon
