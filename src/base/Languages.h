// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLocale>
#include <QStringList>
#include <QTranslator>

namespace quillon {

/// As long as it lives, texts are shown in the first of the user's languages that the program
/// speaks, and Qt's own texts with them, where the system has those. Make it before the first text
/// is asked for. Main thread.
class UserLanguage
{
public:
    /// `wanted` are languages as QLocale::uiLanguages() names them ("de-AT"), the preferred one
    /// first. Without a table for any of them, or where English comes before, the texts are
    /// English.
    explicit UserLanguage(const QStringList &wanted);
    ~UserLanguage();
    UserLanguage(const UserLanguage &) = delete;
    UserLanguage &operator=(const UserLanguage &) = delete;

    /// As the table's file has it: "de", "pt_BR"; "en" without a table.
    const QString &name() const { return m_name; }
    /// Whether its windows are to be mirrored. Of English only the system knows.
    bool isRightToLeft() const;

private:
    const QString m_name;
    const QString m_before;
    QTranslator m_ofQt;
    QTranslator m_own;
};

/// In whose words dates are written, which stand within sentences: the user's locale of dates
/// where that is of the texts' language, else the language's own. How hours are counted stays a
/// wish of the user's locale: pass QLocale()'s format to it. Main thread.
QLocale textLocale();

/// Whether `text` is what `english` is called in any language of the program, English included: a
/// file may have been written while the user had another language. Any thread.
bool isInAnyLanguage(const QString &text, const char *english);

} // namespace quillon
