// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/exposure/DhclientSettings.h"

#include <QRegularExpression>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

using Answer = ExposureFacts::Answer;
using Made = ExposureFacts::Made;

constexpr int octalBase = 8;
constexpr int hexBase = 16;
constexpr qsizetype longest = 255;

/// The octets of "\000\001x" or of 0:1:78.
QByteArray octetsOf(const QString &written)
{
    if (!written.startsWith(u'"')) {
        QByteArray octets;
        const auto words = written.split(u':');
        for (const QString &word : words) {
            bool isNumber = false;
            const uint octet = word.trimmed().toUInt(&isNumber, hexBase);
            if (!isNumber || octet > 0xff) {
                return {};
            }
            octets.append(static_cast<char>(octet));
        }
        return octets;
    }
    const QByteArray text =
        written.sliced(1, std::max(written.size() - 2, qsizetype(0))).toLatin1();
    QByteArray octets;
    for (qsizetype at = 0; at < text.size(); ++at) {
        if (text.at(at) != '\\' || at + 1 == text.size()) {
            octets.append(text.at(at));
            continue;
        }
        bool isNumber = false;
        const uint octet = text.mid(at + 1, 3).toUInt(&isNumber, octalBase);
        if (isNumber && octet <= 0xff && at + 3 < text.size()) {
            octets.append(static_cast<char>(octet));
            at += 3;
        } else {
            octets.append(text.at(++at));
        }
    }
    return octets;
}

/// Without comments, and without what is for other interfaces.
QString settingsFor(const QString &device, const QByteArray &text)
{
    static const QRegularExpression comment(u"#[^\n]*"_s);
    static const QRegularExpression block(uR"~(\binterface\s+"([^"]*)"\s*\{([^}]*)\})~"_s);
    QString settings = QString::fromUtf8(text).remove(comment);
    for (auto found = block.match(settings); found.hasMatch(); found = block.match(settings)) {
        settings.replace(found.capturedStart(), found.capturedLength(),
            found.captured(1) == device ? found.captured(2) : QString());
    }
    return settings;
}

/// What stands last for an option, none when it is not sent.
std::optional<QString> sent(const QString &settings, const QString &option)
{
    const QRegularExpression statement(
        uR"(\b(?:send|supersede)\s+%1\s+(?:=\s*)?("(?:\\.|[^"\\])*"|[^;"]*?)\s*;)"_s.arg(
            QRegularExpression::escape(option)));
    std::optional<QString> value;
    for (auto all = statement.globalMatch(settings); all.hasNext();) {
        value = all.next().captured(1);
    }
    return value;
}

void takeName(ExposureFacts::Dhcp &dhcp, const QString &settings)
{
    auto name = sent(settings, u"host-name"_s);
    if (!name) {
        name = sent(settings, u"fqdn.fqdn"_s);
    }
    if (!name) {
        dhcp.sendsName = Answer::No;
    } else if (name->startsWith(u'"')) {
        dhcp.sendsName = Answer::Yes;
        dhcp.name = QString::fromUtf8(octetsOf(*name)).left(longest);
    } else {
        // What the system calls itself; other expressions are not worked out.
        dhcp.sendsName = name->startsWith("gethostname"_L1) ? Answer::Yes : Answer::Unknown;
    }
}

void takeIdentifier(ExposureFacts::Dhcp &dhcp, const QString &settings)
{
    const auto identifier = sent(settings, u"dhcp-client-identifier"_s);
    if (!identifier) {
        return;
    }
    dhcp.sendsIdentifier = Answer::Yes;
    if (*identifier == "hardware"_L1) {
        dhcp.identifierMade = Made::OfAddressInUse;
    } else {
        dhcp.identifier = octetsOf(*identifier).left(longest);
        dhcp.identifierMade = dhcp.identifier.isEmpty() ? Made::Unknown : Made::Fixed;
    }
}

} // namespace

std::optional<DhclientCommand> dhclientCommand(const QByteArray &commandLine, const QString &device)
{
    const auto words = commandLine.split('\0');
    const QByteArray program = words.value(0);
    if (program.mid(program.lastIndexOf('/') + 1) != "dhclient" ||
        !words.mid(1).contains(device.toUtf8())) {
        return std::nullopt;
    }
    DhclientCommand command{.settingsFile = u"/etc/dhcp/dhclient.conf"_s};
    QString leases;
    for (qsizetype at = 1; at < words.size(); ++at) {
        const QByteArray &word = words.at(at);
        const QString next = QString::fromUtf8(words.value(at + 1));
        if (word == "-6") {
            command.isIpv6 = true;
        } else if (word == "-i") {
            command.sendsDuid = true;
        } else if (word == "-cf") {
            command.settingsFile = next;
        } else if (word == "-lf") {
            leases = next;
        } else if (word == "-df") {
            command.leaseFiles.append(next);
        }
    }
    if (leases.isEmpty()) {
        leases = command.isIpv6 ? u"/var/lib/dhcp/dhclient6.leases"_s
                                : u"/var/lib/dhcp/dhclient.leases"_s;
    }
    command.leaseFiles.prepend(leases);
    return command;
}

QByteArray duidInLeases(const QByteArray &leases)
{
    static const QRegularExpression statement(
        uR"(\bdefault-duid\s+("(?:\\.|[^"\\])*"|[0-9a-fA-F:]+)\s*;)"_s);
    QByteArray duid;
    for (auto all = statement.globalMatch(QString::fromLatin1(leases)); all.hasNext();) {
        duid = octetsOf(all.next().captured(1));
    }
    return duid.left(longest);
}

ExposureFacts::Dhcp sentByDhclient(const DhclientCommand &command,
    const std::optional<QByteArray> &settings, const QByteArray &duid, const QString &device,
    const QByteArray &hardware)
{
    ExposureFacts::Dhcp dhcp{.isUsed = Answer::Yes};
    if (command.isIpv6) {
        dhcp.sendsIdentifier = Answer::Yes;
        dhcp.identifier = duid;
    } else if (command.sendsDuid) {
        dhcp.sendsIdentifier = Answer::Yes;
        // What stands before the DUID is made of the address at the start of the client, which
        // nobody knows any more. The DUID itself is kept in the file.
        const bool namesHardware = !hardware.isEmpty() && duid.contains(hardware);
        dhcp.identifierMade = duid.isEmpty()  ? Made::Unknown
                              : namesHardware ? Made::OfHardwareAddress
                                              : Made::OfMachine;
    } else if (settings) {
        dhcp.sendsIdentifier = Answer::No;
    }
    if (settings) {
        const QString own = settingsFor(device, *settings);
        takeName(dhcp, own);
        if (!command.isIpv6) {
            takeIdentifier(dhcp, own);
        }
    }
    return dhcp;
}

} // namespace quillon
