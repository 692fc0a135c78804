// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QString>

namespace quillon {

class DeviceTable;
class SettingsStore;
struct RuleValues;

/// An entry of a pop-up of the rule editor.
struct RuleChoice
{
    enum class Kind
    {
        Fallback,       ///< "Any Network", "Random Address"
        UnknownNetwork, ///< "An Unknown Network"
        Unsaved,        ///< the network in use, which no rule can be for yet
        Saved,          ///< a saved network or address; an interface
    };

    QString title = {};  ///< in the user's language
    QString detail = {}; ///< tells entries of one title apart, else ""
    QString stored = {}; ///< what a rule holds for it
    Kind kind = Kind::Saved;
    QString bssid = {};       ///< of a saved network, or of the one in use
    QString ssid = {};        ///< of a saved network
    bool ssidDefined = false; ///< it is recognized by its SSID

    bool operator==(const RuleChoice &) const = default;
};
using RuleChoices = QList<RuleChoice>;

/// What the pop-ups of a form were made to show. They show it whenever they offer it, and else
/// their first entry.
struct ChosenEntries
{
    QString device = {};
    RuleChoice network = {.kind = RuleChoice::Kind::Fallback};
    QString address = {}; ///< "" for a random one
};

/// What is gone keeps the name that the rule has for it.
ChosenEntries chosenFor(const RuleValues &rule);

/// The interfaces, in the order of every list of them. Never empty: without any, one whose title
/// and stored name are "".
RuleChoices ruleDevices(const DeviceTable &devices);
/// Where a rule for `device` can be made to apply: for a wired interface only on any network.
RuleChoices ruleNetworks(
    const SettingsStore &settings, const DeviceTable &devices, const QString &device);
/// "Random Address", and the saved addresses by their names.
RuleChoices ruleAddresses(const SettingsStore &settings);

/// The place of what a rule holds, 0 where it is not among them.
qsizetype placeOfStored(const RuleChoices &choices, const QString &stored);
/// The place of a network, 0 where it is not among them. One that was not saved when it was chosen
/// may be by now.
qsizetype placeOfNetwork(const RuleChoices &networks, const RuleChoice &chosen);

} // namespace quillon
