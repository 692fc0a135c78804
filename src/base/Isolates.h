// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QString>

namespace quillon {

// A value in a sentence of a right-to-left language, such as an address, stands between two
// invisible marks: what is between them is read its own way and turns nothing round that is
// outside. The tables of texts hold the marks around their placeholders.

inline constexpr QChar isolateBegin = u'\u2068';
inline constexpr QChar isolateEnd = u'\u2069';

/// Where isolates begin that do not end, and end that have not begun.
QList<qsizetype> halfIsolates(const QString &text);

QString isolated(const QString &value);

/// The text as it is stored, copied and compared.
QString withoutIsolates(QString text);

} // namespace quillon
