// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/networks/TraceTexts.h"

#include "base/Localized.h"

#include <QLocale>
#include <QStringList>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

using Kind = Trace::Kind;
using Lasts = Trace::Lasts;

/// In place of an identifier of which only the origin is known.
QString origin(Lasts lasts)
{
    switch (lasts) {
    case Lasts::FollowsAddress:
        return localized("Made from the current address");
    case Lasts::NamesHardwareAddress:
        return localized("Made from the hardware address");
    case Lasts::NamesOtherAddress:
        return localized("Made from another address");
    case Lasts::OnThisNetwork:
        return localized("Made for this network");
    case Lasts::Always:
        return localized("Made for this computer");
    case Lasts::ChangesByItself:
    case Lasts::Unknown:
        break;
    }
    return localized("Not known");
}

QString lasting(const Trace &trace)
{
    switch (trace.lasts) {
    case Lasts::FollowsAddress:
        return localized("Changes with the address.");
    case Lasts::ChangesByItself:
        return localized("Changes by itself after a time.");
    case Lasts::OnThisNetwork:
        return localized("Stays the same on this network.");
    case Lasts::Always:
        return localized("Stays the same on every network.");
    case Lasts::NamesHardwareAddress:
        return localized("Gives the hardware address away.");
    case Lasts::NamesOtherAddress:
        return localized("Gives an earlier address, or that of another interface, away.");
    case Lasts::Unknown:
        break;
    }
    return trace.value.isEmpty() ? localized("Who sets it does not tell.")
                                 : localized("Whether it changes with the address is not known.");
}

QString kept(const Trace &trace, const QDateTime &now)
{
    const QDateTime since = now.addSecs(-trace.age->count()).toLocalTime();
    const QLocale locale;
    const QString shown = since.date() == now.toLocalTime().date()
                              ? locale.toString(since.time(), QLocale::ShortFormat)
                              : locale.toString(since.date(), QLocale::ShortFormat);
    return filled(localized("Kept across the change, since %@."), {shown});
}

QString remedy(const Trace &trace)
{
    if (trace.setting.isEmpty()) {
        return {};
    }
    if (trace.owner.isEmpty()) {
        return filled(localized("To show less: %@"), {trace.setting});
    }
    return filled(localized("To show less, in %@: %@"), {trace.owner, trace.setting});
}

} // namespace

QString traceLabel(Kind kind)
{
    switch (kind) {
    case Kind::DhcpName:
        return localized("Name sent with DHCP");
    case Kind::DhcpIdentifier:
        return localized("DHCP client identifier");
    case Kind::Duid:
        return localized("DHCPv6 identifier (DUID)");
    case Kind::Ipv6Address:
        return localized("IPv6 address");
    case Kind::MoreIpv6Addresses:
        return localized("More IPv6 addresses");
    case Kind::MulticastName:
        return localized("Name told by mDNS");
    case Kind::LinkLocalName:
        return localized("Name told by LLMNR");
    case Kind::LoginIdentity:
        return localized("Login name (802.1X)");
    }
    return {};
}

QString traceValue(const Trace &trace)
{
    if (!trace.value.isEmpty()) {
        return trace.value;
    }
    const bool isIdentifier = trace.kind == Kind::DhcpIdentifier || trace.kind == Kind::Duid;
    return isIdentifier ? origin(trace.lasts) : localized("Not known");
}

QString traceHint(const Trace &trace, const QDateTime &now)
{
    if (trace.kind == Kind::MoreIpv6Addresses) {
        return {};
    }
    QStringList sentences = {lasting(trace)};
    if (trace.isKept && trace.age) {
        sentences.append(kept(trace, now));
    }
    const QString said = sentences.join(u' ');
    const QString what = remedy(trace);
    return what.isEmpty() ? said : said + u'\n' + what;
}

} // namespace quillon
