// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "exposure/LinkIdentifiers.h"

namespace quillon {

namespace {

using Lasts = Trace::Lasts;
using Made = ExposureFacts::Made;

constexpr qsizetype linkSize = 6;
constexpr qsizetype ipv6Size = 16;

// The first octet of a client identifier: a hardware type, or that of RFC 4361.
constexpr char ethernet = 1;
constexpr char withDuid = '\xff';
constexpr qsizetype duidOffset = 5; // after the type and the identity association

// DUIDs of RFC 8415, section 11, and where the link-layer address begins in them.
constexpr int linkLayerAndTime = 1;
constexpr qsizetype afterTime = 8;
constexpr int linkLayer = 3;
constexpr qsizetype afterHardwareType = 4;

/// Of one that holds nothing of a link-layer address.
Lasts lastingOfOther(Made made)
{
    switch (made) {
    case Made::OfConnection:
        return Lasts::OnThisNetwork;
    case Made::OfMachine:
    case Made::Fixed:
        return Lasts::Always;
    case Made::OfAddressInUse:
        return Lasts::FollowsAddress;
    case Made::OfHardwareAddress:
        return Lasts::NamesHardwareAddress;
    case Made::Unknown:
        break;
    }
    return Lasts::Unknown;
}

Lasts lastingOfLinkAddress(const QByteArray &found, Made made, const LinkAddresses &link)
{
    if (found == link.inUse && made == Made::OfAddressInUse) {
        return Lasts::FollowsAddress;
    }
    if (found == link.hardware) {
        return Lasts::NamesHardwareAddress;
    }
    if (found == link.inUse || link.inUse.isEmpty()) {
        // One that a client keeps in a file may have been made of it long ago, and stay.
        return lastingOfOther(made);
    }
    if (made == Made::Fixed || made == Made::OfConnection) {
        // It is nobody's address, though it has the form of one.
        return lastingOfOther(made);
    }
    return Lasts::NamesOtherAddress;
}

/// The link-layer address in a DUID, empty for none.
QByteArray linkAddressInDuid(const QByteArray &duid)
{
    if (duid.size() < 2 || duid.at(0) != 0) {
        return {};
    }
    const int type = duid.at(1);
    const qsizetype begin = type == linkLayerAndTime ? afterTime
                            : type == linkLayer      ? afterHardwareType
                                                     : duid.size();
    const QByteArray found = duid.mid(begin);
    return found.size() == linkSize ? found : QByteArray();
}

} // namespace

QByteArray linkOctets(const QString &address)
{
    const QByteArray octets = QByteArray::fromHex(address.toLatin1());
    return octets.size() == linkSize ? octets : QByteArray();
}

Lasts lastingOfClientIdentifier(const QByteArray &identifier, Made made, const LinkAddresses &link)
{
    if (identifier.size() == 1 + linkSize && identifier.at(0) == ethernet) {
        const QByteArray found = identifier.mid(1);
        // Every client that has this form makes it of the address that it finds, unless told
        // otherwise.
        const bool isFound = made == Made::Unknown && found == link.inUse;
        return lastingOfLinkAddress(found, isFound ? Made::OfAddressInUse : made, link);
    }
    if (identifier.size() > duidOffset && identifier.at(0) == withDuid) {
        return lastingOfDuid(identifier.mid(duidOffset), made, link);
    }
    return lastingOfOther(made);
}

Lasts lastingOfDuid(const QByteArray &duid, Made made, const LinkAddresses &link)
{
    const QByteArray found = linkAddressInDuid(duid);
    if (!found.isEmpty()) {
        return lastingOfLinkAddress(found, made, link);
    }
    if (duid.isEmpty() || made != Made::Unknown) {
        return lastingOfOther(made);
    }
    // The others (RFC 8415: of a vendor; RFC 6355: a UUID) are made once and for all.
    return Lasts::Always;
}

QByteArray linkAddressIn(const QByteArray &ipv6)
{
    constexpr qsizetype prefixSize = 8;
    constexpr qsizetype half = 3;
    if (ipv6.size() != ipv6Size || ipv6.mid(prefixSize + half, 2) != QByteArray("\xff\xfe", 2)) {
        return {};
    }
    QByteArray address = ipv6.mid(prefixSize, half) + ipv6.mid(ipv6Size - half);
    address[0] = static_cast<char>(address.at(0) ^ 2);
    return address;
}

} // namespace quillon
