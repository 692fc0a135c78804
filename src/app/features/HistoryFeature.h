// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "history/HistoryRecords.h"
#include "history/KnownPlaces.h"
#include "presentation/history/HistoryController.h"
#include "presentation/history/HistoryImport.h"
#include "store/RecordStore.h"

namespace quillon {

struct Platform;

/// What the program remembers, put together: the records of rules and changes, the history, and
/// what its window shows.
struct HistoryFeature
{
    HistoryFeature(
        const Platform &platform, const DeviceTable &devices, RecordStore::OpenFailure openFailure);

    RecordStore store;
    HistoryRecords history;
    HistoryController controller;
    KnownPlaces knownPlaces;
    HistoryImport import;
};

} // namespace quillon
