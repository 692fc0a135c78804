// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "rules/RuleEditing.h"

#include "base/Log.h"
#include "base/UniqueName.h"
#include "rules/RuleEvaluation.h"
#include "rules/RuleQueries.h"
#include "store/RecordStore.h"
#include "store/model/QuillonModel.h"

#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

void fillNetworkRule(const Rule &rule, const RuleValues &values)
{
    rule.setNetwork(values.network);
    rule.setAction(values.action);
    rule.setAddress(values.address);
    rule.setSsid(values.ssid);
    rule.setDevice(values.device);
    rule.setVendor(values.vendor);
    rule.setChangeAction(values.changeAction);
    rule.setTimerMins(values.timerMins);
}

void copyAttributes(const ManagedObject &from, ManagedObject &to)
{
    const QList<Attribute> &attributes = from.entity().attributes();
    for (const Attribute &attribute : attributes) {
        to.setValue(attribute.name, from.value(attribute.name));
    }
}

} // namespace

RuleEditing::RuleEditing(const Collaborators &collaborators)
    : m_deps(collaborators)
{
}

QString RuleEditing::addRule(const RuleValues &values)
{
    m_deps.queries.updateNamesArray();
    const Rule rule(m_deps.store.managedObjectContext().insertNewObject(model::Rule));
    rule.setActive(false);
    rule.setEnabled(false);
    rule.setName(uniqueName(values.name));
    rule.setIsLogin(values.isLogin);
    rule.setSsidDefined(values.ssidDefined);
    fillNetworkRule(rule, values);
    save("Rule not added...");
    namesAndStatusChanged();
    return rule.objID();
}

void RuleEditing::updateRule(const QString &objID, const RuleValues &values)
{
    const Rule rule = m_deps.queries.ruleWithID(objID);
    if (rule.isNull()) {
        return;
    }
    m_deps.queries.updateNamesArray();
    if (rule.isLogin()) {
        rule.setAddress(values.address);
        rule.setDevice(values.device);
        rule.setVendor(values.vendor);
    } else {
        fillNetworkRule(rule, values);
        rule.object()->setPrimitiveValue(model::rule::ssidDefined, values.ssidDefined);
    }
    // After the others: undoing them undoes this as well.
    const bool isRenamed = values.name != rule.name();
    if (isRenamed) {
        setNameSilently(rule, uniqueName(values.name));
    }
    m_deps.store.managedObjectContext().processPendingChanges();
    namesAndStatusChanged();
    if (isRenamed) {
        Q_EMIT rulesRenamed();
    }
}

qsizetype RuleEditing::deleteRules(const QStringList &objIDs)
{
    ManagedObjectContext &context = m_deps.store.managedObjectContext();
    qsizetype deleted = 0;
    for (const QString &objID : objIDs) {
        const Rule rule = m_deps.queries.ruleWithID(objID);
        if (!rule.isNull()) {
            context.deleteObject(rule.object());
            ++deleted;
        }
    }
    if (deleted == 0) {
        return 0;
    }
    m_deletedAt = m_deps.store.undoPlace();
    m_deletedIn = &context;
    m_deps.queries.updateNamesArray();
    save("Rule not removed...");
    m_deps.evaluation.rulesWereChanged();
    return deleted;
}

QStringList RuleEditing::duplicateRules(const QStringList &objIDs)
{
    m_deps.queries.updateNamesArray();
    QStringList taken = m_deps.queries.namesArray();
    ManagedObjectContext &context = m_deps.store.managedObjectContext();
    QStringList copies;
    for (const QString &objID : objIDs) {
        const Rule rule = m_deps.queries.ruleWithID(objID);
        if (rule.isNull()) {
            continue;
        }
        const Rule copy(context.insertNewObject(model::Rule));
        copyAttributes(*rule.object(), *copy.object());
        copy.setName(getOriginalNameFromArray(rule.name() + u" copy"_s, taken));
        taken << copy.name();
        copies << copy.objID();
    }
    if (!copies.isEmpty()) {
        m_deps.queries.updateNamesArray();
        save("Rule not duplicated...");
    }
    return copies;
}

void RuleEditing::renameRule(const QString &objID, const QString &name)
{
    const Rule rule = m_deps.queries.ruleWithID(objID);
    if (rule.isNull() || rule.name() == name) {
        return;
    }
    setNameSilently(rule, name);
    m_deps.store.managedObjectContext().processPendingChanges();
    namesAndStatusChanged();
    Q_EMIT rulesRenamed();
    save("Rule not updated...");
}

bool RuleEditing::canRestoreDeleted() const
{
    return m_deletedAt && m_deps.store.canUndo() &&
           &m_deps.store.managedObjectContext() == m_deletedIn &&
           m_deps.store.undoPlace() == *m_deletedAt;
}

void RuleEditing::restoreDeleted()
{
    if (!canRestoreDeleted()) {
        return;
    }
    m_deletedAt.reset();
    m_deps.store.undo();
    m_deps.store.managedObjectContext().processPendingChanges();
    namesAndStatusChanged();
    save("Rule not added...");
}

QString RuleEditing::uniqueName(const QString &wanted) const
{
    return getOriginalNameFromArray(wanted, m_deps.queries.namesArray());
}

void RuleEditing::setNameSilently(const Rule &rule, const QString &name)
{
    rule.object()->setPrimitiveValue(model::rule::name, name);
}

void RuleEditing::namesAndStatusChanged()
{
    m_deps.queries.updateNamesArray();
    m_deps.evaluation.rulesWereChanged();
}

void RuleEditing::save(const char *failure)
{
    if (m_deps.store.managedObjectContext().save()) {
        qCWarning(logRules) << failure;
    }
}

} // namespace quillon
