// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sync/Replica.h"

namespace quillon {

class RecordMirrorStorage;

/// Makes edits of what the records have become while nothing was mirrored, in steps of bounded
/// size: at first of all of them. It begins anew when it was cut short, and finds less to do.
/// A record that was never mirrored counts as older than whatever somebody wrote: an account that
/// has it already, from a copy of this file, knows better, also that it was deleted.
class RecordMirrorCatchUp
{
public:
    explicit RecordMirrorCatchUp(RecordMirrorStorage &storage)
        : m_storage(storage)
    {
    }

    /// Within a transaction. `now` in milliseconds since 1970 UTC. False when that failed.
    bool step(Replica &replica, qint64 now);
    bool isDone() const { return m_phase == Phase::Done; }

private:
    enum class Phase
    {
        Rows,   ///< those that are there
        States, ///< of records that are not
        Done,
    };

    bool stepOverRows(Replica &replica, qint64 now);
    bool stepOverStates(Replica &replica, qint64 now);
    void showRules();

    RecordMirrorStorage &m_storage;
    Phase m_phase = Phase::Rows;
    qsizetype m_entity = 0; ///< of the model
    qint64 m_key = 0;       ///< of the last row that was looked at
    RecordId m_state;       ///< the last that was looked at
};

} // namespace quillon
