// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "rules/Rule.h"

#include <QObject>
#include <QVariantMap>

namespace quillon {

class NotificationCenter;
class RecordStore;
class RuleEvaluation;
class RuleQueries;

/// The switches of rules: at most one rule is enabled for a device and a network. Main thread.
class RuleSwitches : public QObject
{
    Q_OBJECT

public:
    struct Collaborators
    {
        RecordStore &store;
        NotificationCenter &notifications;
        const RuleQueries &queries;
        RuleEvaluation &evaluation;
    };

    explicit RuleSwitches(const Collaborators &collaborators);

    /// A check box of a list of rules was used: "objID" is the rule's identity, "state" its new
    /// state. Without "objID" nothing happens.
    void toggleRule(const QVariantMap &userInfo);
    /// Switches the rule of that identity and saves. No such rule: nothing.
    void updateEnabledWithID(bool enabled, const QString &objID);
    /// `rule` was switched on or off: the others for its device and network are switched off, and
    /// what is in force now is carried out, whether the internet can be reached or not. This
    /// happens after switching off too.
    void enabledStatusChanged(const Rule &rule);
    /// Switches every rule off. Neither saves nor evaluates.
    void disableAllRules();

Q_SIGNALS:
    /// A rule was switched, and what is in force evaluated; nothing is saved yet.
    void ruleSwitched();
    /// The user's check box is done with.
    void ruleToggled();

private:
    bool switchOffOthers(const Rule &rule);

    Collaborators m_deps;
};

} // namespace quillon
