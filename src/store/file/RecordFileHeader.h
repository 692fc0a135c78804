// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "store/model/RecordFileError.h"

namespace SQLite {
class Database;
} // namespace SQLite

namespace quillon {

// Whose a file is. What refuses throws RefusedFile (store/file/RecordFileOpening.h).

/// "Quln", in the part of a database's header that SQLite leaves to programs.
inline constexpr int applicationId = 0x51756c6e;

[[noreturn]] void refuse(RecordFileError code, const QString &message);
[[noreturn]] void refuseForeign(const QString &path);
[[noreturn]] void refuseNewer(const QString &path, int version, int knownVersion);

/// Refuses what is no database, not ours, or of a version above `knownVersion`, before SQLite looks
/// at log and journal: to undo what another program left half done is not up to us. An empty file
/// passes.
void refuseByHeader(SQLite::Database &database, const QString &path, int knownVersion);

} // namespace quillon
