// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "vendors/VendorChoice.h"

#include "base/Localized.h"
#include "base/NotificationNames.h"
#include "devices/CurrentInterface.h"
#include "devices/DeviceTable.h"
#include "platform/NotificationCenter.h"
#include "vendors/VendorList.h"

namespace quillon {

using namespace Qt::StringLiterals;

VendorChoice::VendorChoice(DeviceTable &devices, const CurrentInterface &currentInterface,
    NotificationCenter &notifications, VendorList &list)
    : m_devices(devices)
    , m_currentInterface(currentInterface)
    , m_notifications(notifications)
    , m_list(list)
{
}

QString VendorChoice::shownChoice(const QString &device) const
{
    const QString choice = m_devices.record(device).vendor.value_or(randomAddressChoice);
    return choice == randomAddressChoice ? localized(randomAddressChoice) : choice;
}

QString VendorChoice::device() const
{
    return m_currentInterface.device();
}

bool VendorChoice::canChoose() const
{
    return m_devices.contains(device());
}

QString VendorChoice::whyNot() const
{
    return localized("No interface is selected: there is none to choose a vendor for");
}

void VendorChoice::saveVendorSelection(const QString &choice)
{
    if (!canChoose()) {
        return;
    }
    const QString device = this->device();
    const QString stored = choice == localized(randomAddressChoice) ? randomAddressChoice : choice;
    m_devices.update(device, [&stored](DeviceRecord &record) { record.vendor = stored; });
    m_notifications.post(
        notifications::vendorUpdated, nullptr, {{u"device"_s, device}, {u"newVendor"_s, stored}});
}

void VendorChoice::updateVendorField(const std::optional<QString> &device)
{
    Q_EMIT vendorFieldUpdated(device ? shownChoice(*device) : localized(randomAddressChoice));
}

void VendorChoice::setVendorSelectionForDevice(const QString &device)
{
    m_list.clearFilter();
    Q_EMIT vendorSelected(shownChoice(device));
}

void VendorChoice::setVendorSelectionForCurrentDevice()
{
    setVendorSelectionForDevice(m_currentInterface.device());
}

void VendorChoice::updateVendorTableSelectionWithRow(qsizetype row)
{
    if (row < 0 || row >= m_list.rowCount()) {
        return;
    }
    const QString choice = m_list.entry(row);
    saveVendorSelection(choice);
    Q_EMIT vendorFieldUpdated(choice);
}

} // namespace quillon
