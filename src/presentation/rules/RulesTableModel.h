// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/Shown.h"
#include "platform/SettingsStore.h"
#include "rules/RuleSentence.h"
#include "rules/RuleValues.h"

#include <QObject>

#include <optional>
#include <vector>

namespace quillon {

class DeviceTable;
class RuleQueries;
struct ObjectsDidChange;

/// The table of all rules in the editor, and what is selected in it. It is empty until somebody
/// looks at it. Main thread.
class RulesTableModel : public QObject
{
    Q_OBJECT

public:
    struct Row
    {
        QString objID; ///< the rule's identity
        RuleValues values;
        bool enabled = false;
        bool active = false; ///< in force now

        bool operator==(const Row &) const = default;
    };
    struct State
    {
        /// Enabled rules first, then by device downwards, then by name; what a command has just
        /// made stands where that put it.
        QList<Row> rows;
        std::vector<qsizetype> selectedRows; ///< ascending
        qsizetype lastSelected = -1;         ///< of these the one selected last, -1 for none
        RuleNames names;                     ///< what the sentences of the rows are made of

        bool operator==(const State &) const = default;
    };
    struct Collaborators
    {
        SettingsStore &settings;
        const DeviceTable &devices;
        const RuleQueries &queries;
    };

    explicit RulesTableModel(const Collaborators &collaborators);
    ~RulesTableModel() override;

    const State &state() const { return m_state.get(); }
    /// Somebody looks at it from now on.
    void begin();
    /// What the rule of a row does, in one sentence.
    QString sentenceOf(qsizetype row) const;
    /// Why it is or is not in force. Fetches records.
    QString reasonOf(qsizetype row) const;
    /// The place of a rule, -1 when it is not listed.
    qsizetype placeOf(const QString &objID) const;
    QStringList selectedIDs() const;

    /// Places that do not exist are passed over; without `last` the lowest row is the last.
    void selectRows(const QList<qsizetype> &rows, std::optional<qsizetype> last = {});
    /// The one row; of places beyond the end, the last row.
    void selectRow(qsizetype row);
    void selectRules(const QStringList &objIDs);

    /// Has the rules stand behind that one, or at the end for "", whatever their order, until this
    /// is called again.
    void setFresh(const QStringList &objIDs, const QString &after = {});
    /// Fetches the rows anew; the selection stays on its rules, or, where none of them is left,
    /// at its place.
    void reload();
    /// Records changed: the same, when there is a rule among them.
    void reloadAfter(const ObjectsDidChange &change);

Q_SIGNALS:
    /// Something in state() changed.
    void changed();
    /// The rows were fetched.
    void reloaded();

private:
    QList<Row> fetchRows() const;
    void placeFresh(QList<Row> &rows) const;

    Collaborators m_deps;
    Shown<State> m_state{[this] { Q_EMIT changed(); }};
    bool m_hasBegun = false;
    QStringList m_fresh;
    QString m_freshAfter;
    std::vector<SettingsStore::Token> m_observed;
};

} // namespace quillon
