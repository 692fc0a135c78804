// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "store/graph/ManagedObjectContext.h"

#include <QObject>

namespace quillon {

class NotificationCenter;
class RecordStore;
class RuleQueries;
class Scheduler;

/// Keeps two promises about rules whenever records change: names stay unique, and `ssidDefined` is
/// written again. Has the names collected anew after that, and after undo and redo. Main thread.
class RuleInvariants : public QObject
{
    Q_OBJECT

public:
    struct Collaborators
    {
        RecordStore &store;
        Scheduler &scheduler;
        NotificationCenter &notifications;
        const RuleQueries &queries;
    };

    /// While one exists, changes of records are not looked at. What changed before is: the guard
    /// processes pending changes when it begins, and its own when it ends, unobserved.
    class [[nodiscard]] Suspension
    {
    public:
        explicit Suspension(RuleInvariants &invariants);
        ~Suspension();
        Suspension(const Suspension &) = delete;
        Suspension &operator=(const Suspension &) = delete;

    private:
        RuleInvariants &m_invariants;
    };

    explicit RuleInvariants(const Collaborators &collaborators);

    /// For every objectsDidChange, except while suspended or while it runs.
    void contextDidChange(const ObjectsDidChange &change);

Q_SIGNALS:
    /// Rules were corrected, or changed by undo or redo. Before "ruleTable" and "updateNamesArray"
    /// are posted.
    void rulesCorrected();

private:
    bool correctRules(const ManagedObjectList &updated);
    void tellOfRules();
    void processPendingChanges();

    Collaborators m_deps;
    int m_suspended = 0;
};

} // namespace quillon
