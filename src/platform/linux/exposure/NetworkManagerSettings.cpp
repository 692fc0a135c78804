// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/exposure/NetworkManagerSettings.h"

#include <QMetaType>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

using Answer = ExposureFacts::Answer;
using Made = ExposureFacts::Made;

constexpr qsizetype longest = 255;

QString textIn(const QVariantMap &section, const QString &key, qsizetype most = longest)
{
    const QVariant value = section.value(key);
    return value.typeId() == QMetaType::QString ? value.toString().left(most) : QString();
}

/// Of "01:02:00", which some DHCP clients write as "1:2:0"; empty for anything else.
QByteArray octetsIn(const QVariantMap &lease, const QString &key)
{
    constexpr int hexBase = 16;
    constexpr uint largest = 0xff;
    constexpr qsizetype mostDigits = 3 * longest;
    QByteArray octets;
    const auto words = textIn(lease, key, mostDigits).split(u':', Qt::SkipEmptyParts);
    for (const QString &word : words) {
        bool isNumber = false;
        const uint octet = word.toUInt(&isNumber, hexBase);
        if (!isNumber || octet > largest) {
            return {};
        }
        octets.append(static_cast<char>(octet));
    }
    return octets;
}

Answer answer(bool isYes)
{
    return isYes ? Answer::Yes : Answer::No;
}

/// A default of the administrator's. None: there is none. Not known (isKnown false): it is for some
/// devices, and which is not worked out.
struct Default
{
    std::optional<QString> value;
    bool isKnown = true;
};

Default defaultOf(const IniText &defaults, const QString &key)
{
    Default found;
    for (const IniText::Entry &entry : defaults.entries()) {
        if (entry.section.startsWith("connection"_L1) && entry.key == key) {
            found.value = entry.value;
            found.isKnown =
                found.isKnown && !defaults.value(entry.section, u"match-device"_s).has_value();
        }
    }
    return found;
}

Answer sendsName(const QVariantMap &section, const IniText &defaults, const QString &family)
{
    // The newer one of two keys, which has a word for "as the default says".
    const QVariant newer = section.value(u"dhcp-send-hostname-v2"_s);
    if (newer.typeId() == QMetaType::Int && newer.toInt() >= 0) {
        return answer(newer.toInt() != 0);
    }
    const QVariant older = section.value(u"dhcp-send-hostname"_s);
    if (older.typeId() == QMetaType::Bool && !older.toBool()) {
        return Answer::No;
    }
    const Default general = defaultOf(defaults, family + u".dhcp-send-hostname"_s);
    if (!general.isKnown) {
        return Answer::Unknown;
    }
    const auto truth = general.value ? truthOf(*general.value) : std::optional(true);
    return truth ? answer(*truth) : Answer::Unknown;
}

Made ofStableId(const ConnectionInForce &connection, const IniText &defaults)
{
    QString id = textIn(connection.settings.value(u"connection"_s), u"stable-id"_s);
    if (id.isEmpty()) {
        const Default general = defaultOf(defaults, u"connection.stable-id"_s);
        if (!general.isKnown) {
            return Made::Unknown;
        }
        id = general.value.value_or(QString());
    }
    // Both are others when it has connected with another address.
    const bool isNew = id.contains("${MAC}"_L1) || id.contains("${RANDOM}"_L1);
    return isNew ? Made::OfAddressInUse : Made::OfConnection;
}

/// The setting, or the administrator's default, or `otherwise`; none when that is not known.
std::optional<QString> settingOr(const QVariantMap &section, const QString &key,
    const IniText &defaults, const QString &family, const QString &otherwise)
{
    const QString own = textIn(section, key);
    if (!own.isEmpty()) {
        return own;
    }
    const Default general = defaultOf(defaults, family + u'.' + key);
    return general.isKnown ? std::optional(general.value.value_or(otherwise)) : std::nullopt;
}

