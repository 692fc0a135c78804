// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/CountdownAudience.h"
#include "app/NetworkChange.h"
#include "app/NetworkEvents.h"
#include "app/Observations.h"
#include "app/OpenMenuLimit.h"

#include <QObject>

namespace quillon {

class RecordSaving;
class Termination;
struct Features;
struct Platform;

/// Which fact leads to which reactions, in which order: the whole table, in one place. What a
/// reaction does is its component's. Main thread; destroyed before what it connects.
class EventWiring : public QObject
{
    Q_OBJECT

public:
    EventWiring(const Platform &platform, Features &features, RecordSaving &recordSaving,
        Termination &termination);

    /// The event sources: settings, broadcasts, the system. Once, from startup.
    void setupNotifications();

private:
    void connectHelper();
    void connectSelection();
    void connectAddressChange();
    void connectRules();
    void connectRuleEditor();
    void connectRecords();
    void connectNetworks();
    void connectNetworkEvents();
    void connectVendorData();
    void connectVendorField();
    void connectUpdates();
    void connectAccount();
    void connectProgram();
    void observeSettings();
    void observeBroadcasts();

    template <typename From, typename Signal, typename Reactions>
    void on(From &from, Signal signal, Reactions reactions)
    {
        connect(&from, signal, this, reactions);
    }
    void postTerminateLoginHelper();

    const Platform &m_platform;
    Features &m_features;
    RecordSaving &m_recordSaving;
    Termination &m_termination;
    NetworkChange m_networkChange;
    NetworkEvents m_networkEvents;
    CountdownAudience m_countdownAudience;
    OpenMenuLimit m_openMenuLimit;
    Observations m_observations;
};

} // namespace quillon
