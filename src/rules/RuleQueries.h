// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "rules/Rule.h"

#include <QStringList>
#include <QVariantMap>

namespace quillon {

class DeviceTable;
class RecordStore;
class SettingsStore;

/// How the rest of the program selects rules. Rules come in the order of their creation. A fetch
/// that fails is logged and finds no rules. Main thread.
class RuleQueries
{
public:
    RuleQueries(RecordStore &store, const SettingsStore &settings, const DeviceTable &devices);

    /// The rules of one device, or of all for "all".
    RuleList managedRuleArrayForDevice(const QString &device) const;
    /// Selects the rules that apply to `device` on the network that it is on now. For a Wi-Fi
    /// device that is on none, or that is not the one whose network is known, it is a condition
    /// that no rule meets, and which does not name the device.
    Predicate filterPredicateForDevice(const QString &device) const;
    /// The rules that meet `condition`, in `order`.
    RuleList rules(const Predicate &condition, const QList<SortDescriptor> &order = {}) const;
    /// The rule of that identity; null when the text names none.
    Rule ruleWithID(const QString &objID) const;

    /// The names of all rules, as last collected.
    const QStringList &namesArray() const { return m_namesArray; }
    /// Collects the names anew. After every rule that is added, renamed or deleted.
    void updateNamesArray();

private:
    RuleList fetch(const FetchRequest &request) const;

    RecordStore &m_store;
    const SettingsStore &m_settings;
    const DeviceTable &m_devices;
    QStringList m_namesArray;
};

/// Stands for the name of a device and means every one.
inline const QString allDevices = QStringLiteral("all");

/// The keys of a flattened rule are the names of its attributes (store/QuillonModel.h), save for
/// this one, which stands for `timerMins`.
inline const QString timerMinutesKey = QStringLiteral("timerMinutes");

/// Fills `dictionary` with a flattened copy of `rule` and returns it: one entry for each attribute
/// that holds something. Other keys are left in place.
QVariantMap updateRuledictWithRule(QVariantMap dictionary, const Rule &rule);

} // namespace quillon
