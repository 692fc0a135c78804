// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/Shown.h"
#include "platform/Scheduler.h"
#include "platform/SettingsStore.h"
#include "presence/Destination.h"
#include "presentation/rules/RulesTableModel.h"

#include <QObject>
#include <QVariantMap>

#include <optional>

namespace quillon {

class NotificationCenter;
class RecordStore;
class RuleEditing;
class RuleFormModel;
class RuleSwitches;
class SavedNetworks;

/// The rule editor: the commands on the table of rules, and the form that is open in its place.
/// Main thread.
class RulesPreferencesViewController : public QObject
{
    Q_OBJECT

public:
    enum class Page
    {
        List,
        NetworkForm,
        LoginForm,
    };
    /// `customTabIndex`, the inner tab.
    enum class Tab
    {
        SavedItems,
        Rules,
    };
    struct State
    {
        Page page = Page::List;
        Tab tab = Tab::SavedItems;
        QString warning; ///< the strip's, "" for none

        bool operator==(const State &) const = default;
    };
    struct Collaborators
    {
        SettingsStore &settings;
        Scheduler &scheduler;
        NotificationCenter &notifications;
        RecordStore &store;
        RuleQueries &queries;
        RuleSwitches &switches;
        RuleEditing &editing;
        SavedNetworks &savedNetworks;
        RulesTableModel &table;
        RuleFormModel &form;
    };
    static constexpr std::chrono::seconds warningShownFor{30};

    explicit RulesPreferencesViewController(const Collaborators &collaborators);
    ~RulesPreferencesViewController() override;

    const State &state() const { return m_state.get(); }

    // What the user does. The commands of the list do nothing while a form is open.
    /// Open an empty form, also in place of one that nobody has touched.
    void addRule();
    void addLoginRule();
    /// Opens the form with the rule that was selected last.
    void editRule();
    /// The OK button of the open form: what opened it has pointed it at one of four.
    void chooseOK();
    void cancelRule();
    void deleteRule();
    void duplicateRule();
    /// The switch of a rule in the list: broadcasts "toggleCheckbox".
    void switchRule(const QString &objID, bool on);
    void updateNameAtRow(const QString &name, qsizetype row);
    void chooseTab(Tab tab);
    void dismissWarning();
    /// Brings back what was deleted last, as long as nothing else was edited since.
    void restoreDeleted();
    void undo();
    void redo();

    /// Opens the form that a destination stands for; ignores other destinations.
    void goTo(Destination destination);

    // What follows from elsewhere.
    /// "toggleCheckbox": a switch of any list of rules was used.
    void toggleRule(const QVariantMap &userInfo);
    /// "showNetworkWarning": another rule was switched off. Shown for half a minute.
    void showNetworkWarning();
    /// Has the names of all rules collected: names that are made now are compared with them.
    void updateNamesArray();
    /// "ruleTable": the rows are fetched anew.
    void updateRuleTable();
    /// "changeRulesTab": shows the tab that the setting says.
    void setTabViewIndex();

Q_SIGNALS:
    /// Something in state() changed.
    void changed();
    /// Rules were deleted just now, and can be had back.
    void rulesDeleted(qsizetype count);
    /// What was deleted cannot be had back any more, or was.
    void deletedForgotten();

private:
    using Command = void (RulesPreferencesViewController::*)();

    bool isListShown() const { return state().page == Page::List; }
    bool canOpenForm();
    void okRule();
    void okUpdateRule();
    void okLoginRule();
    void okUpdateLoginRule();
    void editRegularRule(const RulesTableModel::Row &row);
    void editLoginRule(const RulesTableModel::Row &row);
    void updateEnabledWithID(bool enabled, const QString &objID);
    void openForm(Page page, const QString &edited, Command ok);
    void showList();
    void followTable();
    void say(const QString &warning);

    Collaborators m_deps;
    Shown<State> m_state{[this] { Q_EMIT changed(); }};
    QString m_edited; ///< the rule in the form, "" for a new one
    Command m_ok = nullptr;
    std::optional<Scheduler::Token> m_warningEnd;
    SettingsStore::Token m_observed;
};

} // namespace quillon
