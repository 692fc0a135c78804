// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "history/HistoryRecords.h"
#include "store/RecordSaving.h"
#include "store/RecordStore.h"

namespace quillon {

class EventWiring;
class LaunchSequence;
struct Platform;

/// What the program remembers, put together: the records, their saving, the history.
struct RecordRoom
{
    explicit RecordRoom(const Platform &platform);

    /// Connections only; they end with `wiring`.
    void connectTo(EventWiring &wiring, LaunchSequence &launch);

    RecordStore store;
    RecordSaving saving;
    HistoryRecords history;
};

} // namespace quillon
