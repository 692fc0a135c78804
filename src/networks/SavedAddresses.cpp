// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "networks/SavedAddresses.h"

#include "base/Localized.h"
#include "base/SettingsKeys.h"
#include "devices/DeviceRecord.h"
#include "platform/SettingsStore.h"

namespace quillon {

QString addressForAddressName(const SettingsStore &settings, const QString &name)
{
    const SavedEntries addresses = savedEntries(settings, keys::savedAddresses);
    const auto address = fieldOfNamed(addresses, name, &SavedEntry::address);
    return address ? *address : localized("Random Address");
}

SavedAddresses::SavedAddresses(SettingsStore &settings)
    : m_settings(settings)
{
}

void SavedAddresses::addCurrentAddressToSavedList()
{
    const QString address = currentAddress();
    if (!address.isEmpty() && !isSaved(m_settings, keys::savedAddresses, address)) {
        saveEntry(m_settings, keys::savedAddresses, address, SavedEntry::ofAddress(address));
    }
}

std::optional<RemovedEntry> SavedAddresses::removeCurrentAddressFromSavedList()
{
    if (!isCurrentAddressSaved()) {
        return std::nullopt;
    }
    return removeEntry(m_settings, keys::savedAddresses, currentAddress());
}

bool SavedAddresses::isCurrentAddressSaved() const
{
    const QString address = currentAddress();
    return !address.isEmpty() && isSaved(m_settings, keys::savedAddresses, address);
}

QString SavedAddresses::currentAddress() const
{
    const auto selected =
        DeviceRecord::fromPropertyList(m_settings.get(keys::currentInterfaceDict));
    return selected.current.value_or(QString()).toLower();
}

} // namespace quillon
