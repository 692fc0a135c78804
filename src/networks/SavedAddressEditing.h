// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "networks/SavedEntries.h"

#include <QObject>

#include <optional>

namespace quillon {

class Scheduler;
class SettingsStore;

/// The saved address whose popover is open, and what the popover can do to it. The entry is a copy:
/// the stored list changes by these operations only, each of which does nothing while no address is
/// edited. Main thread.
class SavedAddressEditing : public QObject
{
    Q_OBJECT

public:
    SavedAddressEditing(SettingsStore &settings, Scheduler &scheduler);

    /// None while no popover is open.
    const std::optional<SavedEntry> &editingAddressDict() const { return m_editingAddressDict; }
    void beginEditing(const SavedEntry &entry);
    void endEditing();

    /// The name was edited to `typed`; a name that another address has gets a suffix.
    void changeSavedAddressName(const QString &typed);
    /// None when it was not saved any more.
    std::optional<RemovedEntry> removeSavedAddress();

Q_SIGNALS:
    /// In the turn after a rename or a removal: the popover has done its work.
    void editingFinished();

private:
    void finishInNextTurn();

    SettingsStore &m_settings;
    Scheduler &m_scheduler;
    std::optional<SavedEntry> m_editingAddressDict;
};

} // namespace quillon
