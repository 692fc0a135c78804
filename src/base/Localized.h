// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

namespace quillon {

/// The user's language for an English text, which is the key of the table. Unknown texts come back
/// as they are. Stored values stay English, except the two that are kept for display only (a
/// record's `localizedInterface`, the external address before it is known).
QString localized(const QString &english);
QString localized(const char *english);

/// `text` with its placeholders "%@" and "%d" replaced, in order, by `values`. A value that itself
/// contains one is not filled again; placeholders without a value stay.
QString filled(const QString &text, const QStringList &values);

} // namespace quillon
