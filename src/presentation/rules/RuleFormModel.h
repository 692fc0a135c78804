// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/Shown.h"
#include "platform/SettingsStore.h"
#include "presentation/rules/RuleFormChoices.h"
#include "rules/RuleValues.h"

#include <QObject>

#include <vector>

namespace quillon {

class RandomAddress;
class SavedAddresses;
class SavedNetworks;

/// The form in which a rule is made or edited: what its controls hold, and which of them can be
/// used. What it shows is what values() holds at any moment, whatever else changes the lists that
/// it offers. Main thread.
class RuleFormModel : public QObject
{
    Q_OBJECT

public:
    enum class Kind
    {
        Network,
        Login, ///< has name, interface, address and vendor only
    };
    struct State
    {
        Kind kind = Kind::Network;
        bool isOpen = false;
        bool isNew = true;
        QString name;
        RuleChoices devices{RuleChoice{}};
        RuleChoices networks{RuleChoice{}};
        RuleChoices addresses{RuleChoice{}};
        // Places in the lists above.
        qsizetype device = 0;
        qsizetype network = 0;
        qsizetype address = 0;
        int action = Rule::doNothing;
        int repeat = Rule::once;
        QString minutes; ///< at most three digits
        QString vendor;

        bool canSelectAddress = false;
        bool canSelectVendor = false; ///< and how often
        bool canChooseTimerMins = false;
        bool canSaveNetwork = false; ///< the one in use, which is not saved yet
        bool canSaveAddress = false; ///< that of the selected interface, likewise
        bool canSaveRule = false;    ///< there is an interface that it can be for

        QString sentence; ///< what the rule will do
        QString notice;   ///< what to look at before it is saved, "" for nothing

        bool operator==(const State &) const = default;
    };
    struct Collaborators
    {
        SettingsStore &settings;
        const DeviceTable &devices;
        SavedNetworks &savedNetworks;
        SavedAddresses &savedAddresses;
        const RandomAddress &random;
    };

    explicit RuleFormModel(const Collaborators &collaborators);
    ~RuleFormModel() override;

    const State &state() const { return m_state.get(); }
    /// What the form holds, as it is stored.
    RuleValues values() const { return valuesOf(state()); }
    /// The user has edited what it was opened with.
    bool isTouched() const { return m_isTouched; }

    /// Opens it with its first entries and empty fields.
    void resetAllRuleValues(Kind kind);
    /// Opens it with a rule; what that was made for and is not there any more reads as the first
    /// entry.
    void fill(const RuleValues &rule);
    /// The rule in the form was changed elsewhere: filled in anew, unless the user has edited.
    void followRule(const RuleValues &rule);
    void close();

    // What the user does.
    void setName(const QString &text);
    void deviceSelectionChanged(qsizetype place);
    /// The network pop-up was used. Publishes the network as the one that is edited.
    void changeNetwork(qsizetype place);
    void actionSelectionChanged(int place);
    void addressSelectionChanged(qsizetype place);
    void timerSelectionChanged(int place);
    /// Ignored unless TimerFormatter takes it.
    void setMinutes(const QString &text);
    void setVendor(const QString &text);
    /// A field has lost the keyboard: of the minutes, none or 0 become 1.
    void controlTextDidEndEditing();
    /// The favorite buttons beside the pop-ups.
    void saveCurrentNetwork();
    void saveCurrentAddress();
    /// Makes a random address of the vendor, saves it under the network's name, and chooses it.
    /// When none can be made, nothing happens.
    void makeAddress();

Q_SIGNALS:
    /// Something in state() changed.
    void changed();
    /// The vendor was set by something else than the vendor field.
    void vendorFilled(const QString &vendor);

private:
    RuleValues valuesOf(const State &state) const;
    void refill();
    void offerEntries(State &state) const;
    void followPublished(State &state);
    void follow(State &state) const;
    int defaultMinutes() const;
    void publishNetwork();
    void stopPublishing();

    template <typename Edit>
    void touch(Edit change)
    {
        m_isTouched = true;
        edit(change);
    }
    template <typename Edit>
    void edit(Edit change)
    {
        m_state.update([&](State &state) {
            change(state);
            follow(state);
        });
    }

    Collaborators m_deps;
    Shown<State> m_state{[this] { Q_EMIT changed(); }};
    RuleValues m_source; ///< the rule that was filled in
    ChosenEntries m_chosen;
    bool m_isTouched = false;
    std::vector<SettingsStore::Token> m_observed;
};

} // namespace quillon
