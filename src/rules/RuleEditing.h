// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "rules/RuleValues.h"

#include <QObject>
#include <QPointer>
#include <QStringList>

#include <optional>

namespace quillon {

class ManagedObjectContext;
class RecordStore;
class RuleEvaluation;
class RuleQueries;

/// What the editor does to the records of rules. Rules are named by their identity ("objID"); one
/// that does not exist any more is passed over. What cannot be saved is logged and stays in the
/// context. Main thread.
class RuleEditing : public QObject
{
    Q_OBJECT

public:
    struct Collaborators
    {
        RecordStore &store;
        RuleQueries &queries;
        RuleEvaluation &evaluation;
    };

    explicit RuleEditing(const Collaborators &collaborators);

    /// Adds a rule, switched off, under a name that no other rule has, and saves. Its identity.
    QString addRule(const RuleValues &values);
    /// Rewrites the rule; what kind of rule it is, its switch, and for a login rule all but device,
    /// address and vendor, stay. Nothing is saved.
    void updateRule(const QString &objID, const RuleValues &values);
    /// Deletes the rules and saves. How many there were.
    qsizetype deleteRules(const QStringList &objIDs);
    /// Copies each rule, switch and all, under a name of its own, and saves. Nothing is evaluated.
    /// The copies, in the same order.
    QStringList duplicateRules(const QStringList &objIDs);
    /// Renames the rule, also to the name of another, and saves.
    void renameRule(const QString &objID, const QString &name);

    /// Whether undoing brings back what was deleted last: nothing has been edited since.
    bool canRestoreDeleted() const;
    /// Brings it back and saves; nothing when it cannot.
    void restoreDeleted();

Q_SIGNALS:
    /// Rules were changed in a way that the context does not tell: another name.
    void rulesRenamed();

private:
    QString uniqueName(const QString &wanted) const;
    void setNameSilently(const Rule &rule, const QString &name);
    void namesAndStatusChanged();
    void save(const char *failure);

    Collaborators m_deps;
    std::optional<int> m_deletedAt; ///< the place in the undo stack behind the last deletion
    QPointer<ManagedObjectContext> m_deletedIn;
};

} // namespace quillon
