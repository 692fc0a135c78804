// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "networks/SavedEntries.h"

#include "base/NetworkKeys.h"
#include "base/StoredText.h"
#include "base/UniqueName.h"

namespace quillon {

QStringList fieldOfEach(const QVariantMap &list, const QString &field)
{
    QStringList fields;
    for (const QVariant &entry : list) {
        if (const auto text = storedText(entry.toMap(), field)) {
            fields.append(*text);
        }
    }
    return fields;
}

std::optional<QString> fieldOfNamed(
    const QVariantMap &list, const QString &name, const QString &field)
{
    std::optional<QString> found;
    for (const QVariant &value : list) {
        const QVariantMap entry = value.toMap();
        if (storedText(entry, savedentry::name) != name) {
            continue;
        }
        if (const auto text = storedText(entry, field)) {
            found = text;
        }
    }
    return found;
}

QStringList namesOfOthers(const QVariantMap &list, const QString &key)
{
    QVariantMap others = list;
    others.remove(key);
    return fieldOfEach(others, savedentry::name);
}

QString distinctName(const QString &typed, const QStringList &others, const QString &fallback)
{
    if (!others.contains(typed)) {
        return typed;
    }
    const QString name = getOriginalNameFromArray(typed, others);
    return name.isEmpty() ? fallback : name;
}

} // namespace quillon
