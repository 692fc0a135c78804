// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/rules/RulesTableModel.h"

#include "base/SettingsKeys.h"
#include "devices/DeviceTable.h"
#include "rules/RuleQueries.h"
#include "rules/RuleReason.h"
#include "store/graph/ManagedObjectContext.h"
#include "store/model/QuillonModel.h"

#include <algorithm>

namespace quillon {

namespace {

using Row = RulesTableModel::Row;

qsizetype placeIn(const QList<Row> &rows, const QString &objID)
{
    const auto found = std::ranges::find(rows, objID, &Row::objID);
    return found == rows.end() ? -1 : found - rows.begin();
}

} // namespace

RulesTableModel::RulesTableModel(const Collaborators &collaborators)
    : m_deps(collaborators)
{
    for (const QString &key : {keys::savedNetworks, keys::savedAddresses, keys::deviceDict}) {
        m_observed.push_back(m_deps.settings.addObserver(key, [this](const auto &) {
            if (m_hasBegun) {
                m_state.update([this](State &state) {
                    state.names = RuleNames::of(m_deps.settings, m_deps.devices);
                });
            }
        }));
    }
}

RulesTableModel::~RulesTableModel()
{
    for (const auto token : m_observed) {
        m_deps.settings.removeObserver(token);
    }
}

void RulesTableModel::begin()
{
    if (!m_hasBegun) {
        m_hasBegun = true;
        reload();
    }
}

QString RulesTableModel::sentenceOf(qsizetype row) const
{
    return row >= 0 && row < state().rows.size()
               ? ruleSentence(state().rows.at(row).values, state().names)
               : QString();
}

QString RulesTableModel::reasonOf(qsizetype row) const
{
    const Rule rule = m_deps.queries.ruleWithID(state().rows.value(row).objID);
    return ruleReason(rule, m_deps.queries, m_deps.devices, m_deps.settings);
}

qsizetype RulesTableModel::placeOf(const QString &objID) const
{
    return placeIn(state().rows, objID);
}

QStringList RulesTableModel::selectedIDs() const
{
    QStringList selected;
    for (const qsizetype row : state().selectedRows) {
        selected << state().rows.at(row).objID;
    }
    return selected;
}

void RulesTableModel::selectRows(const QList<qsizetype> &rows, std::optional<qsizetype> last)
{
    std::vector<qsizetype> selected;
    std::ranges::copy_if(rows, std::back_inserter(selected),
        [this](qsizetype row) { return row >= 0 && row < state().rows.size(); });
    std::ranges::sort(selected);
    const qsizetype lowest = selected.empty() ? -1 : selected.back();
    m_state.update([&](State &state) {
        state.lastSelected = last && std::ranges::binary_search(selected, *last) ? *last : lowest;
        state.selectedRows = selected;
    });
}

void RulesTableModel::selectRow(qsizetype row)
{
    selectRows({std::min(row, state().rows.size() - 1)});
}

void RulesTableModel::selectRules(const QStringList &objIDs)
{
    QList<qsizetype> rows;
    for (const QString &objID : objIDs) {
        rows << placeOf(objID);
    }
    selectRows(rows);
}

void RulesTableModel::setFresh(const QStringList &objIDs, const QString &after)
{
    m_fresh = objIDs;
    m_freshAfter = after;
}

void RulesTableModel::reload()
{
    if (!m_hasBegun) {
        return;
    }
    const QStringList selected = selectedIDs();
    const QString last = state().rows.value(state().lastSelected).objID;
    const QList<Row> rows = fetchRows();
    m_state.update([&](State &state) {
        const qsizetype before = state.selectedRows.empty() ? -1 : state.selectedRows.front();
        state.rows = rows;
        state.names = RuleNames::of(m_deps.settings, m_deps.devices);
        state.selectedRows.clear();
        for (qsizetype row = 0; row < rows.size() && !selected.isEmpty(); ++row) {
            if (selected.contains(rows.at(row).objID)) {
                state.selectedRows.push_back(row);
            }
        }
        if (state.selectedRows.empty() && before >= 0 && !rows.isEmpty()) {
            state.selectedRows.push_back(std::min(before, rows.size() - 1));
        }
        const qsizetype lowest = state.selectedRows.empty() ? -1 : state.selectedRows.back();
        const qsizetype place = last.isEmpty() ? -1 : placeIn(rows, last);
        state.lastSelected = std::ranges::binary_search(state.selectedRows, place) ? place : lowest;
    });
    Q_EMIT reloaded();
}

void RulesTableModel::reloadAfter(const ObjectsDidChange &change)
{
    const auto isRule = [](const ManagedObjectPtr &object) {
        return object->entity().name() == model::Rule;
    };
    if (std::ranges::any_of(change.inserted, isRule) ||
        std::ranges::any_of(change.updated, isRule) ||
        std::ranges::any_of(change.deleted, isRule)) {
        reload();
    }
}

QList<Row> RulesTableModel::fetchRows() const
{
    QList<Row> rows;
    const RuleList rules = m_deps.queries.rules(Predicate::all({}),
        {{model::rule::enabled, false}, {model::rule::device, false}, {model::rule::name, true}});
    rows.reserve(rules.size());
    for (const Rule &rule : rules) {
        rows.append({rule.objID(), RuleValues::of(rule), rule.enabled(), rule.active()});
    }
    placeFresh(rows);
    return rows;
}

void RulesTableModel::placeFresh(QList<Row> &rows) const
{
    QList<Row> fresh;
    for (const QString &objID : m_fresh) {
        if (const qsizetype place = placeIn(rows, objID); place >= 0) {
            fresh << rows.takeAt(place);
        }
    }
    const qsizetype before = placeIn(rows, m_freshAfter);
    qsizetype place = before < 0 ? rows.size() : before + 1;
    for (const Row &row : std::as_const(fresh)) {
        rows.insert(place++, row);
    }
}

} // namespace quillon
