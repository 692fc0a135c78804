// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/Shown.h"
#include "platform/SettingsStore.h"
#include "presentation/overview/OverviewCell.h"

#include <QObject>

#include <memory>
#include <vector>

namespace quillon {

class AddressChanger;
class CountdownTimers;
class CurrentInterface;
class DeviceTable;
class Presence;
class Scheduler;
class XPCMethods;
struct DeviceRecord;

/// Every interface at once, a row each, in the order of every list of devices. The rows are made
/// when this is, and when the case of addresses changes; what the machine is like later reaches
/// only what OverviewCell::Live holds. It lives as long as the window is open. Main thread.
class OverviewController : public QObject
{
    Q_OBJECT

public:
    struct State
    {
        /// An address is not what it was, or an interface came, since the rows were made.
        bool hasNewAddresses = false;
        bool hasNewInterfaces = false;

        bool operator==(const State &) const = default;
    };
    struct Collaborators
    {
        SettingsStore &settings;
        Scheduler &scheduler;
        NotificationCenter &notifications;
        const DeviceTable &devices;
        CurrentInterface &currentInterface;
        AddressChanger &addressChanger;
        CountdownTimers &timers;
        Presence &presence;
        const XPCMethods &helper;
        OverviewChanges &changes;
    };

    explicit OverviewController(const Collaborators &collaborators);
    ~OverviewController() override;

    const State &state() const { return m_state.get(); }
    bool isOutOfDate() const { return m_state->hasNewAddresses || m_state->hasNewInterfaces; }
    int rowCount() const { return static_cast<int>(m_cells.size()); }
    /// Null for a row that there is not. It goes with the next rowsGoing().
    OverviewCell *cell(int row) const;

    /// Makes all rows anew.
    void reloadArrayController();
    static void updateObjDefaultStatus(OverviewRow &row);
    /// "addressUpdated" or "vendorUpdated": a new vendor or address of one device. Which row that
    /// is says the order of the devices now, whatever the order of the rows.
    void refreshRow(const QVariantMap &userInfo);
    /// Looks at what each interface is like now.
    void look();
    void setHelperInstalled(bool installed);

    // What a row's buttons do. A row that there is not, or whose button cannot be used: nothing.
    /// Selects its interface, and opens the main window behind this one.
    void changeInterface(int row);
    void randomize(int row);
    void restoreHardwareAddress(int row);
    void editRules(int row);
    void pauseTimer(int row);
    void resumeTimer(int row);

Q_SIGNALS:
    /// Something in state() changed.
    void changed();
    /// All cells are about to go; others come with the next rowsMade().
    void rowsGoing();
    void rowsMade();
    /// Another window was opened, and this one is to have the keyboard again.
    void madeKey();

private:
    OverviewRow rowOf(const QString &device, const DeviceRecord &record) const;
    void listen(const QString &notification);

    Collaborators m_deps;
    std::vector<std::unique_ptr<OverviewCell>> m_cells;
    std::vector<NotificationCenter::Token> m_observed;
    SettingsStore::Token m_observedCase;
    Shown<State> m_state{[this] { Q_EMIT changed(); }};
};

} // namespace quillon
