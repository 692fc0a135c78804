// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "devices/DeviceRecord.h"

#include <QObject>

#include <optional>

namespace quillon {

class DeviceTable;
class Scheduler;
class SettingsStore;

/// The interface that the window and the menu act on: the persisted selection
/// `currentInterfaceDict`. It says what followed by signals, always on the main thread; the order
/// in which they are emitted and connected (app/EventWiring) is the order of the follow-ups.
class CurrentInterface : public QObject
{
    Q_OBJECT

public:
    CurrentInterface(SettingsStore &settings, Scheduler &scheduler, DeviceTable &devices);

    /// The selected device's name, "" before the first selection.
    QString device() const;
    DeviceRecord record() const;
    /// While nothing is selected, or a device that the table does not know: selects the first
    /// device that can be, in the order of every list of devices, which puts the Wi-Fi device
    /// first; one that is there rather than one that was taken away. Otherwise nothing. At once, so
    /// that the steps of the launch that follow find it. Main thread.
    void selectInitialDevice();
    /// The same after the launch: it also says that an interface was selected.
    void selectAnyIfNone();

    /// Reads the interfaces anew and makes `device` current; an empty name is ignored.
    void updateInterface(const QString &device);
    /// The same with the table as it is.
    void selectInterface(const QString &device);
    /// The same for a menu item's title, "label · device"; ignored when the table has no such
    /// device any more.
    void changeInterface(const QString &menuItemTitle);
    /// The popup button's selected title, a device name.
    void changeInterfacefromPopup(const QString &selectedTitle);
    /// Rebuilds and stores the record, in a later turn of the main loop. A device whose address is
    /// not valid leaves the previous selection as it is. Any thread.
    void updateCurrentInterfaceDict(const QString &device);
    /// Refreshes the current device's record (one that lost its address gets the factory address),
    /// the selection and the address field. Any thread.
    void updateHexValues();

Q_SIGNALS:
    /// The rebuild has been asked for.
    void interfaceSelected(const QString &device);
    /// A rebuild begins; whatever it finds, the countdown label is out of date.
    void rebuildStarted();
    /// The record is stored and flushed; `address` is in display case.
    void currentInterfaceUpdated(const QString &device, const QString &address);
    /// updateHexValues() is done: the address field has to be refilled.
    void hexValuesUpdated();

private:
    /// The selected device is one of the table.
    bool isSelected() const;
    /// The record of `device` as the selected one; none when its address is not valid.
    std::optional<DeviceRecord> selection(const QString &device) const;
    void rebuild(const QString &device);

    SettingsStore &m_settings;
    Scheduler &m_scheduler;
    DeviceTable &m_devices;
};

} // namespace quillon
