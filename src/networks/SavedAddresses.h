// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "networks/SavedEntries.h"

namespace quillon {

class SettingsStore;

/// The "address" of the saved address whose "name" is exactly `name`; of several the last in the
/// list's order. For an unknown name the user's word for "Random Address", as that is the rule
/// editor's choice of no particular address. Reads the list afresh.
QString addressForAddressName(const SettingsStore &settings, const QString &name);

/// The list `savedAddresses` (address to entry), as far as it follows the current address of the
/// selected interface. Main thread.
class SavedAddresses
{
public:
    explicit SavedAddresses(SettingsStore &settings);

    /// Saves the address, in lower case and as its own name. One that is saved already is left as
    /// it is; without an address nothing happens.
    void addCurrentAddressToSavedList();
    /// None when it is not saved.
    std::optional<RemovedEntry> removeCurrentAddressFromSavedList();
    bool isCurrentAddressSaved() const;
    /// In lower case, as it would be saved; "" for none.
    QString currentAddress() const;

private:
    SettingsStore &m_settings;
};

} // namespace quillon
