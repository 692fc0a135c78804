// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "exposure/Traces.h"

#include "exposure/Ipv6Text.h"
#include "exposure/TraceSettings.h"

#include <algorithm>
#include <array>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

using Kind = Trace::Kind;
using Lasts = Trace::Lasts;
using Answer = ExposureFacts::Answer;
using std::chrono::seconds;

/// Every computer may have one of these: DHCP clients do not send them, and nobody answers to them.
bool isNobodysName(const QString &name)
{
    static constexpr std::array<QLatin1String, 5> names = {"localhost"_L1,
        "localhost.localdomain"_L1, "localhost6"_L1, "localhost6.localdomain6"_L1, "(none)"_L1};
    return name.isEmpty() || std::ranges::any_of(names, [&](QLatin1String one) {
        return name.compare(one, Qt::CaseInsensitive) == 0;
    });
}

QString octetsText(const QByteArray &octets)
{
    return QString::fromLatin1(octets.toHex(':'));
}

class TraceList
{
public:
    TraceList(const QString &device, const ExposureFacts &facts, const LinkAddresses &link,
        std::optional<seconds> sinceChange)
        : m_device(device)
        , m_facts(facts)
        , m_link(link)
        , m_sinceChange(sinceChange)
    {
    }

    QList<Trace> made()
    {
        addDhcp();
        addIpv6Addresses();
        addNames();
        addLogin();
        return m_traces;
    }

private:
    void add(Trace trace, const QString &owner)
    {
        trace.setting = settingAgainst(trace.kind, trace.lasts, owner, m_device);
        trace.owner = trace.setting.isEmpty() ? QString() : owner;
        m_traces.append(trace);
    }

    /// A name that is told, or not known to be told.
    void addName(Kind kind, Answer isTold, const QString &name, const QString &owner)
    {
        if (isTold == Answer::Unknown) {
            add({.kind = kind}, owner);
        } else if (isTold == Answer::Yes && !name.isEmpty()) {
            add({.kind = kind, .value = name, .lasts = Lasts::Always}, owner);
        }
    }

    void addDhcp()
    {
        const auto &ipv4 = m_facts.ipv4;
        const auto &ipv6 = m_facts.ipv6;
        const bool mayHaveIpv6 =
            ipv6.isUsed == Answer::Yes || (ipv6.isUsed == Answer::Unknown && isOnIpv6());
        if (ipv4.isUsed != Answer::No || mayHaveIpv6) {
            addDhcpName(ipv4.isUsed != Answer::No ? ipv4 : ipv6);
        }
        if (ipv4.isUsed != Answer::No) {
            addIdentifier(Kind::DhcpIdentifier, ipv4,
                lastingOfClientIdentifier(ipv4.identifier, ipv4.identifierMade, m_link));
        }
        if (mayHaveIpv6) {
            addIdentifier(
                Kind::Duid, ipv6, lastingOfDuid(ipv6.identifier, ipv6.identifierMade, m_link));
        }
    }

    void addDhcpName(const ExposureFacts::Dhcp &client)
    {
        const QString own = isNobodysName(m_facts.hostName) ? QString() : m_facts.hostName;
        const Answer isSent = client.isUsed == Answer::Yes || client.sendsName == Answer::No
                                  ? client.sendsName
                                  : Answer::Unknown;
        addName(Kind::DhcpName, isSent, client.name.isEmpty() ? own : client.name, m_facts.owner);
    }

    void addIdentifier(Kind kind, const ExposureFacts::Dhcp &client, Lasts lasts)
    {
        if (client.sendsIdentifier != Answer::No) {
            add({.kind = kind, .value = octetsText(client.identifier), .lasts = lasts},
                m_facts.owner);
        }
    }

    /// It has an address with which it is seen beyond its link.
    bool isOnIpv6() const
    {
        return !m_facts.ipv6Addresses ||
               std::ranges::any_of(*m_facts.ipv6Addresses,
                   [](const ExposureFacts::Ipv6Address &one) { return !one.isLinkLocal; });
    }

    void addIpv6Addresses()
    {
        if (!m_facts.ipv6Addresses) {
            add({.kind = Kind::Ipv6Address}, m_facts.owner);
            return;
        }
        const auto &addresses = *m_facts.ipv6Addresses;
        for (const auto &address : addresses.first(std::min(addresses.size(), mostIpv6Addresses))) {
            addIpv6Address(address);
        }
        if (const qsizetype more = addresses.size() - mostIpv6Addresses; more > 0) {
            m_traces.append({.kind = Kind::MoreIpv6Addresses, .value = QString::number(more)});
        }
    }

