// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "rules/RuleInvariants.h"

#include "base/NotificationNames.h"
#include "base/UniqueName.h"
#include "platform/NotificationCenter.h"
#include "platform/Scheduler.h"
#include "rules/RuleQueries.h"
#include "store/RecordStore.h"
#include "store/model/QuillonModel.h"

#include <QScopedValueRollback>

#include <algorithm>

namespace quillon {

namespace {

/// True when there was a value to write again.
bool reassertSsidDefined(ManagedObject &rule)
{
    const QVariant value = rule.value(model::rule::ssidDefined);
    if (value.isValid()) {
        rule.setPrimitiveValue(model::rule::ssidDefined, value);
    }
    return value.isValid();
}

/// Gives a renamed rule a name that `taken` does not hold, and adds it there: two rules may be
/// renamed in one turn. True when the rule was renamed.
bool makeNameUnique(ManagedObject &rule, QStringList &taken)
{
    const QVariant name = rule.value(model::rule::name);
    const QVariant previous = rule.changedValuesForCurrentEvent().value(model::rule::name);
    if (!name.isValid() || !previous.isValid() || previous == name) {
        return false;
    }
    const QString unique = getOriginalNameFromArray(name.toString(), taken);
    rule.setPrimitiveValue(model::rule::name, unique);
    taken.append(unique);
    return true;
}

bool isRule(const ManagedObjectPtr &object)
{
    return object->entity().name() == model::Rule;
}

bool isConnection(const ManagedObjectPtr &object)
{
    return object->entity().name() == model::Connection;
}

/// Undo and redo are commands of no feature that would collect the names afterwards.
bool undoesRules(const ObjectsDidChange &change)
{
    return change.isUndone && (std::ranges::any_of(change.inserted, isRule) ||
                                  std::ranges::any_of(change.updated, isRule) ||
                                  std::ranges::any_of(change.deleted, isRule));
}

} // namespace

RuleInvariants::Suspension::Suspension(RuleInvariants &invariants)
    : m_invariants(invariants)
{
    m_invariants.processPendingChanges();
    ++m_invariants.m_suspended;
}

RuleInvariants::Suspension::~Suspension()
{
    m_invariants.processPendingChanges();
    --m_invariants.m_suspended;
}

RuleInvariants::RuleInvariants(const Collaborators &collaborators)
    : m_deps(collaborators)
{
}

void RuleInvariants::contextDidChange(const ObjectsDidChange &change)
{
    if (m_suspended > 0) {
        return;
    }
    // What is corrected here must not be looked at again.
    const QScopedValueRollback unobserved(m_suspended, m_suspended + 1);
    const bool corrected = correctRules(change.updated);
    if (corrected || undoesRules(change)) {
        tellOfRules();
    }
    if (std::ranges::any_of(change.inserted, isConnection)) {
        m_deps.store.managedObjectContext().processPendingChanges();
    }
}

bool RuleInvariants::correctRules(const ManagedObjectList &updated)
{
    bool corrected = false;
    QStringList taken;
    for (const ManagedObjectPtr &object : updated) {
        if (!isRule(object)) {
            continue;
        }
        if (taken.isEmpty()) {
            taken = m_deps.queries.namesArray();
        }
        const bool reasserted = reassertSsidDefined(*object);
        const bool renamed = makeNameUnique(*object, taken);
        corrected = corrected || reasserted || renamed;
    }
    return corrected;
}

void RuleInvariants::tellOfRules()
{
    m_deps.scheduler.onMain(this, [this] {
        processPendingChanges();
        Q_EMIT rulesCorrected();
        m_deps.notifications.post(notifications::ruleTable, this);
        m_deps.notifications.post(notifications::updateNamesArray, this);
    });
}

void RuleInvariants::processPendingChanges()
{
    // Without a context there is nothing pending, and no reason to make one.
    if (m_deps.store.hasManagedObjectContext()) {
        m_deps.store.managedObjectContext().processPendingChanges();
    }
}

} // namespace quillon
