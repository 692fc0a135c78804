// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/Shown.h"
#include "platform/RadioSwitch.h"
#include "platform/Scheduler.h"
#include "platform/SettingsStore.h"
#include "presentation/networks/FavoriteButton.h"
#include "presentation/networks/SignalHistory.h"

#include <QList>
#include <QObject>

#include <optional>
#include <vector>

namespace quillon {

class DeviceTable;
class RemovedFavorite;
class SavedNetworks;
class WiFiNetwork;

/// The network-information button of the main window and its popover: the details of the current
/// Wi-Fi network, refreshed every three seconds while the popover is open, and the button that
/// keeps the network among the saved ones. Main thread.
class NetworkInfoModel : public QObject
{
    Q_OBJECT

public:
    struct Row
    {
        QString label;
        QString value;

        bool operator==(const Row &) const = default;
    };
    struct State
    {
        bool hasRadio = false; ///< one is there; without one there is nothing to show at all
        bool buttonVisible = false;
        bool popoverShown = false;
        /// Of the saved network, else its SSID; or that there is none, or that the radio is off.
        QString name;
        QList<Row> rows; ///< one for each detail, also an empty one
        FavoriteButton favorite;
        /// Taken while the popover is shown.
        QList<SignalHistory::Sample> signal;

        bool operator==(const State &) const = default;
    };
    struct Collaborators
    {
        SettingsStore &settings;
        Scheduler &scheduler;
        const DeviceTable &devices;
        WiFiNetwork &wifi;
        RadioSwitch &radioSwitch;
        SavedNetworks &savedNetworks;
        RemovedFavorite &removed;
    };

    explicit NetworkInfoModel(const Collaborators &collaborators);
    ~NetworkInfoModel() override;

    const State &state() const { return m_state.get(); }

    /// The button follows the association.
    void showNetworkButton(bool shown);
    /// The button was chosen: opens the popover on fresh details, or closes it.
    void toggleNetworkInfoPopover();
    /// However it is closed. The refreshing ends with it.
    void popoverWillClose();

    void startNetworkTimer();
    void stopNetworkTimer();

    /// After the interfaces were read: the popover closes when the radio is gone.
    void lookForRadio();

    void updateFavNetworkButton();
    /// The favorite button was chosen: does what it says.
    void chooseFavoriteButton();

Q_SIGNALS:
    /// Something in state() changed.
    void changed();

private:
    void popoverWillShow();
    void refresh();
    void showDetails();

    Collaborators m_deps;
    Shown<State> m_state{[this] { Q_EMIT changed(); }};
    SignalHistory m_signal;
    std::optional<Scheduler::Token> m_networkTimer;
    std::vector<SettingsStore::Token> m_observed;
};

} // namespace quillon
