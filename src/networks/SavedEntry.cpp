// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "networks/SavedEntry.h"

#include "base/NetworkKeys.h"
#include "base/StoredText.h"

namespace quillon {

namespace {

struct Field
{
    const QString &key;
    std::optional<QString> SavedEntry::*text;
};

const Field fields[] = {
    {savedentry::name, &SavedEntry::name},
    {savedentry::SSID, &SavedEntry::ssid},
    {savedentry::BSSID, &SavedEntry::bssid},
    {savedentry::address, &SavedEntry::address},
};

} // namespace

SavedEntry SavedEntry::ofAddress(const QString &address)
{
    return {.name = address, .address = address};
}

SavedEntry SavedEntry::ofNetwork(const QString &bssid, const QString &ssid)
{
    return {.name = ssid, .ssid = ssid, .bssid = bssid.toLower()};
}

SavedEntry SavedEntry::fromPropertyList(const QVariant &stored)
{
    SavedEntry entry;
    entry.other = stored.toMap();
    for (const Field &field : fields) {
        entry.*field.text = storedText(entry.other, field.key);
        if (entry.*field.text) {
            entry.other.remove(field.key);
        }
    }
    return entry;
}

QVariantMap SavedEntry::toPropertyList() const
{
    auto stored = other;
    for (const Field &field : fields) {
        if (const auto &text = this->*field.text) {
            stored[field.key] = *text;
        }
    }
    return stored;
}

bool SavedEntry::isSsidDefined() const
{
    return other.contains(savedentry::ssidDefined);
}

void SavedEntry::setSsidDefined(bool defined)
{
    other.remove(savedentry::ssidDefined);
    if (defined) {
        other[savedentry::ssidDefined] = true;
    }
}

} // namespace quillon
