// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/HistorySearch.h"

namespace quillon {

std::optional<Predicate> historyCondition(const QString &type, const QString &text)
{
    if (text.isEmpty()) {
        return std::nullopt;
    }
    if (type != searchAll) {
        return Predicate::contains(type, text);
    }
    using namespace model::connection;
    QList<Predicate> parts;
    for (const QString &attribute :
        {device.name, interface.name, address.name, ssid.name, bssid.name, notes.name}) {
        parts << Predicate::contains(attribute, text);
    }
    return Predicate::any(parts);
}

FetchRequest historyRequest(
    const std::optional<Predicate> &condition, HistoryColumn column, bool ascending)
{
    const bool isByDate = column == HistoryColumn::Date;
    // Addresses are shown in letters of one case, whichever their records have.
    FetchRequest request{
        model::Connection, condition, {{attributeOf(column), ascending, !isByDate}}};
    if (isByDate) {
        request.latestFirst = !ascending;
    } else {
        request.order << SortDescriptor{model::connection::date, false};
        request.latestFirst = true;
    }
    return request;
}

} // namespace quillon
