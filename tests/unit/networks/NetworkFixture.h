// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/NetworkKeys.h"
#include "fakes/FakeWiFiClient.h"
#include "networks/SavedEntry.h"
#include "networks/WiFiNetwork.h"
#include "unit/devices/DeviceFixture.h"

namespace quillon::test {

/// A laptop at home: on the network "Home", which is not saved yet.
class NetworkFixture : public DeviceFixture
{
protected:
    NetworkFixture()
        : DeviceFixture(QStringLiteral("laptop"))
    {
        table.updateNetWorkInterfaces();
        radio.join(home());
        settings.clearJournal();
    }

    static WiFiInterface home()
    {
        WiFiInterface wifi;
        wifi.device = QStringLiteral("wlp2s0");
        wifi.ssid = QStringLiteral("Home");
        wifi.bssid = QStringLiteral("a4:2b:b0:11:22:33");
        wifi.noise = -92;
        wifi.rssi = -54;
        wifi.security = WiFiInterface::WPA2Personal;
        wifi.transmitRate = 866.7;
        wifi.channel = {.number = 36, .band = 2, .width = 3};
        wifi.countryCode = QStringLiteral("DE");
        wifi.activePHYMode = 5;
        wifi.mcsIndex = 9;
        return wifi;
    }

    QString current(const QString &key) const
    {
        return settings.getDictionary(keys::currentWiFiDict).value(key).toString();
    }

    static QVariantMap networkEntry(const QString &bssid, const QString &ssid, const QString &name)
    {
        return {{savedentry::BSSID, bssid}, {savedentry::SSID, ssid}, {savedentry::name, name}};
    }
    /// Saved under `bssid` as it is written.
    void saveNetwork(
        const QString &bssid, const QString &ssid, const QString &name, bool ssidDefined = false)
    {
        QVariantMap entry = networkEntry(bssid, ssid, name);
        if (ssidDefined) {
            entry[savedentry::ssidDefined] = true;
        }
        QVariantMap list = settings.getDictionary(keys::savedNetworks);
        list[bssid] = entry;
        settings.set(keys::savedNetworks, list);
    }
    QVariantMap savedNetwork(const QString &bssid) const
    {
        return settings.getDictionary(keys::savedNetworks).value(bssid).toMap();
    }
    SavedEntry savedNetworkEntry(const QString &bssid) const
    {
        return SavedEntry::fromPropertyList(savedNetwork(bssid));
    }
    void saveAddress(const QString &address, const QString &name)
    {
        QVariantMap list = settings.getDictionary(keys::savedAddresses);
        list[address] = QVariantMap{{savedentry::address, address}, {savedentry::name, name}};
        settings.set(keys::savedAddresses, list);
    }
    QVariantMap savedAddress(const QString &address) const
    {
        return settings.getDictionary(keys::savedAddresses).value(address).toMap();
    }

    SavedEntry savedAddressEntry(const QString &address) const
    {
        return SavedEntry::fromPropertyList(savedAddress(address));
    }

    const QString homeBssid = QStringLiteral("a4:2b:b0:11:22:33");
    const QString officeBssid = QStringLiteral("b8:27:eb:44:55:66");
    const QString cafeBssid = QStringLiteral("c8:3a:35:77:88:99");
    FakeWiFiClient radio;
    WiFiNetwork network{settings, radio, table};
};

} // namespace quillon::test
