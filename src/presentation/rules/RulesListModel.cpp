// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/rules/RulesListModel.h"

#include "base/NetworkKeys.h"
#include "base/NotificationNames.h"
#include "base/SettingsKeys.h"
#include "devices/CurrentInterface.h"
#include "devices/DeviceTable.h"
#include "devices/MenuItem.h"
#include "platform/NotificationCenter.h"
#include "platform/SettingsStore.h"
#include "rules/RuleQueries.h"
#include "store/graph/ManagedObjectContext.h"
#include "store/model/QuillonModel.h"

#include <algorithm>
#include <utility>

namespace quillon {

RulesListModel::RulesListModel(const Collaborators &collaborators)
    : m_with(collaborators)
{
}

void RulesListModel::filterRulesArrayController()
{
    const QVariantMap current = m_with.currentInterface.record();
    const QString device = m_with.currentInterface.device();
    State state = m_state;
    state.filter = m_with.queries.filterPredicateForDevice(device);
    if (isWifiRecord(current)) {
        const QVariantMap wifi = m_with.settings.getDictionary(keys::currentWiFiDict);
        state.symbol = QStringLiteral("wifi");
        state.title = wifi.value(wifirecord::name).toString();
    } else {
        state.symbol = QStringLiteral("network");
        state.title = current.value(record::interface).toString() + titleSeparator + device;
    }
    update(std::move(state));
}

void RulesListModel::reload()
{
    update(m_state);
}

void RulesListModel::reloadAfter(const ObjectsDidChange &change)
{
    const auto holdsRule = [](const ManagedObjectList &objects) {
        return std::any_of(objects.begin(), objects.end(),
            [](const ManagedObjectPtr &object) { return object->entity().name() == model::Rule; });
    };
    if (holdsRule(change.inserted) || holdsRule(change.updated) || holdsRule(change.deleted)) {
        reload();
    }
}

void RulesListModel::update(State state)
{
    const Row selected = m_state.rows.value(m_state.selectedRow);
    state.rows = rows(state.filter);
    const auto same = std::find_if(state.rows.begin(), state.rows.end(),
        [&selected](const Row &row) { return row.objID == selected.objID; });
    const qsizetype first = state.rows.isEmpty() ? -1 : 0;
    state.selectedRow = same == state.rows.end() ? first : same - state.rows.begin();
    if (state != m_state) {
        m_state = std::move(state);
        Q_EMIT changed();
    }
}

QList<RulesListModel::Row> RulesListModel::rows(const Predicate &filter) const
{
    const RuleList rules =
        m_with.queries.rules(filter, {{model::rule::enabled, false}, {model::rule::name, true}});
    QList<Row> rows;
    rows.reserve(rules.size());
    for (const Rule &rule : rules) {
        rows.append({rule.objID(), rule.name(), rule.enabled(), rule.active()});
    }
    return rows;
}

void RulesListModel::selectRow(qsizetype row)
{
    if (row >= 0 && row < m_state.rows.size() && row != m_state.selectedRow) {
        m_state.selectedRow = row;
        Q_EMIT changed();
    }
}

void RulesListModel::toggle(qsizetype row, bool enabled)
{
    if (row >= 0 && row < m_state.rows.size()) {
        m_with.notifications.post(notifications::toggleCheckbox, this,
            {{QStringLiteral("objID"), m_state.rows.at(row).objID},
                {QStringLiteral("state"), enabled}});
    }
}

} // namespace quillon
