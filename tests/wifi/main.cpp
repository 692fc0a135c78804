// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/wifi/Nl80211Socket.h"
#include "platform/linux/wifi/WiFiReading.h"
#include "wifi/Nl80211Capture.h"

#include <QFile>
#include <QTextStream>

using namespace Qt::StringLiterals;

// quillon-wifi-capture          writes what this machine's kernel says of its Wi-Fi to standard
//                               output, as a capture for tests/data/wifi
// quillon-wifi-capture FILE     shows how the program understands a capture
// Captures hold the names and addresses of all networks near by: look before you publish one.

using namespace quillon;

namespace {

void print(const std::optional<WiFiInterface> &wifi, QTextStream &out)
{
    if (!wifi) {
        out << "# no Wi-Fi interface\n";
        return;
    }
    out << "# device " << wifi->device << ", ssid \"" << wifi->ssid << "\", bssid " << wifi->bssid
        << "\n# rssi " << wifi->rssi << ", noise " << wifi->noise << ", security " << wifi->security
        << ", rate " << wifi->transmitRate << "\n# channel " << wifi->channel.number << ", band "
        << wifi->channel.band << ", width " << wifi->channel.width << ", country "
        << wifi->countryCode << ", mode " << wifi->activePHYMode << ", mcs "
        << (wifi->mcsIndex ? QString::number(*wifi->mcsIndex) : u"none"_s) << "\n";
}

int show(const QString &path, QTextStream &out)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        out << path << ": " << file.errorString() << '\n';
        return 1;
    }
    auto capture = test::Nl80211Capture::fromText(file.readAll());
    if (!capture) {
        out << path << " is no capture\n";
        return 1;
    }
    print(readWiFi(*capture), out);
    return 0;
}

int record(QTextStream &out)
{
    std::optional<test::Nl80211Capture> capture;
    Nl80211Socket socket([&](const Nl80211Request &request, const nlmsghdr &message) {
        capture->add(request, {reinterpret_cast<const std::byte *>(&message), message.nlmsg_len});
    });
    if (socket.access() != WiFiAccess::Granted) {
        out << "# this kernel has no nl80211, or it may not be asked\n";
        return 1;
    }
    capture.emplace(socket.family());
    print(readWiFi(socket), out);
    out << capture->text();
    return 0;
}

} // namespace

int main(int argc, char **argv)
{
    QTextStream out(stdout);
    return argc > 1 ? show(QFile::decodeName(argv[1]), out) : record(out);
}
