// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/rules/RulesPreferencesViewController.h"

#include "base/Localized.h"
#include "base/NotificationNames.h"
#include "base/SettingsKeys.h"
#include "networks/SavedNetworks.h"
#include "platform/NotificationCenter.h"
#include "presentation/rules/RuleFormModel.h"
#include "rules/RuleEditing.h"
#include "rules/RuleQueries.h"
#include "rules/RuleSwitches.h"
#include "store/RecordStore.h"

#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

using Self = RulesPreferencesViewController;

const QString objIDKey = u"objID"_s;
const QString stateKey = u"state"_s;

} // namespace

RulesPreferencesViewController::RulesPreferencesViewController(const Collaborators &collaborators)
    : m_deps(collaborators)
    , m_observed(m_deps.settings.addObserver(
          keys::customTabIndex, [this](const auto &) { setTabViewIndex(); }))
{
    connect(&m_deps.table, &RulesTableModel::reloaded, this, &Self::followTable);
    setTabViewIndex();
}

RulesPreferencesViewController::~RulesPreferencesViewController()
{
    m_deps.settings.removeObserver(m_observed);
}

// MARK: the form

void RulesPreferencesViewController::addRule()
{
    if (canOpenForm()) {
        m_deps.form.resetAllRuleValues(RuleFormModel::Kind::Network);
        openForm(Page::NetworkForm, {}, &Self::okRule);
    }
}

void RulesPreferencesViewController::addLoginRule()
{
    if (canOpenForm()) {
        m_deps.form.resetAllRuleValues(RuleFormModel::Kind::Login);
        openForm(Page::LoginForm, {}, &Self::okLoginRule);
    }
}

bool RulesPreferencesViewController::canOpenForm()
{
    if (!isListShown() && m_deps.form.isTouched()) {
        // What was filled in is not thrown away, and not taken for the new rule.
        say(localized("Save or cancel this rule before you begin another one."));
        return false;
    }
    return true;
}

void RulesPreferencesViewController::editRule()
{
    const auto &table = m_deps.table.state();
    if (!isListShown() || table.lastSelected < 0) {
        return;
    }
    const RulesTableModel::Row row = table.rows.at(table.lastSelected);
    if (row.values.isLogin) {
        editLoginRule(row);
    } else {
        editRegularRule(row);
    }
}

void RulesPreferencesViewController::editLoginRule(const RulesTableModel::Row &row)
{
    m_deps.form.fill(row.values);
    openForm(Page::LoginForm, row.objID, &Self::okUpdateLoginRule);
}

void RulesPreferencesViewController::editRegularRule(const RulesTableModel::Row &row)
{
    m_deps.form.fill(row.values);
    openForm(Page::NetworkForm, row.objID, &Self::okUpdateRule);
}

void RulesPreferencesViewController::openForm(Page page, const QString &edited, Command ok)
{
    m_edited = edited;
    m_ok = ok;
    m_state.update([page](State &state) { state.page = page; });
}

void RulesPreferencesViewController::chooseOK()
{
    if (!isListShown() && m_deps.form.state().canSaveRule) {
        (this->*m_ok)();
    }
}

void RulesPreferencesViewController::okRule()
{
    const RuleValues values = m_deps.form.values();
    const auto &form = m_deps.form.state();
    const QString network = form.networks.at(form.network).title;
    if (!m_deps.settings.getDictionary(keys::savedNetworks).contains(network)) {
        // After the look-ups: a network that this saves is not yet the rule's.
        m_deps.savedNetworks.addCurrentNetworkToSavedList();
    }
    const QString added = m_deps.editing.addRule(values);
    m_deps.table.setFresh({added});
    showList();
    m_deps.table.selectRow(m_deps.table.state().rows.size() - 1);
}

void RulesPreferencesViewController::okUpdateRule()
{
    const QString edited = m_edited;
    m_deps.editing.updateRule(edited, m_deps.form.values());
    m_deps.table.setFresh({});
    showList();
    m_deps.table.selectRules({edited});
}

void RulesPreferencesViewController::okLoginRule()
{
    const QString added = m_deps.editing.addRule(m_deps.form.values());
    m_deps.table.setFresh({});
    showList();
    m_deps.table.selectRules({added});
}

void RulesPreferencesViewController::okUpdateLoginRule()
{
    okUpdateRule();
}

void RulesPreferencesViewController::cancelRule()
{
    if (!isListShown()) {
        showList();
    }
}

void RulesPreferencesViewController::showList()
{
    m_edited.clear();
    m_ok = nullptr;
    m_deps.form.close();
    m_deps.table.reload();
    m_state.update([](State &state) { state.page = Page::List; });
}

