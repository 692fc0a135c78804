// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "networks/SavedAddressEditing.h"

#include "base/NetworkKeys.h"
#include "base/SettingsKeys.h"
#include "base/StoredText.h"
#include "networks/SavedEntries.h"
#include "platform/Scheduler.h"
#include "platform/SettingsStore.h"

#include <QPointer>

namespace quillon {

SavedAddressEditing::SavedAddressEditing(SettingsStore &settings, Scheduler &scheduler)
    : m_settings(settings)
    , m_scheduler(scheduler)
{
}

void SavedAddressEditing::beginEditing(const QVariantMap &entry)
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
    QVariantMap entry = *m_editingAddressDict;
    if (storedText(entry, savedentry::name) != typed) {
        const QString address = entry.value(savedentry::address).toString();
        QVariantMap list = m_settings.getDictionary(keys::savedAddresses);
        entry[savedentry::name] = distinctName(typed, namesOfOthers(list, address), address);
        m_editingAddressDict = entry;
        list[address] = entry;
        m_settings.set(keys::savedAddresses, list);
        m_settings.synchronize();
    }
    finishInNextTurn();
}

void SavedAddressEditing::removeSavedAddress()
{
    if (!m_editingAddressDict) {
        return;
    }
    QVariantMap list = m_settings.getDictionary(keys::savedAddresses);
    list.remove(m_editingAddressDict->value(savedentry::address).toString());
    m_settings.set(keys::savedAddresses, list);
    m_settings.synchronize();
    m_editingAddressDict.reset();
    finishInNextTurn();
}

void SavedAddressEditing::finishInNextTurn()
{
    // The name field handles its own event first.
    m_scheduler.onMain([self = QPointer(this)] {
        if (auto *const that = self.data()) {
            Q_EMIT that->editingFinished();
        }
    });
}

} // namespace quillon
