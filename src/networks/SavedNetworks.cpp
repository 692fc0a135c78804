// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "networks/SavedNetworks.h"

#include "base/NetworkKeys.h"
#include "base/SettingsKeys.h"
#include "base/StoredText.h"
#include "networks/SavedEntries.h"
#include "networks/SpecialNetworks.h"
#include "networks/WiFiNetwork.h"
#include "platform/SettingsStore.h"

#include <algorithm>

namespace quillon {

namespace {

QVariantMap savedNetworks(const SettingsStore &settings)
{
    return settings.getDictionary(keys::savedNetworks);
}

bool isRecognisedBySsid(const QVariantMap &entry)
{
    return entry.contains(savedentry::ssidDefined);
}

} // namespace

QStringList favouriteNetworks(const SettingsStore &settings)
{
    return fieldOfEach(savedNetworks(settings), savedentry::BSSID);
}

QStringList ssidFavouriteNetworks(const SettingsStore &settings)
{
    QVariantMap list = savedNetworks(settings);
    list.removeIf([](const QVariantMap::iterator &entry) {
        return !isRecognisedBySsid(entry.value().toMap());
    });
    return fieldOfEach(list, savedentry::SSID);
}

QString ssidForNetworkName(const SettingsStore &settings, const QString &name)
{
    return fieldOfNamed(savedNetworks(settings), name, savedentry::SSID).value_or(QString());
}

QString bssidForNetworkName(const SettingsStore &settings, const QString &name)
{
    return fieldOfNamed(savedNetworks(settings), name, savedentry::BSSID).value_or(anyNetwork);
}

bool isNetWorkDefined(const SettingsStore &settings, const QString &name)
{
    const QVariantMap list = savedNetworks(settings);
    return std::any_of(list.begin(), list.end(), [&name](const QVariant &value) {
        const QVariantMap entry = value.toMap();
        return isRecognisedBySsid(entry) && storedText(entry, savedentry::name) == name;
    });
}

SavedNetworks::SavedNetworks(SettingsStore &settings, WiFiNetwork &wifi)
    : m_settings(settings)
    , m_wifi(wifi)
{
}

void SavedNetworks::addCurrentNetworkToSavedList()
{
    const QVariantMap network = m_wifi.updateWiFiNetwork();
    const QString bssid = network.value(wifirecord::BSSID).toString();
    const QString ssid = network.value(wifirecord::SSID).toString();
    QVariantMap list = savedNetworks(m_settings);
    if (bssid.isEmpty() || ssid.isEmpty() || list.contains(bssid)) {
        return;
    }
    list[bssid] =
        QVariantMap{{savedentry::BSSID, bssid}, {savedentry::SSID, ssid}, {savedentry::name, ssid}};
    m_settings.set(keys::savedNetworks, list);
    m_settings.synchronize();
}

void SavedNetworks::removeCurrentNetworkFromSavedList()
{
    const QVariantMap network = m_wifi.updateWiFiNetwork();
    QVariantMap list = savedNetworks(m_settings);
    if (network.isEmpty() || list.remove(network.value(wifirecord::BSSID).toString()) == 0) {
        return;
    }
    m_settings.set(keys::savedNetworks, list);
    m_settings.synchronize();
}

bool SavedNetworks::isCurrentNetworkSaved() const
{
    const QVariantMap current = m_settings.getDictionary(keys::currentWiFiDict);
    const QString bssid = storedText(current, wifirecord::BSSID).value_or(QString());
    return !bssid.isEmpty() && savedNetworks(m_settings).contains(bssid.toLower());
}

} // namespace quillon
