// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "networks/SavedEntry.h"

#include <QMap>
#include <QStringList>

namespace quillon {

class SettingsStore;

// The two saved lists are dictionaries of entries, stored whole under the settings key `list`. They
// may have been edited by hand or come from another computer: what is no entry is passed over,
// never removed.

using SavedEntries = QMap<QString, SavedEntry>;
using SavedField = std::optional<QString> SavedEntry::*;

SavedEntries savedEntries(const SettingsStore &settings, const QString &list);
/// Whether anything is saved under `key`.
bool isSaved(const SettingsStore &settings, const QString &list, const QString &key);

/// What was taken out of a list, as it was stored.
struct RemovedEntry
{
    QString list;
    QString key;
    QVariant stored;

    bool operator==(const RemovedEntry &) const = default;
};

// These write the list and flush.

void saveEntry(
    SettingsStore &settings, const QString &list, const QString &key, const SavedEntry &entry);
/// None when nothing was saved under `key`; the list is written all the same.
std::optional<RemovedEntry> removeEntry(
    SettingsStore &settings, const QString &list, const QString &key);
/// Puts it back exactly as it was. False, and nothing is written, when something is saved under its
/// key again.
bool restoreEntry(SettingsStore &settings, const RemovedEntry &removed);

/// The `field` of every entry that has one, in the list's key order.
QStringList fieldOfEach(const SavedEntries &entries, SavedField field);
/// The `field` of the entry whose name is exactly `name`. Where several share the name, the last
/// one in the list's key order answers.
std::optional<QString> fieldOfNamed(
    const SavedEntries &entries, const QString &name, SavedField field);
/// The name that the entry under `key` gets when the user typed `typed`: distinct from those of the
/// other entries, else `fallback`.
QString distinctName(
    SavedEntries entries, const QString &key, const QString &typed, const QString &fallback);

} // namespace quillon
