// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QVariantMap>

#include <optional>

namespace quillon {

class RecordStore;
class Scheduler;
class SettingsStore;
class WiFiNetwork;

/// The saved network whose popover is open, and what the popover can do to it. The entry is a copy:
/// the stored list changes by these operations only, each of which does nothing while no network is
/// edited. Main thread.
class SavedNetworkEditing : public QObject
{
    Q_OBJECT

public:
    struct Collaborators
    {
        SettingsStore &settings;
        Scheduler &scheduler;
        WiFiNetwork &wifi;
        RecordStore &records;
    };

    /// The identifier of the button that chooses recognition by SSID.
    static const QString ssidButton;

    explicit SavedNetworkEditing(const Collaborators &collaborators);

    /// None while no popover is open.
    const std::optional<QVariantMap> &editingNetworkDict() const { return m_editingNetworkDict; }
    void beginEditing(const QVariantMap &entry);
    void endEditing();
    /// Whether the network is recognised by its SSID.
    bool isSsidDefined() const;

    /// The name was edited to `typed`; a name that another network has gets a suffix.
    void changeSavedNetworkName(const QString &typed);
    void removeSavedNetwork();
    /// A tick button was chosen: ssidButton recognises the network by its SSID, any other by its
    /// BSSID. The network's rules follow.
    void updateNetworkDefinition(const QString &senderIdentifier);

    /// Writes the mode into every rule of the network. When the rules cannot be read, that is
    /// logged and nothing changes.
    void updateSsidDefinedForRulesWithNetwork(bool ssidDefined, const QString &bssid);

Q_SIGNALS:
    /// The edited network changed its mode: the popover shows it anew. Before it is stored.
    void networkDefinitionChanged();
    /// In the turn after a rename or a removal: the popover has done its work.
    void editingFinished();
    /// Rules are in the context with their new mode: they are to be evaluated without changing an
    /// address.
    void rulesChanged();

private:
    void storeEntry(const QVariantMap &entry);
    void finishInNextTurn();

    Collaborators m_with;
    std::optional<QVariantMap> m_editingNetworkDict;
};

} // namespace quillon
