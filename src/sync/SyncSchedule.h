// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Scheduler.h"
#include "sync/SyncRound.h"

#include <QObject>

#include <chrono>
#include <functional>
#include <optional>

namespace quillon {

class RandomSource;

/// How long is long enough. What is repeated is up to a tenth longer or shorter each time, so that
/// a person's computers do not all ask at once.
struct SyncPace
{
    std::chrono::milliseconds poll = std::chrono::minutes(3);
    int pollsToListing = 10; ///< every so often everything is looked at, whatever the head says
    std::chrono::milliseconds soon = std::chrono::seconds(30);     ///< where a listing is wanted
    std::chrono::milliseconds gathering = std::chrono::seconds(2); ///< from the last edit on
    std::chrono::milliseconds longestGathering = std::chrono::seconds(10); ///< from the first on
    std::chrono::milliseconds firstRetry = std::chrono::seconds(30); ///< doubled by each failure
    std::chrono::milliseconds longestRetry = std::chrono::hours(1);
};

/// When the account is looked at: at once after the start and after being offline, shortly after
/// edits, every few minutes otherwise; ever more rarely while that fails. Never while the computer
/// is offline, and while it saves its battery only to send edits. After a wrong password not until
/// somebody asks for it, lest the account be locked. Main thread.
class SyncSchedule : public QObject
{
public:
    /// Begins a round; `done` is called when it has ended, exactly once.
    using Run = std::function<void(SyncRound::Look look, SyncRound::Done done)>;

    /// The scheduler and the source outlive it.
    SyncSchedule(Scheduler &scheduler, RandomSource &random, Run run, const SyncPace &pace = {});
    ~SyncSchedule() override;

    /// Nothing is looked at before.
    void start();
    void setOnline(bool online);
    void setSavingBattery(bool saving);
    /// Something waits to be sent.
    void edited();
    /// The person asks for it, or the account has become another one.
    void lookNow();

private:
    using Moment = std::chrono::milliseconds; ///< as Scheduler::monotonic()

    void arrange();
    std::optional<Moment> due() const;
    void begin();
    void end(const SyncOutcome &outcome);
    Moment varied(std::chrono::milliseconds time);
    std::chrono::milliseconds untilNext(const SyncOutcome &outcome) const;

    Scheduler &m_scheduler;
    RandomSource &m_random;
    Run m_run;
    SyncPace m_pace;
    std::optional<Scheduler::Token> m_timer;
    bool m_hasStarted = false;
    bool m_isOnline = true;
    bool m_isSaving = false;
    bool m_isRunning = false;
    bool m_sends = false; ///< the round that runs, or the last one
    bool m_waitsForPerson = false;
    bool m_mustList = true;
    int m_polls = 0; ///< since the last listing
    int m_failures = 0;
    Moment m_nextPoll{0};
    std::optional<Moment> m_firstEdit; ///< of those that are to be sent
    Moment m_lastEdit{0};
};

} // namespace quillon
