// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sync/Stamp.h"

#include <QByteArray>
#include <QString>
#include <QVariant>

#include <compare>
#include <optional>
#include <variant>

namespace quillon {

/// Milliseconds since 1970 UTC.
struct SyncDate
{
    qint64 milliseconds = 0;

    auto operator<=>(const SyncDate &) const = default;
};

/// A dictionary or an array of a setting, in the one spelling that equal ones have.
struct SyncTree
{
    QByteArray bytes;

    bool operator==(const SyncTree &) const = default;
    friend bool operator<(const SyncTree &a, const SyncTree &b) { return a.bytes < b.bytes; }
};

/// What an attribute or a setting holds; the first alternative is nothing. The values have an order
/// that is the same on every computer and means nothing.
using SyncValue =
    std::variant<std::monostate, bool, qint64, double, QString, SyncDate, QByteArray, SyncTree>;

/// No single value of an account is longer, in bytes as it is written: a record of as many of them
/// as it has attributes still fits into a file.
inline constexpr qsizetype longestSyncValue = qsizetype{1} << 20;

/// An attribute's value as Entity::converted() gives it, or property-list data (an invalid QVariant
/// is nothing). None for anything else, for what is longer than longestSyncValue, and for a number
/// that is none.
std::optional<SyncValue> syncValue(const QVariant &value);
/// The way back; none for a tree that was not made by syncValue().
std::optional<QVariant> fromSyncValue(const SyncValue &value);

/// What was written last: of two writes the one with the later stamp holds, of two with one stamp
/// (a computer that was set back can make them) the greater value.
struct SyncRegister
{
    SyncValue value;
    Stamp stamp;

    bool operator==(const SyncRegister &) const = default;
};

/// Whether `into` changed.
bool join(SyncRegister &into, const SyncRegister &other);

} // namespace quillon
