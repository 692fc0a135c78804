// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QVariant>
#include <QVariantMap>

#include <optional>

namespace quillon {

// Data that crosses components is property-list data in a QVariant:
//   dictionary QVariantMap, array QVariantList, string QString, boolean bool, integer qlonglong,
//   real double, date QDateTime (UTC, whole seconds), data QByteArray; absent is an invalid
//   QVariant.
// It nests at most propertyListDepthLimit deep, and dates lie in the years 1 to 9999.

inline constexpr int propertyListDepthLimit = 100;

enum class PropertyListType
{
    Boolean,
    Integer,
    Real,
    String,
    Date,
    Data,
    Array,
    Dictionary,
};

/// The type of `value`, or none when it is not property-list data (or absent). int, uint and the
/// like count as Integer.
std::optional<PropertyListType> propertyListType(const QVariant &value);

/// True when `value` and everything nested in it is property-list data.
bool isPropertyList(const QVariant &value);

/// `value` with every integer as qlonglong and every number as qlonglong or double, dates in UTC
/// and without fractions of a second, and U+FFFD in place of each character that a property-list
/// file cannot carry (most control characters, lone surrogates: see XML 1.0, production Char),
/// nested ones and dictionary keys included, so that equal settings compare equal whoever wrote
/// them.
QVariant normalizedPropertyList(const QVariant &value);

/// The same type and the same value throughout, for normalized values. Unlike QVariant's own
/// comparison, true is not 1 and 1 is not 1.0, and a number that is none (NaN) equals itself.
bool isSamePropertyList(const QVariant &a, const QVariant &b);

} // namespace quillon
