// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "networks/SavedAddresses.h"
#include "networks/SavedNetworks.h"
#include "presentation/rules/RuleFormModel.h"
#include "presentation/rules/RulesPreferencesViewController.h"
#include "rules/RuleEditing.h"
#include "unit/rules/RuleFixture.h"

namespace quillon::test {

/// The machine of RuleFixture, on no network, with the rule editor.
class RuleEditorFixture : public RuleFixture
{
protected:
    RuleEditorFixture()
    {
        settings.registerDefaults({{keys::defaultTimerMinutes, 30}});
        QObject::connect(
            &store, &RecordStore::objectsDidChange, &rows, &RulesTableModel::reloadAfter);
        notifications.addObserver(notifications::toggleCheckbox, [this](const auto &posted) {
            switches.toggleRule(posted.userInfo);
            editor.toggleRule(posted.userInfo);
        });
        notifications.addObserver(notifications::showNetworkWarning,
            [this](const auto &) { editor.showNetworkWarning(); });
        rows.begin();
    }

    void join(const QString &ssid, const QString &bssid)
    {
        joinWifi(ssid, bssid);
        wifi.updateWiFiNetwork();
    }
    void saveAddress(const QString &address, const QString &name)
    {
        QVariantMap saved = settings.getDictionary(keys::savedAddresses);
        saved[address] = QVariantMap{{savedentry::address, address}, {savedentry::name, name}};
        settings.set(keys::savedAddresses, saved);
    }
    static QStringList titles(const RuleChoices &choices)
    {
        QStringList titles;
        for (const RuleChoice &choice : choices) {
            titles << choice.title;
        }
        return titles;
    }
    /// The user chooses the entry of that title.
    void chooseDevice(const QString &device)
    {
        form.deviceSelectionChanged(placeOfStored(form.state().devices, device));
    }
    void chooseNetwork(const QString &title)
    {
        form.changeNetwork(titles(form.state().networks).indexOf(title));
    }
    void chooseAddress(const QString &title)
    {
        form.addressSelectionChanged(titles(form.state().addresses).indexOf(title));
    }
    QStringList names() const
    {
        QStringList names;
        for (const auto &row : rows.state().rows) {
            names << row.values.name;
        }
        return names;
    }
    QString editedNetwork() const { return settings.getString(keys::editingRuleNetwork); }

    const QString homeBssid = QStringLiteral("02:00:00:00:aa:01");
    const QString officeBssid = QStringLiteral("02:00:00:00:aa:02");

    SavedNetworks savedNetworks{settings, wifi};
    SavedAddresses savedAddresses{settings};
    RuleEditing editing{{store, queries, evaluation}};
    RulesTableModel rows{{settings, table, queries}};
    RuleFormModel form{{settings, table, savedNetworks, savedAddresses, randomAddress}};
    RulesPreferencesViewController editor{{settings, scheduler, notifications, store, queries,
        switches, editing, savedNetworks, rows, form}};
};

} // namespace quillon::test
