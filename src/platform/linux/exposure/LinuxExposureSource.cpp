// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/exposure/LinuxExposureSource.h"

#include "platform/linux/exposure/BusAnswers.h"
#include "platform/linux/exposure/KernelAddresses.h"
#include "platform/linux/exposure/NetworkManagerReading.h"
#include "platform/linux/exposure/NetworkdSettings.h"
#include "platform/linux/netlink/RouteSocket.h"
#include "platform/linux/wifi/Nl80211Socket.h"

#include <QSysInfo>

#include <algorithm>
#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

using Answer = ExposureFacts::Answer;

constexpr qsizetype longest = 255;

bool isRadio(const QString &device)
{
    const Nl80211Messages answer = Nl80211Socket().ask({});
    return std::ranges::any_of(
        answer.interfaces, [&](const StationInterface &one) { return one.name == device; });
}

} // namespace

struct LinuxExposureSource::Reading
{
    QString device;
    Reply reply;
    int index = 0; ///< 0 where there is no such interface
    SettingsFiles files = {};
    ExposureFacts facts = {};
};

LinuxExposureSource::LinuxExposureSource(
    Scheduler &scheduler, const QDBusConnection &bus, QString root)
    : m_scheduler(scheduler)
    , m_bus(bus)
    , m_root(std::move(root))
    , m_owners(bus)
{
}

void LinuxExposureSource::read(const QString &device, Reply reply)
{
    const auto onFiles = m_scheduler.replyOnMain<std::shared_ptr<Reading>>(
        this, [this](const std::shared_ptr<Reading> &reading) { readOwner(reading); });
    m_scheduler.inBackground([root = m_root, device, reply = std::move(reply), onFiles] {
        const auto reading = std::make_shared<Reading>(Reading{.device = device, .reply = reply});
        const LinkMessages found = RouteSocket().link(device.toUtf8());
        const LinkInfo link = found.links.value(0);
        reading->index = link.index;
        if (link.index != 0) {
            const QByteArray hardware = QByteArray::fromHex(link.permanentAddress.toLatin1());
            reading->files = readSettingsFiles(root, device, link.index, hardware);
            reading->facts.ipv6Addresses = kernelIpv6Addresses(link.index);
        }
        reading->facts.hostName = QSysInfo::machineHostName().left(longest);
        onFiles(reading);
    });
}

void LinuxExposureSource::readOwner(const std::shared_ptr<Reading> &reading)
{
    if (reading->index == 0) {
        reading->reply(reading->facts);
        return;
    }
    readConnection(m_bus, reading->device, this,
        [this, reading](const std::optional<ConnectionInForce> &connection) {
            if (!connection) {
                readOther(reading);
                return;
            }
            reading->facts.owner = u"NetworkManager"_s;
            takeConnection(reading->facts, *connection, reading->files.networkManager);
            readNames(reading);
        });
}

void LinuxExposureSource::readOther(const std::shared_ptr<Reading> &reading)
{
    const bool isWireless = isRadio(reading->device);
    m_owners.find(
        reading->device, isWireless, this, [this, isWireless, reading](const QString &name) {
            ExposureFacts &facts = reading->facts;
            facts.owner = name;
            if (name == "systemd-networkd"_L1) {
                const auto &networkd = reading->files.networkd;
                const NetworkdDhcp sent =
                    sentByNetworkd(networkd.network, networkd.general, networkd.lease);
                facts.ipv4 = sent.ipv4;
                facts.ipv6 = sent.ipv6;
            } else if (reading->files.dhclient) {
                facts.owner = u"dhclient"_s;
                facts.ipv4 = reading->files.dhclient->ipv4;
                facts.ipv6 = reading->files.dhclient->ipv6;
            }
            if (isWireless) {
                // Whether and how one logs in is told to administrators alone.
                readNames(reading);
                return;
            }
            const auto asked = std::make_shared<BusAnswers>(
                m_bus, u"fi.w1.wpa_supplicant1"_s, this, [this, reading] { readNames(reading); });
            asked->isRunning([reading](bool isRunning) {
                reading->facts.login.isUsed = isRunning ? Answer::Unknown : Answer::No;
            });
        });
}

void LinuxExposureSource::readNames(const std::shared_ptr<Reading> &reading)
{
    readLocalNames(m_bus, reading->device, reading->index, reading->files.avahi, this,
        [reading](const LocalNames &names) {
            ExposureFacts facts = reading->facts;
            facts.avahi = names.avahi;
            facts.resolvedMdns = names.resolvedMdns;
            facts.resolvedLlmnr = names.resolvedLlmnr;
            reading->reply(facts);
        });
}

} // namespace quillon
