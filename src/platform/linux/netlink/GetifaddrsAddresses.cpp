// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/netlink/GetifaddrsAddresses.h"

#include "base/Log.h"

#include <arpa/inet.h>
#include <array>
#include <cerrno>
#include <cstring>
#include <ifaddrs.h>
#include <memory>
#include <netinet/in.h>

namespace quillon {

QList<InterfaceAddresses::Entry> GetifaddrsAddresses::ipv4() const
{
    ifaddrs *first = nullptr;
    if (getifaddrs(&first) != 0) {
        const int error = errno;
        qCWarning(logPlatform, "No interface addresses: %s", std::strerror(error));
        return {};
    }
    const std::unique_ptr<ifaddrs, decltype(&freeifaddrs)> list(first, &freeifaddrs);
    QList<Entry> entries;
    for (const ifaddrs *entry = list.get(); entry; entry = entry->ifa_next) {
        if (!entry->ifa_addr || entry->ifa_addr->sa_family != AF_INET) {
            continue;
        }
        sockaddr_in address{};
        std::memcpy(&address, entry->ifa_addr, sizeof address);
        std::array<char, INET_ADDRSTRLEN> dotted{};
        inet_ntop(AF_INET, &address.sin_addr, dotted.data(), dotted.size());
        // Secondary addresses may carry a label such as "eth0:1" instead of the interface name.
        const QString device = QString::fromUtf8(entry->ifa_name).section(u':', 0, 0);
        entries.append({device, QString::fromLatin1(dotted.data())});
    }
    return entries;
}

} // namespace quillon
