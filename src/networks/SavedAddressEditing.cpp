// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "networks/SavedAddressEditing.h"

#include "base/SettingsKeys.h"
#include "platform/Scheduler.h"

namespace quillon {

SavedAddressEditing::SavedAddressEditing(SettingsStore &settings, Scheduler &scheduler)
    : m_settings(settings)
    , m_scheduler(scheduler)
{
}

void SavedAddressEditing::beginEditing(const SavedEntry &entry)
{
    m_editingAddressDict = entry;
}

void SavedAddressEditing::endEditing()
{
    m_editingAddressDict.reset();
}

void SavedAddressEditing::changeSavedAddressName(const QString &typed)
{
    if (!m_editingAddressDict) {
        return;
    }
    SavedEntry entry = *m_editingAddressDict;
    if (entry.name != typed) {
        const QString address = entry.address.value_or(QString());
        entry.name =
            distinctName(savedEntries(m_settings, keys::savedAddresses), address, typed, address);
        m_editingAddressDict = entry;
        saveEntry(m_settings, keys::savedAddresses, address, entry);
    }
    finishInNextTurn();
}

std::optional<RemovedEntry> SavedAddressEditing::removeSavedAddress()
{
    if (!m_editingAddressDict) {
        return std::nullopt;
    }
    const QString address = m_editingAddressDict->address.value_or(QString());
    auto removed = removeEntry(m_settings, keys::savedAddresses, address);
    m_editingAddressDict.reset();
    finishInNextTurn();
    return removed;
}

void SavedAddressEditing::finishInNextTurn()
{
    // The name field handles its own event first.
    m_scheduler.onMain(this, [this] { Q_EMIT editingFinished(); });
}

} // namespace quillon
