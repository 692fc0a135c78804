// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>

#include <string>

namespace quillon {

/// How a record file came to be what it is: step n, an SQL script, makes version n of version n
/// - 1. A step that a program in use has run is never changed; a new version is a step more.
struct RecordSchema
{
    QList<std::string> steps;

    int version() const { return static_cast<int>(steps.size()); }
};

/// One table for each entity: `pk` in the order of creation, `uuid` (16 bytes, RFC 4122) the
/// identity, and a column for each attribute. Dates are milliseconds since 1970 UTC, Booleans 0
/// or 1.
const RecordSchema &quillonSchema();

} // namespace quillon
