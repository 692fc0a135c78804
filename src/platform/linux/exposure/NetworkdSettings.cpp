// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/exposure/NetworkdSettings.h"

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

using Answer = ExposureFacts::Answer;
using Made = ExposureFacts::Made;

constexpr qsizetype longest = 255;

Answer answer(bool isYes)
{
    return isYes ? Answer::Yes : Answer::No;
}

/// Of "DHCP=", which has a word for each of the two.
Answer isDhcpOn(const IniText &network, QLatin1String family)
{
    const QString word = network.value(u"Network"_s, u"DHCP"_s).value_or(u"no"_s);
    if (const auto truth = truthOf(word)) {
        return answer(*truth);
    }
    return word == "ipv4"_L1 || word == "ipv6"_L1 ? answer(word == family) : Answer::Unknown;
}

/// The sections had one name for both families before; "DHCP" still counts for IPv4.
std::optional<QString> dhcpValue(const IniText &text, const QString &section, const QString &key)
{
    const auto value = text.value(section, key);
    return value || section != "DHCPv4"_L1 ? value : text.value(u"DHCP"_s, key);
}

Made duidMade(const IniText &network, const IniText &general, const QString &section)
{
    auto type = dhcpValue(network, section, u"DUIDType"_s);
    auto raw = dhcpValue(network, section, u"DUIDRawData"_s);
    if (!type) {
        type = dhcpValue(general, section, u"DUIDType"_s);
        raw = dhcpValue(general, section, u"DUIDRawData"_s);
    }
    if (raw && !raw->isEmpty()) {
        return Made::Fixed;
    }
    const QString word = type.value_or(u"vendor"_s).section(u':', 0, 0);
    if (word == "link-layer"_L1 || word == "link-layer-time"_L1) {
        return Made::OfAddressInUse;
    }
    return word == "vendor"_L1 || word == "uuid"_L1 ? Made::OfMachine : Made::Unknown;
}

void takeName(ExposureFacts::Dhcp &dhcp, const IniText &network, const QString &section)
{
    const auto isSent = dhcpValue(network, section, u"SendHostname"_s);
    const auto truth = isSent ? truthOf(*isSent) : std::optional(true);
    dhcp.sendsName = truth ? answer(*truth) : Answer::Unknown;
    dhcp.name = dhcpValue(network, section, u"Hostname"_s).value_or(QString()).left(longest);
}

void takeIdentifier(ExposureFacts::Dhcp &dhcp, const IniText &network, const IniText &general)
{
    const QString section = u"DHCPv4"_s;
    dhcp.sendsIdentifier = Answer::Yes;
    const QString word =
        dhcpValue(network, section, u"ClientIdentifier"_s)
            .value_or(dhcpValue(general, section, u"ClientIdentifier"_s).value_or(u"duid"_s));
    if (word == "mac"_L1) {
        dhcp.identifierMade = Made::OfAddressInUse;
    } else if (word == "duid"_L1 || word == "duid-only"_L1) {
        dhcp.identifierMade = duidMade(network, general, section);
    }
}

} // namespace

NetworkdDhcp sentByNetworkd(
    const std::optional<IniText> &network, const IniText &general, const IniText &lease)
{
    NetworkdDhcp sent;
    const QString identifier = lease.value({}, u"CLIENTID"_s).value_or(QString());
    sent.ipv4.identifier = QByteArray::fromHex(identifier.left(2 * longest).toLatin1());
    if (!sent.ipv4.identifier.isEmpty()) {
        sent.ipv4.isUsed = Answer::Yes;
        sent.ipv4.sendsIdentifier = Answer::Yes;
    }
    if (!network) {
        return sent;
    }
    sent.ipv4.isUsed = isDhcpOn(*network, "ipv4"_L1);
    takeName(sent.ipv4, *network, u"DHCPv4"_s);
    takeIdentifier(sent.ipv4, *network, general);
    if (network->truth(u"DHCPv4"_s, u"Anonymize"_s).value_or(false)) {
        // RFC 7844: no name, and the address alone as the identifier.
        sent.ipv4.sendsName = Answer::No;
        sent.ipv4.identifierMade = Made::OfAddressInUse;
    }
    // A router may ask for it, also where the file does not.
    sent.ipv6.isUsed = isDhcpOn(*network, "ipv6"_L1);
    if (sent.ipv6.isUsed != Answer::No ||
        network->truth(u"Network"_s, u"IPv6AcceptRA"_s).value_or(true)) {
        sent.ipv6.isUsed = Answer::Unknown;
    }
    sent.ipv6.sendsIdentifier = Answer::Yes;
    sent.ipv6.identifierMade = duidMade(*network, general, u"DHCPv6"_s);
    takeName(sent.ipv6, *network, u"DHCPv6"_s);
    return sent;
}

} // namespace quillon
