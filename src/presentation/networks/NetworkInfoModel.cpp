// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/networks/NetworkInfoModel.h"

#include "base/Localized.h"
#include "base/SettingsKeys.h"
#include "devices/DeviceTable.h"
#include "networks/SavedNetworks.h"
#include "networks/WiFiNetwork.h"
#include "networks/WiFiRecord.h"
#include "presentation/networks/RemovedFavorite.h"

#include <algorithm>

namespace quillon {

namespace {

constexpr std::chrono::milliseconds refreshInterval{3000};

struct Detail
{
    const char *label;
    QString WiFiRecord::*text;
    /// The value is a word of ours, not something that the network says.
    bool isWord = false;
};

QList<NetworkInfoModel::Row> detailsOf(const WiFiRecord &record)
{
    static constexpr Detail details[] = {
        {QT_TRANSLATE_NOOP("Quillon", "Network name"), &WiFiRecord::ssid},
        {QT_TRANSLATE_NOOP("Quillon", "BSSID"), &WiFiRecord::bssid},
        {QT_TRANSLATE_NOOP("Quillon", "IP address"), &WiFiRecord::ipAddress},
        {QT_TRANSLATE_NOOP("Quillon", "Security"), &WiFiRecord::security, true},
        {QT_TRANSLATE_NOOP("Quillon", "Signal"), &WiFiRecord::rssi},
        {QT_TRANSLATE_NOOP("Quillon", "Noise"), &WiFiRecord::noise},
        {QT_TRANSLATE_NOOP("Quillon", "Rate"), &WiFiRecord::txRate},
        {QT_TRANSLATE_NOOP("Quillon", "Channel"), &WiFiRecord::channel},
        {QT_TRANSLATE_NOOP("Quillon", "Mode"), &WiFiRecord::phyMode, true},
        {QT_TRANSLATE_NOOP("Quillon", "MCS"), &WiFiRecord::mcs},
        {QT_TRANSLATE_NOOP("Quillon", "Country"), &WiFiRecord::country},
    };
    QList<NetworkInfoModel::Row> rows;
    for (const Detail &detail : details) {
        const QString value = record.*detail.text;
        rows.append({localized(detail.label),
            detail.isWord && !value.isEmpty() ? localized(value) : value});
    }
    return rows;
}

} // namespace

NetworkInfoModel::NetworkInfoModel(const Collaborators &collaborators)
    : m_deps(collaborators)
{
    m_observed.push_back(m_deps.settings.addObserver(keys::currentWiFiDict, [this](const auto &) {
        showDetails();
        updateFavNetworkButton();
    }));
    m_observed.push_back(m_deps.settings.addObserver(
        keys::savedNetworks, [this](const auto &) { updateFavNetworkButton(); }));
    m_observed.push_back(
        m_deps.settings.addObserver(keys::deviceDict, [this](const auto &) { lookForRadio(); }));
    m_deps.radioSwitch.watch([this] { showDetails(); });
    lookForRadio();
    showDetails();
    updateFavNetworkButton();
}

NetworkInfoModel::~NetworkInfoModel()
{
    stopNetworkTimer();
    m_deps.radioSwitch.watch({});
    for (const auto token : m_observed) {
        m_deps.settings.removeObserver(token);
    }
}

void NetworkInfoModel::showNetworkButton(bool shown)
{
    m_state.update([&](State &state) { state.buttonVisible = shown; });
}

void NetworkInfoModel::toggleNetworkInfoPopover()
{
    if (m_state->popoverShown) {
        popoverWillClose();
        return;
    }
    refresh();
    startNetworkTimer();
    popoverWillShow();
}

void NetworkInfoModel::refresh()
{
    m_deps.wifi.updateWiFiNetwork();
    m_signal.add(WiFiRecord::stored(m_deps.settings), m_deps.scheduler.monotonic());
    m_state.update([&](State &state) { state.signal = m_signal.samples(); });
}

void NetworkInfoModel::popoverWillShow()
{
    updateFavNetworkButton();
    m_state.update([&](State &state) { state.popoverShown = true; });
}

void NetworkInfoModel::popoverWillClose()
{
    stopNetworkTimer();
    m_state.update([&](State &state) { state.popoverShown = false; });
}

void NetworkInfoModel::startNetworkTimer()
{
    stopNetworkTimer();
    m_networkTimer = m_deps.scheduler.repeat(refreshInterval, [this] { refresh(); });
}

void NetworkInfoModel::stopNetworkTimer()
{
    if (m_networkTimer) {
        m_deps.scheduler.cancel(*m_networkTimer);
        m_networkTimer.reset();
    }
}

void NetworkInfoModel::updateFavNetworkButton()
{
    m_state.update([&](State &state) {
        state.favorite = favoriteNetworkButton(m_deps.savedNetworks.isCurrentNetworkSaved());
    });
}

void NetworkInfoModel::chooseFavoriteButton()
{
    if (m_state->favorite.removes) {
        m_deps.removed.remember(m_deps.savedNetworks.removeCurrentNetworkFromSavedList());
        return;
    }
    const QString bssid = WiFiRecord::stored(m_deps.settings).bssid.toLower();
    if (!m_deps.removed.putBack(keys::savedNetworks, bssid)) {
        // Otherwise it was removed just now, and keeps its name.
        m_deps.savedNetworks.addCurrentNetworkToSavedList();
    }
}

void NetworkInfoModel::lookForRadio()
{
    // The table keeps those that were taken away.
    const DeviceRecords records = m_deps.devices.devices();
    const bool hasRadio =
        std::any_of(records.keyValueBegin(), records.keyValueEnd(), [this](const auto &entry) {
            return entry.second.isWifi() && !m_deps.devices.isGone(entry.first);
        });
    m_state.update([&](State &state) { state.hasRadio = hasRadio; });
    if (!hasRadio) {
        popoverWillClose();
    }
}

void NetworkInfoModel::showDetails()
{
    const WiFiRecord record = WiFiRecord::stored(m_deps.settings);
    m_state.update([&](State &state) {
        // What was read of a network holds until it is read that there is none.
        const bool isOff = record.bssid.isEmpty() && m_deps.radioSwitch.isOff();
        state.name = isOff ? localized("Wi-Fi is switched off.") : record.shownName();
        state.rows = detailsOf(record);
    });
}

} // namespace quillon
