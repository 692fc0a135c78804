// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "store/model/Entity.h"

#include <QByteArray>
#include <QVariantList>

namespace quillon {

// The history as comma-separated values (RFC 4180), in UTF-8: a row of names, then a row for each
// record. docs/records.md says how it is read back.

/// As it stands in a field. What a spreadsheet would take for a formula, at its beginning or behind
/// what could end a field, and an apostrophe there, gets an apostrophe before it: reading back
/// takes that one away.
QByteArray csvField(const QString &field);

QByteArray csvHeader();
/// `values` are those of `entity`, the history's. The date is local time with its offset from UTC.
QByteArray csvRow(const Entity &entity, const QVariantList &values);

} // namespace quillon