void takeIpv4(ExposureFacts &facts, const ConnectionInForce &connection, const IniText &defaults)
{
    const QVariantMap section = connection.settings.value(u"ipv4"_s);
    const QString method = textIn(section, u"method"_s);
    ExposureFacts::Dhcp &dhcp = facts.ipv4;
    dhcp.identifier = octetsIn(connection.ipv4Lease, u"dhcp_client_identifier"_s);
    if (!connection.ipv4Lease.isEmpty()) {
        dhcp.isUsed = Answer::Yes;
    } else if (!method.isEmpty()) {
        dhcp.isUsed = answer(method == "auto"_L1);
    }
    if (connection.settings.isEmpty()) {
        return;
    }
    dhcp.sendsName = sendsName(section, defaults, u"ipv4"_s);
    dhcp.name = textIn(section, u"dhcp-hostname"_s);
    if (dhcp.name.isEmpty()) {
        dhcp.name = textIn(section, u"dhcp-fqdn"_s);
    }
    dhcp.sendsIdentifier = Answer::Yes;
    // Another DHCP client than its own has defaults of its own.
    const QString client = defaults.value(u"main"_s, u"dhcp"_s).value_or(u"internal"_s);
    const auto made = settingOr(section, u"dhcp-client-id"_s, defaults, u"ipv4"_s,
        client == "internal"_L1 ? u"mac"_s : QString());
    if (!made || made->isEmpty()) {
        dhcp.identifierMade = Made::Unknown;
    } else if (*made == "mac"_L1) {
        dhcp.identifierMade = Made::OfAddressInUse;
    } else if (*made == "perm-mac"_L1) {
        dhcp.identifierMade = Made::OfHardwareAddress;
    } else if (*made == "duid"_L1 || *made == "ipv6-duid"_L1) {
        dhcp.identifierMade = Made::OfMachine;
    } else if (*made == "stable"_L1) {
        dhcp.identifierMade = ofStableId(connection, defaults);
    } else if (*made == "none"_L1) {
        dhcp.sendsIdentifier = Answer::No;
    } else {
        dhcp.identifierMade = Made::Fixed;
    }
}

void takeIpv6(ExposureFacts &facts, const ConnectionInForce &connection, const IniText &defaults)
{
    const QVariantMap section = connection.settings.value(u"ipv6"_s);
    const QString method = textIn(section, u"method"_s);
    ExposureFacts::Dhcp &dhcp = facts.ipv6;
    dhcp.identifier = octetsIn(connection.ipv6Lease, u"dhcp6_client_id"_s);
    if (!connection.ipv6Lease.isEmpty() || method == "dhcp"_L1) {
        dhcp.isUsed = Answer::Yes;
    } else if (!method.isEmpty()) {
        // With "auto" only where a router wants it, and then there is a lease.
        dhcp.isUsed = Answer::No;
    }
    if (connection.settings.isEmpty()) {
        return;
    }
    dhcp.sendsName = sendsName(section, defaults, u"ipv6"_s);
    dhcp.name = textIn(section, u"dhcp-hostname"_s);
    dhcp.sendsIdentifier = Answer::Yes;
    const auto made = settingOr(section, u"dhcp-duid"_s, defaults, u"ipv6"_s, u"lease"_s);
    if (!made) {
        dhcp.identifierMade = Made::Unknown;
    } else if (*made == "lease"_L1) {
        // Kept in a file since the first lease, and of the machine's identity before.
        dhcp.identifierMade = Made::OfMachine;
    } else if (*made == "ll"_L1 || *made == "llt"_L1) {
        dhcp.identifierMade = Made::OfAddressInUse;
    } else if (made->startsWith("stable-"_L1)) {
        dhcp.identifierMade = ofStableId(connection, defaults);
    } else {
        dhcp.identifierMade = Made::Fixed;
    }
}

} // namespace

void takeConnection(
    ExposureFacts &facts, const ConnectionInForce &connection, const IniText &defaults)
{
    takeIpv4(facts, connection, defaults);
    takeIpv6(facts, connection, defaults);
    if (!connection.hostName.isEmpty()) {
        facts.hostName = connection.hostName.left(longest);
    }
    if (connection.settings.isEmpty()) {
        return;
    }
    const auto login = connection.settings.constFind(u"802-1x"_s);
    facts.login.isUsed = answer(login != connection.settings.constEnd());
    if (login != connection.settings.constEnd()) {
        facts.login.identity = textIn(*login, u"identity"_s);
        facts.login.anonymousIdentity = textIn(*login, u"anonymous-identity"_s);
    }
}

} // namespace quillon
