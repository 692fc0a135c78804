// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/Shown.h"
#include "store/model/Predicate.h"

#include <QList>
#include <QObject>
#include <QString>

namespace quillon {

class CurrentInterface;
class NotificationCenter;
class RuleQueries;
class SettingsStore;
struct ObjectsDidChange;

/// The list of the rules that apply to the selected interface on the network that it is on: exactly
/// those that evaluation considers. Enabled rules stand first, each group by name. Main thread.
class RulesListModel : public QObject
{
    Q_OBJECT

public:
    struct Row
    {
        QString objID; ///< the rule's identity
        QString name;
        bool enabled = false;
        bool active = false;

        bool operator==(const Row &) const = default;
    };
    struct State
    {
        Predicate filter; ///< which rules are shown; all before the first filtering
        QString symbol;   ///< of the header: "network" or "wifi"
        QString title;    ///< of the header
        QList<Row> rows;
        qsizetype selectedRow = -1; ///< -1 in an empty list
        bool popoverShown = false;

        bool operator==(const State &) const = default;
    };
    struct Collaborators
    {
        const SettingsStore &settings;
        NotificationCenter &notifications;
        const CurrentInterface &currentInterface;
        const RuleQueries &queries;
    };

    explicit RulesListModel(const Collaborators &collaborators);

    const State &state() const { return m_state.get(); }

    /// The button of the rules was chosen: opens the popover on the rules of the selected
    /// interface, or closes it.
    void toggleRulesPopover();
    /// However it is closed.
    void popoverWillClose();
    /// Points list and header at the selected interface.
    void filterRulesArrayController();
    /// Rules changed: the same filter again.
    void reload();
    /// Records changed: the same, when there is a rule among them.
    void reloadAfter(const ObjectsDidChange &change);
    void selectRow(qsizetype row);
    /// The check box of the row of that rule was used. Broadcasts "toggleCheckbox"; the row follows
    /// the rule. Nothing happens when it is not listed any more.
    void toggleRule(const QString &objID, bool enabled);

Q_SIGNALS:
    /// Something in state() changed.
    void changed();

private:
    /// Fills the rows by the filter; the selection stays on its rule.
    void fillRows(State &state) const;

    Collaborators m_deps;
    Shown<State> m_state{[this] { Q_EMIT changed(); }};
};

} // namespace quillon
