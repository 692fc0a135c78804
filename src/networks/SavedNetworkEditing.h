// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "networks/SavedEntries.h"

#include <QObject>

#include <optional>

namespace quillon {

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
    };

    /// The identifier of the button that chooses recognition by SSID.
    static const QString ssidButton;

    explicit SavedNetworkEditing(const Collaborators &collaborators);

    /// None while no popover is open.
    const std::optional<SavedEntry> &editingNetworkDict() const { return m_editingNetworkDict; }
    void beginEditing(const SavedEntry &entry);
    void endEditing();
    /// Whether the network is recognized by its SSID.
    bool isSsidDefined() const;

    /// The name was edited to `typed`; a name that another network has gets a suffix.
    void changeSavedNetworkName(const QString &typed);
    /// None when it was not saved any more.
    std::optional<RemovedEntry> removeSavedNetwork();
    /// A tick button was chosen: ssidButton recognizes the network by its SSID, any other by its
    /// BSSID.
    void updateNetworkDefinition(const QString &senderIdentifier);

Q_SIGNALS:
    /// The edited network changed its mode: the popover shows it anew. Before it is stored.
    void networkDefinitionChanged();
    /// The mode is stored; the rules of the network follow it.
    void networkDefinitionSaved(const QString &bssid, bool ssidDefined);
    /// In the turn after a rename or a removal: the popover has done its work.
    void editingFinished();

private:
    void finishInNextTurn();

    Collaborators m_deps;
    std::optional<SavedEntry> m_editingNetworkDict;
};

} // namespace quillon
