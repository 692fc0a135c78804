// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "history/HistoryColumn.h"
#include "store/model/FetchRequest.h"

namespace quillon {

/// The search type that looks in every text of a record; the others are attributes.
inline const QString searchAll = QStringLiteral("all");

/// What a record has to satisfy to be found: that it contains `text`, letter for letter, in the
/// attribute `type`, or in any for searchAll. None, which all records satisfy, for an empty text.
std::optional<Predicate> historyCondition(const QString &type, const QString &text);

/// The records that satisfy `condition`, by one column; those that are alike in it newest first.
FetchRequest historyRequest(
    const std::optional<Predicate> &condition, HistoryColumn column, bool ascending);

} // namespace quillon
