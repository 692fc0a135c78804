// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "networks/WiFiRecord.h"

#include "base/Localized.h"
#include "base/NetworkKeys.h"
#include "base/SettingsKeys.h"
#include "base/StoredText.h"
#include "platform/SettingsStore.h"

namespace quillon {

namespace {

struct Field
{
    const QString &key;
    QString WiFiRecord::*text;
};

const Field fields[] = {
    {wifirecord::name, &WiFiRecord::name},
    {wifirecord::SSID, &WiFiRecord::ssid},
    {wifirecord::BSSID, &WiFiRecord::bssid},
    {wifirecord::ipAddress, &WiFiRecord::ipAddress},
    {wifirecord::noise, &WiFiRecord::noise},
    {wifirecord::RSSI, &WiFiRecord::rssi},
    {wifirecord::security, &WiFiRecord::security},
    {wifirecord::txRate, &WiFiRecord::txRate},
    {wifirecord::channel, &WiFiRecord::channel},
    {wifirecord::country, &WiFiRecord::country},
    {wifirecord::phyMode, &WiFiRecord::phyMode},
    {wifirecord::mcs, &WiFiRecord::mcs},
};

} // namespace

QString WiFiRecord::shownName() const
{
    return bssid.isEmpty() ? localized(name) : name;
}

WiFiRecord WiFiRecord::stored(const SettingsStore &settings)
{
    const auto dictionary = settings.getDictionary(keys::currentWiFiDict);
    WiFiRecord record;
    for (const Field &field : fields) {
        record.*field.text = storedText(dictionary, field.key).value_or(QString());
    }
    record.device = storedText(dictionary, wifirecord::device).value_or(QString());
    return record;
}

void WiFiRecord::store(SettingsStore &settings) const
{
    auto dictionary = settings.getDictionary(keys::currentWiFiDict);
    for (const Field &field : fields) {
        dictionary[field.key] = this->*field.text;
    }
    if (device.isEmpty()) {
        dictionary.remove(wifirecord::device);
    } else {
        dictionary[wifirecord::device] = device;
    }
    settings.set(keys::currentWiFiDict, dictionary);
}

} // namespace quillon
