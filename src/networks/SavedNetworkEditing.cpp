// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "networks/SavedNetworkEditing.h"

#include "base/Log.h"
#include "base/NetworkKeys.h"
#include "base/SettingsKeys.h"
#include "base/StoredText.h"
#include "networks/SavedEntries.h"
#include "networks/WiFiNetwork.h"
#include "platform/Scheduler.h"
#include "platform/SettingsStore.h"
#include "store/RecordStore.h"
#include "store/graph/FetchFailure.h"
#include "store/model/QuillonModel.h"

#include <QPointer>

namespace quillon {

namespace {

QString bssidOf(const QVariantMap &entry)
{
    return entry.value(savedentry::BSSID).toString();
}

} // namespace

const QString SavedNetworkEditing::ssidButton = QStringLiteral("ssidbutton");

SavedNetworkEditing::SavedNetworkEditing(const Collaborators &collaborators)
    : m_with(collaborators)
{
}

void SavedNetworkEditing::beginEditing(const QVariantMap &entry)
{
    m_editingNetworkDict = entry;
}

void SavedNetworkEditing::endEditing()
{
    m_editingNetworkDict.reset();
}

bool SavedNetworkEditing::isSsidDefined() const
{
    return m_editingNetworkDict && m_editingNetworkDict->contains(savedentry::ssidDefined);
}

void SavedNetworkEditing::changeSavedNetworkName(const QString &typed)
{
    if (!m_editingNetworkDict) {
        return;
    }
    QVariantMap entry = *m_editingNetworkDict;
    if (storedText(entry, savedentry::name) != typed) {
        const QStringList others =
            namesOfOthers(m_with.settings.getDictionary(keys::savedNetworks), bssidOf(entry));
        entry[savedentry::name] =
            distinctName(typed, others, entry.value(savedentry::SSID).toString());
        m_editingNetworkDict = entry;
        storeEntry(entry);
        // The Wi-Fi record shows the new name.
        m_with.wifi.updateWiFiNetwork();
    }
    finishInNextTurn();
}

void SavedNetworkEditing::removeSavedNetwork()
{
    if (!m_editingNetworkDict) {
        return;
    }
    QVariantMap list = m_with.settings.getDictionary(keys::savedNetworks);
    list.remove(bssidOf(*m_editingNetworkDict));
    m_with.settings.set(keys::savedNetworks, list);
    m_with.settings.synchronize();
    m_editingNetworkDict.reset();
    finishInNextTurn();
    m_with.wifi.updateWiFiNetwork();
}

void SavedNetworkEditing::updateNetworkDefinition(const QString &senderIdentifier)
{
    if (!m_editingNetworkDict) {
        return;
    }
    QVariantMap entry = *m_editingNetworkDict;
    entry.remove(savedentry::ssidDefined);
    if (senderIdentifier == ssidButton) {
        entry[savedentry::ssidDefined] = true;
    }
    m_editingNetworkDict = entry;
    Q_EMIT networkDefinitionChanged();
    storeEntry(entry);
    updateSsidDefinedForRulesWithNetwork(entry.contains(savedentry::ssidDefined), bssidOf(entry));
}

void SavedNetworkEditing::updateSsidDefinedForRulesWithNetwork(
    bool ssidDefined, const QString &bssid)
{
    ManagedObjectContext &context = m_with.records.managedObjectContext();
    const Result<ManagedObjectList> rules =
        context.fetch({.entity = model::Rule, .predicate = {}, .order = {}});
    if (!rules) {
        logFetchFailure(logNetworks, rules.error());
        return;
    }
    {
        // The flag follows from the saved network, which no undo brings back.
        const ManagedObjectContext::UndoDisabled undoDisabled(context);
        for (const ManagedObjectPtr &rule : rules.value()) {
            if (rule->value(model::rule::network) == bssid) {
                rule->setValue(model::rule::ssidDefined, ssidDefined);
            }
        }
    }
    context.processPendingChanges();
    Q_EMIT rulesChanged();
}

void SavedNetworkEditing::storeEntry(const QVariantMap &entry)
{
    QVariantMap list = m_with.settings.getDictionary(keys::savedNetworks);
    list[bssidOf(entry)] = entry;
    m_with.settings.set(keys::savedNetworks, list);
    m_with.settings.synchronize();
}

void SavedNetworkEditing::finishInNextTurn()
{
    // The name field handles its own event first.
    m_with.scheduler.onMain([self = QPointer(this)] {
        if (auto *const that = self.data()) {
            Q_EMIT that->editingFinished();
        }
    });
}

} // namespace quillon
