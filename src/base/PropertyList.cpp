// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/PropertyList.h"

#include <QDateTime>
#include <QMetaType>

#include <algorithm>
#include <cmath>

namespace quillon {

namespace {

bool isStorableDate(const QDateTime &date)
{
    const int year = date.toUTC().date().year();
    return date.isValid() && year >= 1 && year <= 9999;
}

bool isPropertyListWithin(const QVariant &value, int depth)
{
    const auto type = propertyListType(value);
    if (type != PropertyListType::Array && type != PropertyListType::Dictionary) {
        return type.has_value();
    }
    if (depth == 0) {
        return false;
    }
    const auto isItem = [depth](
                            const QVariant &item) { return isPropertyListWithin(item, depth - 1); };
    if (type == PropertyListType::Array) {
        const QVariantList items = value.toList();
        return std::all_of(items.begin(), items.end(), isItem);
    }
    const QVariantMap map = value.toMap();
    return std::all_of(map.begin(), map.end(), isItem);
}

/// Whether XML 1.0 has the UTF-16 code unit at `index`, alone or as a half of a pair.
bool isXmlCharacter(const QString &text, qsizetype index)
{
    const QChar unit = text.at(index);
    if (unit.isHighSurrogate()) {
        return index + 1 < text.size() && text.at(index + 1).isLowSurrogate();
    }
    if (unit.isLowSurrogate()) {
        return index > 0 && text.at(index - 1).isHighSurrogate();
    }
    const char16_t code = unit.unicode();
    return code >= 0x20 ? code < 0xFFFE : code == u'\t' || code == u'\n' || code == u'\r';
}

bool isCarriable(const QString &text)
{
    for (qsizetype index = 0; index < text.size(); ++index) {
        if (!isXmlCharacter(text, index)) {
            return false;
        }
    }
    return true;
}

QString carriable(QString text)
{
    for (qsizetype index = 0; index < text.size(); ++index) {
        if (!isXmlCharacter(text, index)) {
            text[index] = QChar::ReplacementCharacter;
        }
    }
    return text;
}

/// Whether normalizing would leave `value` as it is.
bool isNormalized(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::Bool:
    case QMetaType::LongLong:
    case QMetaType::Double:
    case QMetaType::QByteArray:
        return true;
    case QMetaType::QString:
        return isCarriable(*static_cast<const QString *>(value.constData()));
    case QMetaType::QVariantList: {
        const auto &items = *static_cast<const QVariantList *>(value.constData());
        return std::all_of(items.begin(), items.end(), isNormalized);
    }
    case QMetaType::QVariantMap: {
        const auto &map = *static_cast<const QVariantMap *>(value.constData());
        return std::all_of(map.keyBegin(), map.keyEnd(), isCarriable) &&
               std::all_of(map.begin(), map.end(), isNormalized);
    }
    }
    return false;
}

} // namespace

std::optional<PropertyListType> propertyListType(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::Bool:
        return PropertyListType::Boolean;
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::Long:
    case QMetaType::LongLong:
        return PropertyListType::Integer;
    case QMetaType::Float:
    case QMetaType::Double:
        return PropertyListType::Real;
    case QMetaType::QString:
        return PropertyListType::String;
    case QMetaType::QDateTime:
        return isStorableDate(value.toDateTime()) ? std::optional(PropertyListType::Date)
                                                  : std::nullopt;
    case QMetaType::QByteArray:
        return PropertyListType::Data;
    case QMetaType::QStringList:
    case QMetaType::QVariantList:
        return PropertyListType::Array;
    case QMetaType::QVariantMap:
        return PropertyListType::Dictionary;
    }
    return std::nullopt;
}

bool isPropertyList(const QVariant &value)
{
    return isPropertyListWithin(value, propertyListDepthLimit);
}

QVariant normalizedPropertyList(const QVariant &value)
{
    // What is normal already stays shared with its other copies, which keeps writing and comparing
    // large dictionaries cheap.
    if (isNormalized(value)) {
        return value;
    }
    const auto type = propertyListType(value);
    if (type == PropertyListType::Integer) {
        return value.toLongLong();
    }
    if (type == PropertyListType::Real) {
        return value.toDouble();
    }
    if (type == PropertyListType::String) {
        return carriable(value.toString());
    }
    if (type == PropertyListType::Date) {
        // Towards the past, so that dates before 1970 are treated alike.
        const auto milliseconds = value.toDateTime().toMSecsSinceEpoch();
        const auto fraction = ((milliseconds % 1000) + 1000) % 1000;
        return QDateTime::fromMSecsSinceEpoch(milliseconds - fraction, Qt::UTC);
    }
    if (type == PropertyListType::Array) {
        QVariantList items = value.toList();
        for (QVariant &item : items) {
            item = normalizedPropertyList(item);
        }
        return items;
    }
    if (type == PropertyListType::Dictionary) {
        const QVariantMap map = value.toMap();
        QVariantMap result;
        for (auto entry = map.begin(); entry != map.end(); ++entry) {
            result.insert(carriable(entry.key()), normalizedPropertyList(entry.value()));
        }
        return result;
    }
    return value;
}

bool isSamePropertyList(const QVariant &a, const QVariant &b)
{
    const auto type = propertyListType(a);
    if (a.isValid() != b.isValid() || type != propertyListType(b)) {
        return false;
    }
    if (type == PropertyListType::Real) {
        const double first = a.toDouble();
        const double second = b.toDouble();
        return first == second || (std::isnan(first) && std::isnan(second));
    }
    if (type == PropertyListType::Array) {
        const QVariantList first = a.toList();
        const QVariantList second = b.toList();
        return std::equal(
            first.begin(), first.end(), second.begin(), second.end(), isSamePropertyList);
    }
    if (type == PropertyListType::Dictionary) {
        const QVariantMap first = a.toMap();
        const QVariantMap second = b.toMap();
        if (first.isSharedWith(second)) {
            return true;
        }
        const auto end = first.keyValueEnd();
        return std::equal(first.keyValueBegin(), end, second.keyValueBegin(), second.keyValueEnd(),
            [](const auto &x, const auto &y) {
                return x.first == y.first && isSamePropertyList(x.second, y.second);
            });
    }
    return a == b;
}

} // namespace quillon
