// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "store/graph/ManagedObjectContext.h"
#include "store/model/QuillonModel.h"

#include <SQLiteCpp/SQLiteCpp.h>

namespace quillon::test {

using OpenedContext = Result<std::unique_ptr<ManagedObjectContext>>;

inline OpenedContext openedContext(const QString &path, Scheduler &scheduler)
{
    return ManagedObjectContext::open(quillonModel(), path, scheduler);
}

/// SQLite's own verdict on the file: "ok", or what is wrong.
inline std::string integrityOf(const QString &path)
{
    try {
        const SQLite::Database database(path.toStdString(), SQLite::OPEN_READONLY);
        SQLite::Statement check(database, "PRAGMA integrity_check");
        return check.executeStep() ? check.getColumn(0).getString() : "no answer";
    } catch (const SQLite::Exception &error) {
        return error.what();
    }
}

} // namespace quillon::test
