// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "exposure/Trace.h"
#include "platform/ExposureSource.h"

#include <QByteArray>

namespace quillon {

/// The link-layer addresses of an interface, 6 octets each, empty when not known.
struct LinkAddresses
{
    QByteArray inUse;
    QByteArray hardware;
};

/// 6 octets of "00:00:5e:00:53:01", else empty.
QByteArray linkOctets(const QString &address);

/// What becomes of a DHCP client identifier of IPv4 (RFC 2132, RFC 4361) or of a DUID (RFC 8415)
/// at a change of the address: what it holds counts, and the settings where it does not tell. Both
/// take what others sent: of any length.
Trace::Lasts lastingOfClientIdentifier(
    const QByteArray &identifier, ExposureFacts::Made made, const LinkAddresses &link);
Trace::Lasts lastingOfDuid(
    const QByteArray &duid, ExposureFacts::Made made, const LinkAddresses &link);

/// The link-layer address that an IPv6 address was formed from (RFC 4291, appendix A), empty for
/// none.
QByteArray linkAddressIn(const QByteArray &ipv6);

} // namespace quillon