void RulesPreferencesViewController::followTable()
{
    if (!m_edited.isEmpty()) {
        const qsizetype place = m_deps.table.placeOf(m_edited);
        if (place < 0) {
            showList();
            say(localized("The rule that was open is not there any more."));
        } else {
            m_deps.form.followRule(m_deps.table.state().rows.at(place).values);
        }
    }
    if (!m_deps.editing.canRestoreDeleted()) {
        Q_EMIT deletedForgotten();
    }
}

// MARK: the list

void RulesPreferencesViewController::deleteRule()
{
    const QStringList selected = m_deps.table.selectedIDs();
    if (!isListShown() || selected.isEmpty()) {
        return;
    }
    const qsizetype first = m_deps.table.state().selectedRows.front();
    m_deps.table.setFresh({});
    const qsizetype deleted = m_deps.editing.deleteRules(selected);
    m_deps.table.reload();
    m_deps.table.selectRow(first);
    if (deleted > 0) {
        Q_EMIT rulesDeleted(deleted);
    }
}

void RulesPreferencesViewController::restoreDeleted()
{
    m_deps.editing.restoreDeleted();
    m_deps.table.reload();
}

void RulesPreferencesViewController::duplicateRule()
{
    const QStringList selected = m_deps.table.selectedIDs();
    if (!isListShown() || selected.isEmpty()) {
        return;
    }
    const QStringList copies = m_deps.editing.duplicateRules(selected);
    m_deps.table.setFresh(copies, selected.last());
    m_deps.table.reload();
    m_deps.table.selectRow(m_deps.table.placeOf(selected.last()) + 1);
}

void RulesPreferencesViewController::updateNameAtRow(const QString &name, qsizetype row)
{
    const auto &rows = m_deps.table.state().rows;
    if (row >= 0 && row < rows.size()) {
        m_deps.table.setFresh({});
        m_deps.editing.renameRule(rows.at(row).objID, name);
        m_deps.settings.set(keys::editingRuleNetwork, {});
        m_deps.table.reload();
    }
}

void RulesPreferencesViewController::switchRule(const QString &objID, bool on)
{
    m_deps.table.setFresh({});
    // The row may go while this is told.
    const QString rule = objID;
    m_deps.notifications.post(
        notifications::toggleCheckbox, this, {{objIDKey, rule}, {stateKey, on}});
}

void RulesPreferencesViewController::toggleRule(const QVariantMap &userInfo)
{
    if (userInfo.contains(objIDKey)) {
        updateEnabledWithID(userInfo.value(stateKey).toBool(), userInfo.value(objIDKey).toString());
    }
}

void RulesPreferencesViewController::updateEnabledWithID(bool enabled, const QString &objID)
{
    // RuleSwitches observes the same: one click switches, and carries out, once.
    const Rule rule = m_deps.queries.ruleWithID(objID);
    if (!rule.isNull() && rule.enabled() != enabled) {
        m_deps.switches.updateEnabledWithID(enabled, objID);
    }
    updateRuleTable();
}

void RulesPreferencesViewController::undo()
{
    if (isListShown()) {
        m_deps.store.undo();
    }
}

void RulesPreferencesViewController::redo()
{
    if (isListShown()) {
        m_deps.store.redo();
    }
}

void RulesPreferencesViewController::goTo(Destination destination)
{
    if (destination == Destination::NewNetworkRule) {
        addRule();
    } else if (destination == Destination::NewLoginRule) {
        addLoginRule();
    }
}

// MARK: what follows from elsewhere

void RulesPreferencesViewController::updateNamesArray()
{
    m_deps.queries.updateNamesArray();
}

void RulesPreferencesViewController::updateRuleTable()
{
    m_deps.table.reload();
}

void RulesPreferencesViewController::showNetworkWarning()
{
    say(localized(
        "Another rule for this interface and network was switched off: only one can be on."));
}

void RulesPreferencesViewController::say(const QString &warning)
{
    dismissWarning();
    m_state.update([&](State &state) { state.warning = warning; });
    m_warningEnd = m_deps.scheduler.onMainAfter(warningShownFor, this, [this] {
        m_warningEnd.reset();
        dismissWarning();
    });
}

void RulesPreferencesViewController::dismissWarning()
{
    if (const auto end = std::exchange(m_warningEnd, std::nullopt)) {
        m_deps.scheduler.cancel(*end);
    }
    m_state.update([](State &state) { state.warning.clear(); });
}

void RulesPreferencesViewController::chooseTab(Tab tab)
{
    m_deps.settings.set(keys::customTabIndex, static_cast<int>(tab));
    m_deps.settings.synchronize();
}

void RulesPreferencesViewController::setTabViewIndex()
{
    const bool isRules = m_deps.settings.getInteger(keys::customTabIndex) == 1;
    m_state.update([isRules](State &state) { state.tab = isRules ? Tab::Rules : Tab::SavedItems; });
}

} // namespace quillon
