// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/RecordSaving.h"
#include "history/HistoryRecords.h"
#include "store/RecordStore.h"

namespace quillon {

class EventWiring;
class LaunchSequence;
struct Platform;

/// What the program remembers, put together: the records, their saving, the history.
struct HistoryFeature
{
    explicit HistoryFeature(const Platform &platform);

    /// Connections only; they end with `wiring`.
    void connectTo(EventWiring &wiring, LaunchSequence &launch);

    RecordStore store;
    RecordSaving saving;
    HistoryRecords history;
};

} // namespace quillon
