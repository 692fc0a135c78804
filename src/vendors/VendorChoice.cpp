// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "vendors/VendorChoice.h"

#include "base/Localized.h"
#include "base/NotificationNames.h"
#include "base/SettingsKeys.h"
#include "platform/NotificationCenter.h"
#include "platform/SettingsStore.h"
#include "vendors/VendorList.h"

namespace quillon {

namespace {

QString currentDevice(const SettingsStore &settings)
{
    return settings.getDictionary(keys::currentInterfaceDict).value(record::device).toString();
}

} // namespace

VendorChoice::VendorChoice(
    SettingsStore &settings, NotificationCenter &notifications, VendorList &list)
    : m_settings(settings)
    , m_notifications(notifications)
    , m_list(list)
{
}

QString VendorChoice::shownChoice(const QString &device) const
{
    const QVariantMap stored = m_settings.getDictionary(keys::deviceDict).value(device).toMap();
    const QString choice = stored.value(record::vendor, randomAddressChoice).toString();
    return choice == randomAddressChoice ? localized(randomAddressChoice) : choice;
}

void VendorChoice::saveVendorSelection(const QString &choice)
{
    const QString device = currentDevice(m_settings);
    QVariantMap table = m_settings.getDictionary(keys::deviceDict);
    const auto found = table.find(device);
    if (found == table.end()) {
        return;
    }
    const QString stored = choice == localized(randomAddressChoice) ? randomAddressChoice : choice;
    QVariantMap deviceRecord = found->toMap();
    deviceRecord[record::vendor] = stored;
    *found = deviceRecord;
    m_settings.set(keys::deviceDict, table);
    m_settings.synchronize();
    m_notifications.post(notifications::vendorUpdated, nullptr,
        {{QStringLiteral("device"), device}, {QStringLiteral("newVendor"), stored}});
}

void VendorChoice::updateVendorField(const std::optional<QString> &device)
{
    Q_EMIT vendorFieldUpdated(device ? shownChoice(*device) : localized(randomAddressChoice));
}

void VendorChoice::setVendorSelectionForDevice(const QString &device)
{
    m_list.clearFilter();
    const qsizetype row = m_list.rowOf(shownChoice(device));
    Q_EMIT vendorSelected(row >= 0 ? std::optional(row) : std::nullopt);
}

void VendorChoice::setVendorSelectionForCurrentDevice()
{
    setVendorSelectionForDevice(currentDevice(m_settings));
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