    void addIpv6Address(const ExposureFacts::Ipv6Address &address)
    {
        // The kernel counts from when it knew of the address, the program from its request.
        constexpr seconds slack{1};
        Trace trace{.kind = Kind::Ipv6Address,
            .value = ipv6Text(address.octets),
            .lasts = lastingOf(address),
            .age = address.age};
        trace.isKept = m_sinceChange && address.age && *address.age > *m_sinceChange + slack;
        add(trace, m_facts.owner);
    }

    Lasts lastingOf(const ExposureFacts::Ipv6Address &address) const
    {
        if (address.isTemporary) {
            return Lasts::ChangesByItself;
        }
        const QByteArray origin = linkAddressIn(address.octets);
        if (!origin.isEmpty()) {
            return origin == m_link.inUse      ? Lasts::FollowsAddress
                   : origin == m_link.hardware ? Lasts::NamesHardwareAddress
                                               : Lasts::NamesOtherAddress;
        }
        if (address.isLeased) {
            // The server goes by the DUID.
            const Lasts ofDuid =
                lastingOfDuid(m_facts.ipv6.identifier, m_facts.ipv6.identifierMade, m_link);
            return ofDuid == Lasts::FollowsAddress || ofDuid == Lasts::Unknown
                       ? ofDuid
                       : Lasts::OnThisNetwork;
        }
        // Formed by RFC 7217 from the network, or set by hand.
        return address.isLinkLocal || address.hasEnd ? Lasts::OnThisNetwork : Lasts::Always;
    }

    void addNames()
    {
        const QString own = isNobodysName(m_facts.hostName) ? QString() : m_facts.hostName;
        const auto local = [](const QString &name) {
            return name.isEmpty() || name.endsWith(".local"_L1) ? name : name + u".local"_s;
        };
        const auto named = [&](const ExposureFacts::LocalName &one) {
            return one.name.isEmpty() ? own : one.name;
        };
        // The owner hands its settings on to systemd-resolved, if it has any of those.
        const bool isOwners =
            m_facts.owner == "NetworkManager"_L1 || m_facts.owner == "systemd-networkd"_L1;
        const QString ofResolved = isOwners ? m_facts.owner : u"systemd-resolved"_s;
        const bool isUnknown = m_facts.avahi.isTold == Answer::Unknown ||
                               m_facts.resolvedMdns.isTold == Answer::Unknown;
        if (m_facts.avahi.isTold == Answer::Yes) {
            addName(Kind::MulticastName, Answer::Yes, local(named(m_facts.avahi)), u"Avahi"_s);
        }
        if (m_facts.resolvedMdns.isTold == Answer::Yes) {
            addName(
                Kind::MulticastName, Answer::Yes, local(named(m_facts.resolvedMdns)), ofResolved);
        }
        if (isUnknown) {
            const bool isAvahi = m_facts.avahi.isTold == Answer::Unknown;
            addName(Kind::MulticastName, Answer::Unknown, {}, isAvahi ? u"Avahi"_s : ofResolved);
        }
        addName(Kind::LinkLocalName, m_facts.resolvedLlmnr.isTold, named(m_facts.resolvedLlmnr),
            ofResolved);
    }

    void addLogin()
    {
        const auto &login = m_facts.login;
        // Without another one, the identity is sent in the open; the network's own server is told
        // it in any case.
        QString value = login.identity;
        if (!login.anonymousIdentity.isEmpty() && !value.isEmpty()) {
            value = u"%1 (%2)"_s.arg(login.anonymousIdentity, login.identity);
        } else if (value.isEmpty()) {
            value = login.anonymousIdentity;
        }
        if (login.isUsed == Answer::Yes && value.isEmpty()) {
            add({.kind = Kind::LoginIdentity}, m_facts.owner);
        } else {
            addName(Kind::LoginIdentity, login.isUsed, value, m_facts.owner);
        }
    }

    const QString &m_device;
    const ExposureFacts &m_facts;
    const LinkAddresses &m_link;
    const std::optional<seconds> m_sinceChange;
    QList<Trace> m_traces;
};

} // namespace

QList<Trace> tracesOf(const QString &device, const ExposureFacts &facts, const LinkAddresses &link,
    std::optional<seconds> sinceChange)
{
    return TraceList(device, facts, link, sinceChange).made();
}

} // namespace quillon
