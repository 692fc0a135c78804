// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "networks/SavedEntries.h"

#include "base/PropertyList.h"
#include "base/UniqueName.h"
#include "platform/SettingsStore.h"

#include <utility>

namespace quillon {

SavedEntries savedEntries(const SettingsStore &settings, const QString &list)
{
    const auto stored = settings.getDictionary(list);
    SavedEntries entries;
    for (auto entry = stored.cbegin(); entry != stored.cend(); ++entry) {
        if (propertyListType(*entry) == PropertyListType::Dictionary) {
            entries.insert(entries.cend(), entry.key(), SavedEntry::fromPropertyList(*entry));
        }
    }
    return entries;
}

bool isSaved(const SettingsStore &settings, const QString &list, const QString &key)
{
    return settings.getDictionary(list).contains(key);
}

void saveEntry(
    SettingsStore &settings, const QString &list, const QString &key, const SavedEntry &entry)
{
    auto stored = settings.getDictionary(list);
    stored[key] = entry.toPropertyList();
    settings.set(list, stored);
    settings.synchronize();
}

std::optional<RemovedEntry> removeEntry(
    SettingsStore &settings, const QString &list, const QString &key)
{
    auto stored = settings.getDictionary(list);
    const bool isThere = stored.contains(key);
    RemovedEntry removed{list, key, stored.take(key)};
    settings.set(list, stored);
    settings.synchronize();
    return isThere ? std::optional(std::move(removed)) : std::nullopt;
}

bool restoreEntry(SettingsStore &settings, const RemovedEntry &removed)
{
    auto stored = settings.getDictionary(removed.list);
    if (stored.contains(removed.key)) {
        return false;
    }
    stored[removed.key] = removed.stored;
    settings.set(removed.list, stored);
    settings.synchronize();
    return true;
}

QStringList fieldOfEach(const SavedEntries &entries, SavedField field)
{
    QStringList texts;
    for (const SavedEntry &entry : entries) {
        if (const auto &text = entry.*field) {
            texts.append(*text);
        }
    }
    return texts;
}

std::optional<QString> fieldOfNamed(
    const SavedEntries &entries, const QString &name, SavedField field)
{
    std::optional<QString> found;
    for (const SavedEntry &entry : entries) {
        if (entry.name == name && entry.*field) {
            found = entry.*field;
        }
    }
    return found;
}

QString distinctName(
    SavedEntries entries, const QString &key, const QString &typed, const QString &fallback)
{
    entries.remove(key);
    const QStringList others = fieldOfEach(entries, &SavedEntry::name);
    if (!others.contains(typed)) {
        return typed;
    }
    const QString name = getOriginalNameFromArray(typed, others);
    return name.isEmpty() ? fallback : name;
}

} // namespace quillon
