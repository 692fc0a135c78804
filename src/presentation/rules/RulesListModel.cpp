// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/rules/RulesListModel.h"

#include "base/NotificationNames.h"
#include "devices/CurrentInterface.h"
#include "devices/DeviceTable.h"
#include "devices/MenuItem.h"
#include "networks/WiFiRecord.h"
#include "platform/NotificationCenter.h"
#include "rules/RuleQueries.h"
#include "store/graph/ManagedObjectContext.h"
#include "store/model/QuillonModel.h"

#include <algorithm>

namespace quillon {

using namespace Qt::StringLiterals;

RulesListModel::RulesListModel(const Collaborators &collaborators)
    : m_deps(collaborators)
{
}

void RulesListModel::toggleRulesPopover()
{
    if (m_state->popoverShown) {
        popoverWillClose();
        return;
    }
    filterRulesArrayController();
    m_state.update([](State &state) { state.popoverShown = true; });
}

void RulesListModel::popoverWillClose()
{
    m_state.update([](State &state) { state.popoverShown = false; });
}

void RulesListModel::filterRulesArrayController()
{
    const DeviceRecord current = m_deps.currentInterface.record();
    const QString device = m_deps.currentInterface.device();
    m_state.update([&](State &state) {
        state.filter = m_deps.queries.filterPredicateForDevice(device);
        if (current.isWifi()) {
            state.symbol = u"wifi"_s;
            state.title = WiFiRecord::stored(m_deps.settings).shownName();
        } else {
            state.symbol = u"network"_s;
            state.title = current.interface.value_or(QString()) + titleSeparator + device;
        }
        fillRows(state);
    });
}

void RulesListModel::reload()
{
    m_state.update([this](State &state) { fillRows(state); });
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

void RulesListModel::fillRows(State &state) const
{
    const Row selected = state.rows.value(state.selectedRow);
    state.rows.clear();
    const RuleList rules = m_deps.queries.rules(
        state.filter, {{model::rule::enabled, false}, {model::rule::name, true}});
    for (const Rule &rule : rules) {
        state.rows.append({rule.objID(), rule.name(), rule.enabled(), rule.active()});
    }
    const auto same = std::find_if(state.rows.begin(), state.rows.end(),
        [&selected](const Row &row) { return row.objID == selected.objID; });
    const qsizetype first = state.rows.isEmpty() ? -1 : 0;
    state.selectedRow = same == state.rows.end() ? first : same - state.rows.begin();
}

void RulesListModel::selectRow(qsizetype row)
{
    if (row >= 0 && row < m_state->rows.size()) {
        m_state.update([row](State &state) { state.selectedRow = row; });
    }
}

void RulesListModel::toggleRule(const QString &objID, bool enabled)
{
    const auto &rows = m_state->rows;
    const bool isListed = std::any_of(
        rows.begin(), rows.end(), [&objID](const Row &row) { return row.objID == objID; });
    if (isListed) {
        // The row may go while this is told.
        const QString rule = objID;
        m_deps.notifications.post(
            notifications::toggleCheckbox, this, {{u"objID"_s, rule}, {u"state"_s, enabled}});
    }
}

} // namespace quillon
