// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QVariant>

namespace quillon {

/// `value` as conditions and orders compare it: numbers and Booleans as qlonglong, texts as
/// QString, moments as QDateTime (UTC). Invalid when it holds nothing, or something that no
/// attribute holds.
QVariant comparableValue(const QVariant &value);

/// Below, at or above 0, as SQLite sorts: nothing before everything, texts by code points.
int compareValues(const QVariant &left, const QVariant &right);

} // namespace quillon
