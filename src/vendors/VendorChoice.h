// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "vendors/VendorTaker.h"

#include <QObject>

#include <optional>

namespace quillon {

class CurrentInterface;
class DeviceTable;
class NotificationCenter;
class VendorList;

/// Which manufacturer's prefix random addresses of a device take: the key `vendor` of its record.
/// Main thread.
class VendorChoice : public QObject, public VendorTaker
{
    Q_OBJECT

public:
    VendorChoice(DeviceTable &devices, const CurrentInterface &currentInterface,
        NotificationCenter &notifications, VendorList &list);

    /// The device's choice as it is shown; "Random Address", in the user's language, when it has
    /// made none.
    QString shownChoice(const QString &device) const;

    /// The interface that a choice is for, "" when none is selected.
    QString device() const override;
    /// Whether there is a known interface that a choice would be for.
    bool canChoose() const override;
    QString whyNot() const override;
    /// Stores `choice`, an entry of the list, for the selected interface, and announces it with
    /// "vendorUpdated" (`device`, `newVendor`). Without a known interface nothing happens.
    void saveVendorSelection(const QString &choice);
    /// Shows the device's choice in the text field. Without a device that is always "Random
    /// Address": the selected interface's name is not used.
    void updateVendorField(const std::optional<QString> &device);
    /// Selects the device's choice in the list, unfiltered; nothing when it is not in there. Does
    /// not read the list.
    void setVendorSelectionForDevice(const QString &device);
    /// The same for the selected interface.
    void setVendorSelectionForCurrentDevice();
    void updateVendorTableSelectionWithRow(qsizetype row) override;

Q_SIGNALS:
    /// The text field is to show `text`.
    void vendorFieldUpdated(const QString &text);
    /// The list is to select `entry` alone and to show it; nothing when that is not in there.
    void vendorSelected(const QString &entry);

private:
    DeviceTable &m_devices;
    const CurrentInterface &m_currentInterface;
    NotificationCenter &m_notifications;
    VendorList &m_list;
};

} // namespace quillon
