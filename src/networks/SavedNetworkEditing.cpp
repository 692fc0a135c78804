// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "networks/SavedNetworkEditing.h"

#include "base/SettingsKeys.h"
#include "networks/WiFiNetwork.h"
#include "platform/Scheduler.h"

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

QString bssidOf(const SavedEntry &entry)
{
    return entry.bssid.value_or(QString());
}

} // namespace

const QString SavedNetworkEditing::ssidButton = u"ssidbutton"_s;

SavedNetworkEditing::SavedNetworkEditing(const Collaborators &collaborators)
    : m_deps(collaborators)
{
}

void SavedNetworkEditing::beginEditing(const SavedEntry &entry)
{
    m_editingNetworkDict = entry;
}

void SavedNetworkEditing::endEditing()
{
    m_editingNetworkDict.reset();
}

bool SavedNetworkEditing::isSsidDefined() const
{
    return m_editingNetworkDict && m_editingNetworkDict->isSsidDefined();
}

void SavedNetworkEditing::changeSavedNetworkName(const QString &typed)
{
    if (!m_editingNetworkDict) {
        return;
    }
    SavedEntry entry = *m_editingNetworkDict;
    if (entry.name != typed) {
        entry.name = distinctName(savedEntries(m_deps.settings, keys::savedNetworks),
            bssidOf(entry), typed, entry.ssid.value_or(QString()));
        m_editingNetworkDict = entry;
        saveEntry(m_deps.settings, keys::savedNetworks, bssidOf(entry), entry);
        // The Wi-Fi record shows the new name.
        m_deps.wifi.updateWiFiNetwork();
    }
    finishInNextTurn();
}

std::optional<RemovedEntry> SavedNetworkEditing::removeSavedNetwork()
{
    if (!m_editingNetworkDict) {
        return std::nullopt;
    }
    const QString bssid = bssidOf(*m_editingNetworkDict);
    auto removed = removeEntry(m_deps.settings, keys::savedNetworks, bssid);
    m_editingNetworkDict.reset();
    finishInNextTurn();
    m_deps.wifi.updateWiFiNetwork();
    return removed;
}

void SavedNetworkEditing::updateNetworkDefinition(const QString &senderIdentifier)
{
    if (!m_editingNetworkDict) {
        return;
    }
    SavedEntry entry = *m_editingNetworkDict;
    entry.setSsidDefined(senderIdentifier == ssidButton);
    m_editingNetworkDict = entry;
    Q_EMIT networkDefinitionChanged();
    saveEntry(m_deps.settings, keys::savedNetworks, bssidOf(entry), entry);
    Q_EMIT networkDefinitionSaved(bssidOf(entry), entry.isSsidDefined());
}

void SavedNetworkEditing::finishInNextTurn()
{
    // The name field handles its own event first.
    m_deps.scheduler.onMain(this, [this] { Q_EMIT editingFinished(); });
}

} // namespace quillon
