// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "networks/SavedAddresses.h"

#include "base/Localized.h"
#include "base/NetworkKeys.h"
#include "base/SettingsKeys.h"
#include "base/StoredText.h"
#include "networks/SavedEntries.h"
#include "platform/SettingsStore.h"

namespace quillon {

QString addressForAddressName(const SettingsStore &settings, const QString &name)
{
    const QVariantMap list = settings.getDictionary(keys::savedAddresses);
    const auto address = fieldOfNamed(list, name, savedentry::address);
    return address ? *address : localized("Random Address");
}

SavedAddresses::SavedAddresses(SettingsStore &settings)
    : m_settings(settings)
{
}

void SavedAddresses::addCurrentAddressToSavedList()
{
    const QString address = currentAddress();
    QVariantMap list = m_settings.getDictionary(keys::savedAddresses);
    if (address.isEmpty() || list.contains(address)) {
        return;
    }
    list[address] = QVariantMap{{savedentry::address, address}, {savedentry::name, address}};
    m_settings.set(keys::savedAddresses, list);
    m_settings.synchronize();
}

void SavedAddresses::removeCurrentAddressFromSavedList()
{
    const QString address = currentAddress();
    QVariantMap list = m_settings.getDictionary(keys::savedAddresses);
    if (address.isEmpty() || list.remove(address) == 0) {
        return;
    }
    m_settings.set(keys::savedAddresses, list);
    m_settings.synchronize();
}

bool SavedAddresses::isCurrentAddressSaved() const
{
    const QString address = currentAddress();
    return !address.isEmpty() && m_settings.getDictionary(keys::savedAddresses).contains(address);
}

QString SavedAddresses::currentAddress() const
{
    const QVariantMap current = m_settings.getDictionary(keys::currentInterfaceDict);
    return storedText(current, record::current).value_or(QString()).toLower();
}

} // namespace quillon
