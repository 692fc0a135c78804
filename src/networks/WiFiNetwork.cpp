// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "networks/WiFiNetwork.h"

#include "base/Localized.h"
#include "base/SettingsKeys.h"
#include "devices/DeviceTable.h"
#include "networks/SavedEntries.h"
#include "networks/WiFiRecord.h"
#include "networks/WiFiStrings.h"
#include "platform/SettingsStore.h"
#include "platform/WiFiClient.h"

#include <QLocale>

#include <algorithm>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

/// What the driver does not tell is not shown.
QString decibels(int value)
{
    return value == 0 ? QString() : QString::number(value) + u" dBm"_s;
}

/// The shortest decimal text that is this number, never with an exponent.
QString rateText(double megabits)
{
    return QString::number(megabits, 'f', QLocale::FloatingPointShortest) + u" Mbps"_s;
}

QString channelText(const WiFiInterface::Channel &channel)
{
    return filled(
        u"%@ (%@, %@)"_s, {QString::number(channel.number), bandStringForChannel(channel.band),
                              widthStringForChannel(channel.width)});
}

WiFiRecord associatedRecord(const WiFiInterface &wifi)
{
    return {
        .name = wifi.ssid,
        .ssid = wifi.ssid,
        .bssid = wifi.bssid.toLower(),
        .noise = decibels(wifi.noise),
        .rssi = decibels(wifi.rssi),
        .security = securityStringForNetwork(wifi.security),
        .txRate = rateText(wifi.transmitRate),
        .channel = channelText(wifi.channel),
        .country = wifi.countryCode,
        .phyMode = phyModeStringForInterface(wifi.activePHYMode),
        .mcs = getValueFromobjectForKey(wifi, u"mcsIndex"_s).toString(),
    };
}

/// Before the table has been read it knows of no radio, or not of all.
bool isOneOfSeveral(const DeviceTable &devices, const QString &device)
{
    if (!devices.isDeviceWifi(device)) {
        return true;
    }
    const DeviceRecords records = devices.devices();
    return std::any_of(records.keyValueBegin(), records.keyValueEnd(),
        [&](const auto &entry) { return entry.second.isWifi() && entry.first != device; });
}

} // namespace

WiFiNetwork::WiFiNetwork(SettingsStore &settings, WiFiClient &client, const DeviceTable &devices)
    : m_settings(settings)
    , m_client(client)
    , m_devices(devices)
{
}

std::optional<WiFiNetwork::Identity> WiFiNetwork::updateWiFiNetwork()
{
    const WiFiInterface wifi = m_client.firstInterface().value_or(WiFiInterface());
    // Of several radios the address is that of the one whose network is shown.
    const QString device =
        m_devices.isDeviceWifi(wifi.device) ? wifi.device : m_devices.getWifiDevice();
    const QString ipAddress = m_devices.ipAddressForDevice(device);
    const bool associated = !wifi.bssid.isEmpty() && !wifi.ssid.isEmpty();
    Q_EMIT networkButtonShown(associated);
    WiFiRecord record{
        .name = QStringLiteral(QT_TRANSLATE_NOOP("Quillon", "Not currently connected..."))};
    if (associated) {
        record = associatedRecord(wifi);
        record.ipAddress = ipAddress;
        // By the BSSID exactly as read: a saved network is found here only where the platform
        // writes octets in lower case, as saved networks do.
        const SavedEntry saved = savedEntries(m_settings, keys::savedNetworks).value(wifi.bssid);
        record.name = saved.name.value_or(wifi.ssid);
        const QString named = wifi.device.isEmpty() ? device : wifi.device;
        record.device = isOneOfSeveral(m_devices, named) ? named : QString();
    }
    record.store(m_settings);
    m_settings.synchronize();
    return associated ? std::optional(Identity{record.ssid, record.bssid}) : std::nullopt;
}

} // namespace quillon
