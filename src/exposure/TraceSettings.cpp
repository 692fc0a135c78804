// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "exposure/TraceSettings.h"

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

using Kind = Trace::Kind;
using Lasts = Trace::Lasts;

struct Setting
{
    Kind kind;
    const char *owner;
    const char *text; ///< %1 is the interface
};

constexpr Setting settings[] = {
    {Kind::DhcpName, "NetworkManager", "ipv4.dhcp-send-hostname no"},
    {Kind::DhcpName, "systemd-networkd", "SendHostname=no"},
    {Kind::DhcpName, "dhclient", "send host-name"},
    {Kind::DhcpIdentifier, "NetworkManager", "ipv4.dhcp-client-id mac"},
    {Kind::DhcpIdentifier, "systemd-networkd", "ClientIdentifier=mac"},
    {Kind::DhcpIdentifier, "dhclient", "send dhcp-client-identifier"},
    {Kind::Duid, "NetworkManager", "ipv6.dhcp-duid ll"},
    {Kind::Duid, "systemd-networkd", "DUIDType=link-layer"},
    {Kind::Ipv6Address, "NetworkManager", "ipv6.ip6-privacy 2"},
    {Kind::Ipv6Address, "systemd-networkd", "IPv6PrivacyExtensions=yes"},
    {Kind::Ipv6Address, "", "net.ipv6.conf.%1.use_tempaddr=2"},
    {Kind::MulticastName, "Avahi", "deny-interfaces=%1"},
    {Kind::MulticastName, "NetworkManager", "connection.mdns no"},
    {Kind::MulticastName, "systemd-networkd", "MulticastDNS=no"},
    {Kind::MulticastName, "systemd-resolved", "MulticastDNS=no"},
    {Kind::LinkLocalName, "NetworkManager", "connection.llmnr no"},
    {Kind::LinkLocalName, "systemd-networkd", "LLMNR=no"},
    {Kind::LinkLocalName, "systemd-resolved", "LLMNR=no"},
    {Kind::LoginIdentity, "NetworkManager", "802-1x.anonymous-identity"},
};

/// One that is not formed from a link-layer address, and stays on its network.
const char *ofStableIpv6Address(const QString &owner)
{
    return owner == "NetworkManager"_L1 ? "connection.stable-id ${CONNECTION}/${RANDOM}" : nullptr;
}

/// One that is: what makes another kind of it.
const char *ofFormedIpv6Address(const QString &owner)
{
    if (owner == "NetworkManager"_L1) {
        return "ipv6.addr-gen-mode stable-privacy";
    }
    if (owner == "systemd-networkd"_L1) {
        return "IPv6LinkLocalAddressGenerationMode=stable-privacy, Token=prefixstable";
    }
    return "net.ipv6.conf.%1.addr_gen_mode=3";
}

bool isFormedFromLinkAddress(Lasts lasts)
{
    return lasts == Lasts::FollowsAddress || lasts == Lasts::NamesHardwareAddress ||
           lasts == Lasts::NamesOtherAddress;
}

const char *settingOf(Kind kind, Lasts lasts, const QString &owner)
{
    if (kind == Kind::Ipv6Address && isFormedFromLinkAddress(lasts)) {
        return ofFormedIpv6Address(owner);
    }
    if (kind == Kind::Ipv6Address && lasts == Lasts::OnThisNetwork) {
        if (const char *const stable = ofStableIpv6Address(owner)) {
            return stable;
        }
    }
    for (const Setting &setting : settings) {
        // What nobody is known to have set is the kernel's.
        const bool isOwners = owner == QLatin1String(setting.owner) || *setting.owner == '\0';
        if (setting.kind == kind && isOwners) {
            return setting.text;
        }
    }
    return nullptr;
}

} // namespace

QString settingAgainst(Kind kind, Lasts lasts, const QString &owner, const QString &device)
{
    const bool isIdentifier = kind == Kind::DhcpIdentifier || kind == Kind::Duid;
    if (lasts == Lasts::ChangesByItself || (isIdentifier && lasts == Lasts::FollowsAddress)) {
        return {}; // no less can be shown
    }
    QString setting = QLatin1String(settingOf(kind, lasts, owner));
    return setting.contains("%1"_L1) ? setting.arg(device) : setting;
}

} // namespace quillon
