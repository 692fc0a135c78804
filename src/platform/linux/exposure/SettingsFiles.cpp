// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/exposure/SettingsFiles.h"

#include "platform/linux/exposure/BoundedFile.h"
#include "platform/linux/exposure/DhclientSettings.h"
#include "platform/linux/exposure/NetworkdSettings.h"

#include <QDir>
#include <QMap>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype longestCommand = 4096;
constexpr qsizetype mostDropIns = 100;

IniText iniFile(const QString &path)
{
    return IniText(readBounded(path).value_or(QByteArray()));
}

/// Those of all folders by their names; one in a later folder takes the place of its namesake.
IniText dropIns(const QString &root, const QStringList &folders)
{
    QMap<QString, QString> paths;
    for (const QString &folder : folders) {
        const auto names = QDir(root + folder).entryList({u"*.conf"_s}, QDir::Files, QDir::Name);
        for (const QString &name : names.first(std::min(names.size(), mostDropIns))) {
            paths.insert(name, root + folder + u'/' + name);
        }
    }
    IniText all;
    for (const QString &path : std::as_const(paths)) {
        all.append(iniFile(path));
    }
    return all;
}

IniText networkManagerFiles(const QString &root)
{
    IniText all = iniFile(root + u"/etc/NetworkManager/NetworkManager.conf"_s);
    all.append(dropIns(root, {u"/usr/lib/NetworkManager/conf.d"_s, u"/run/NetworkManager/conf.d"_s,
                                 u"/etc/NetworkManager/conf.d"_s}));
    return all;
}

IniText networkdGeneral(const QString &root)
{
    IniText all = iniFile(root + u"/etc/systemd/networkd.conf"_s);
    all.append(
        dropIns(root, {u"/usr/lib/systemd/networkd.conf.d"_s, u"/run/systemd/networkd.conf.d"_s,
                          u"/etc/systemd/networkd.conf.d"_s}));
    return all;
}

SettingsFiles::Networkd networkdFiles(const QString &root, int index)
{
    const QString state = root + u"/run/systemd/netif/%1/%2"_s;
    const IniText link = iniFile(state.arg(u"links"_s).arg(index));
    SettingsFiles::Networkd networkd{.network = std::nullopt,
        .general = networkdGeneral(root),
        .lease = iniFile(state.arg(u"leases"_s).arg(index))};
    const auto path = link.value({}, u"NETWORK_FILE"_s);
    const auto text = path ? readBounded(root + *path) : std::nullopt;
    if (!text) {
        return networkd;
    }
    networkd.network = IniText(*text);
    const QString name = path->section(u'/', -1);
    networkd.network->append(dropIns(root,
        {u"/usr/lib/systemd/network/%1.d"_s.arg(name), u"/run/systemd/network/%1.d"_s.arg(name),
            u"/etc/systemd/network/%1.d"_s.arg(name)}));
    return networkd;
}

std::optional<SettingsFiles::Dhclient> dhclientFiles(
    const QString &root, const QString &device, const QByteArray &hardware)
{
    std::optional<SettingsFiles::Dhclient> found;
    const QDir processes(root + u"/proc"_s);
    const auto names = processes.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Unsorted);
    for (const QString &name : names) {
        if (!name.front().isDigit()) {
            continue;
        }
        const auto words = readBounded(processes.filePath(name + u"/cmdline"_s), longestCommand);
        const auto command = words ? dhclientCommand(*words, device) : std::nullopt;
        if (!command) {
            continue;
        }
        QByteArray duid;
        for (const QString &leases : command->leaseFiles) {
            duid = duid.isEmpty() ? duidInLeases(readBounded(root + leases).value_or(QByteArray()))
                                  : duid;
        }
        found = found.value_or(SettingsFiles::Dhclient());
        (command->isIpv6 ? found->ipv6 : found->ipv4) = sentByDhclient(
            *command, readBounded(root + command->settingsFile), duid, device, hardware);
    }
    return found;
}

} // namespace

SettingsFiles readSettingsFiles(
    const QString &root, const QString &device, int index, const QByteArray &hardware)
{
    return {.networkManager = networkManagerFiles(root),
        .avahi = iniFile(root + u"/etc/avahi/avahi-daemon.conf"_s),
        .networkd = networkdFiles(root, index),
        .dhclient = dhclientFiles(root, device, hardware)};
}

} // namespace quillon
