// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sync/RequestQueue.h"
#include "sync/RoundState.h"
#include "sync/SnapshotWriting.h"

#include <functional>

namespace quillon {

/// Keeps the account small and whole: writes snapshots, and removes what they cover. Main thread.
class ClearingUp
{
public:
    enum class Next
    {
        Proceed,
        List, ///< something was written that the listing does not show
    };
    using Then = std::function<void(Next)>;

    explicit ClearingUp(RoundState &state);

    /// Begins the next thing that the plan asks for; `then` is called when it has ended. False when
    /// there is none, or when something went wrong in this round.
    bool begin(const SyncPlan &plan, Then then);
    /// What is not in the account any more need not be remembered. A listing that was not whole
    /// makes that some files are read again.
    void forgetOldNames(const SyncPlan &now);

private:
    void end(Next next);
    void noteLosses(const SyncPlan &plan);
    void verify(const SnapshotFiles &files);
    void remove(const QStringList &names, std::function<void()> done);
    void forgetUnfinished();
    bool writeSnapshot(const SyncPlan &plan);

    RoundState &m_state;
    SnapshotWriting m_snapshot;
    RequestQueue m_removing;
    Then m_then;
    bool m_hasNotedLosses = false;
    bool m_heals = false;
    bool m_hasCleared = false;
    bool m_hasVerified = false;
    bool m_hasWrittenSnapshot = false;
};

} // namespace quillon
