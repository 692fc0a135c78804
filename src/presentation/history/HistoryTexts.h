// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "history/Connection.h"
#include "history/HistoryColumn.h"

#include <QList>

namespace quillon {

QString titleOf(HistoryColumn column);

/// A line of the search field's menu.
struct HistorySearchType
{
    QString identifier; ///< what the setting `historySearchType` holds
    QString title;      ///< also what stands in the empty field

    bool operator==(const HistorySearchType &) const = default;
};
QList<HistorySearchType> historySearchTypes();

/// A text within a sentence, which stays one however long that is: at most 60 characters.
QString shortened(const QString &text);
/// What happened, in a sentence; `address` is the record's as it is displayed.
QString sentenceOf(const Connection &record, const QString &address);

/// "1 record", "212 records"; numbers as the user's locale writes them.
QString recordsText(qint64 count);
QString recordsText(qint64 count, qint64 of);

} // namespace quillon
