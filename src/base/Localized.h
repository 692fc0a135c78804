// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

namespace quillon {

/// The one context of all texts in the tables (translations/).
inline constexpr const char *textContext = "Quillon";

/// The user's language for an English text, which is the key of the table. Unknown texts come back
/// as they are. A text that stands elsewhere than in the brackets is marked there with
/// QT_TRANSLATE_NOOP("Quillon", …): tools/check-translations finds it by that. Stored values stay
/// English, except those that are stored as shown (isInAnyLanguage in base/Languages.h). Any
/// thread.
QString localized(const QString &english);
QString localized(const char *english);

/// What `count` makes of a sentence. `many` is the English, and the key, for all numbers but 1, for
/// which it is `one`; every other language has as many forms in its table as it needs. "%n" is the
/// number in plain digits, "%Ln" as the locale writes it; the other placeholders stay. In a table
/// of texts, `many` is marked with QT_TRANSLATE_N_NOOP("Quillon", …). Any thread.
QString localized(const char *one, const char *many, qint64 count);

/// `text` with its placeholders "%@" and "%d" replaced, in order, by `values`. A value that itself
/// contains one is not filled again; placeholders without a value stay.
QString filled(const QString &text, const QStringList &values);

} // namespace quillon
