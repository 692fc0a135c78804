// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "networks/WiFiNetwork.h"

#include "base/Localized.h"
#include "base/NetworkKeys.h"
#include "base/SettingsKeys.h"
#include "base/StoredText.h"
#include "devices/DeviceTable.h"
#include "networks/WiFiStrings.h"
#include "platform/SettingsStore.h"
#include "platform/WiFiClient.h"

#include <QLocale>

namespace quillon {

namespace {

QString decibels(int value)
{
    return QString::number(value) + QStringLiteral(" dBm");
}

/// The shortest decimal text that is this number, never with an exponent.
QString rateText(double megabits)
{
    return QString::number(megabits, 'f', QLocale::FloatingPointShortest) + QStringLiteral(" Mbps");
}

QString channelText(const WiFiInterface::Channel &channel)
{
    return filled(QStringLiteral("%@ (%@, %@)"),
        {QString::number(channel.number), bandStringForChannel(channel.band),
            widthStringForChannel(channel.width)});
}

void writeNotAssociated(QVariantMap &record)
{
    for (const QString &key : {wifirecord::SSID, wifirecord::BSSID, wifirecord::ipAddress,
             wifirecord::noise, wifirecord::RSSI, wifirecord::security, wifirecord::txRate,
             wifirecord::channel, wifirecord::country, wifirecord::phyMode, wifirecord::mcs}) {
        record[key] = QString();
    }
    record[wifirecord::name] = QStringLiteral("Not currently connected...");
}

void writeAssociated(QVariantMap &record, const WiFiInterface &wifi, const QString &ipAddress)
{
    record[wifirecord::name] = wifi.ssid;
    record[wifirecord::SSID] = wifi.ssid;
    record[wifirecord::BSSID] = wifi.bssid.toLower();
    record[wifirecord::ipAddress] = ipAddress;
    record[wifirecord::noise] = decibels(wifi.noise);
    record[wifirecord::RSSI] = decibels(wifi.rssi);
    record[wifirecord::security] = securityStringForNetwork(wifi.security);
    record[wifirecord::txRate] = rateText(wifi.transmitRate);
    record[wifirecord::channel] = channelText(wifi.channel);
    record[wifirecord::country] = wifi.countryCode;
    record[wifirecord::phyMode] = phyModeStringForInterface(wifi.activePHYMode);
    record[wifirecord::mcs] = getValueFromobjectForKey(wifi, QStringLiteral("mcsIndex")).toString();
}

} // namespace

WiFiNetwork::WiFiNetwork(SettingsStore &settings, WiFiClient &client, const DeviceTable &devices)
    : m_settings(settings)
    , m_client(client)
    , m_devices(devices)
{
}

QVariantMap WiFiNetwork::updateWiFiNetwork()
{
    const WiFiInterface wifi = m_client.firstInterface().value_or(WiFiInterface());
    const QString ipAddress = m_devices.ipAddressForDevice(m_devices.getWifiDevice());
    QVariantMap record = m_settings.getDictionary(keys::currentWiFiDict);
    QVariantMap network;
    const bool associated = !wifi.bssid.isEmpty() && !wifi.ssid.isEmpty();
    if (associated) {
        network[wifirecord::BSSID] = wifi.bssid.toLower();
        network[wifirecord::SSID] = wifi.ssid;
    }
    Q_EMIT networkButtonShown(associated);
    if (associated) {
        writeAssociated(record, wifi, ipAddress);
        // By the BSSID exactly as read: a saved network is found here only where the platform
        // writes octets in lower case, as saved networks do.
        const QVariantMap saved =
            m_settings.getDictionary(keys::savedNetworks).value(wifi.bssid).toMap();
        if (const auto name = storedText(saved, savedentry::name)) {
            record[wifirecord::name] = *name;
        }
    } else {
        writeNotAssociated(record);
    }
    m_settings.set(keys::currentWiFiDict, record);
    m_settings.synchronize();
    return network;
}

} // namespace quillon
