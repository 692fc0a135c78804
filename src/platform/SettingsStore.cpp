// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/SettingsStore.h"

namespace quillon {

bool SettingsStore::getBool(const QString &key) const
{
    const QVariant value = get(key);
    const auto type = propertyListType(value);
    return (type == PropertyListType::Boolean || type == PropertyListType::Integer) &&
           value.toBool();
}

qlonglong SettingsStore::getInteger(const QString &key) const
{
    const QVariant value = get(key);
    const auto type = propertyListType(value);
    const bool number = type == PropertyListType::Integer || type == PropertyListType::Boolean ||
                        type == PropertyListType::Real;
    return number ? value.toLongLong() : 0;
}

QString SettingsStore::getString(const QString &key) const
{
    const QVariant value = get(key);
    return propertyListType(value) == PropertyListType::String ? value.toString() : QString();
}

QVariantMap SettingsStore::getDictionary(const QString &key) const
{
    const QVariant value = get(key);
    return propertyListType(value) == PropertyListType::Dictionary ? value.toMap() : QVariantMap();
}

} // namespace quillon
