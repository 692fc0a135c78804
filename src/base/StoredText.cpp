// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/StoredText.h"

#include "base/PropertyList.h"

namespace quillon {

std::optional<QString> storedText(const QVariantMap &dictionary, const QString &key)
{
    const QVariant value = dictionary.value(key);
    if (propertyListType(value) != PropertyListType::String) {
        return std::nullopt;
    }
    return value.toString();
}

} // namespace quillon
