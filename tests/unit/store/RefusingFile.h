// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <SQLiteCpp/SQLiteCpp.h>
#include <string>
#include <vector>

namespace quillon::test {

/// While it lives, the records file at `path` refuses every change ("refused by the file") and can
/// be read.
class RefusingFile
{
public:
    explicit RefusingFile(const QString &path)
        : m_database(path.toStdString(), SQLite::OPEN_READWRITE)
    {
        SQLite::Statement tables(m_database, "SELECT name FROM sqlite_master WHERE type = 'table' "
                                             "AND name NOT LIKE 'sqlite!_%' ESCAPE '!'");
        std::vector<std::string> names;
        while (tables.executeStep()) {
            names.push_back(tables.getColumn(0).getString());
        }
        tables.reset();
        for (const std::string &table : names) {
            for (const std::string change : {"INSERT", "UPDATE", "DELETE"}) {
                const std::string trigger = "\"refuse " + change + " " + table + "\"";
                m_database.exec("CREATE TRIGGER " + trigger + " BEFORE " + change + " ON \"" +
                                table + "\" BEGIN SELECT RAISE(ABORT, 'refused by the file'); END");
                m_triggers.push_back(trigger);
            }
        }
    }
    ~RefusingFile()
    {
        for (const std::string &trigger : m_triggers) {
            m_database.tryExec("DROP TRIGGER " + trigger);
        }
    }
    RefusingFile(const RefusingFile &) = delete;
    RefusingFile &operator=(const RefusingFile &) = delete;

private:
    SQLite::Database m_database;
    std::vector<std::string> m_triggers;
};

} // namespace quillon::test
