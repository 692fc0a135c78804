// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/features/HistoryFeature.h"

#include "app/EventWiring.h"
#include "app/LaunchSequence.h"
#include "platform/Platform.h"

namespace quillon {

HistoryFeature::HistoryFeature(const Platform &platform)
    : store({platform.settings, platform.scheduler, platform.alerts}, platform.places.supportFolder)
    , saving(store, platform.alerts)
    , history(store, platform.settings, platform.scheduler)
{
}

void HistoryFeature::connectTo(EventWiring &wiring, LaunchSequence &launch)
{
    QObject::connect(&launch, &LaunchSequence::recordStoreDue, &wiring,
        [this] { store.managedObjectContext(); });
    QObject::connect(&wiring, &EventWiring::cloudSyncSwitched, &wiring,
        [this] { store.refreshPersistentContainer(); });
    // Direct: the history is written between the user's message and the broadcast, on their thread.
    QObject::connect(
        &wiring, &EventWiring::historyRecordDue, &wiring,
        [this](const QString &device, const QString &address) {
            history.addHistoryItemForDeviceWithNewAddress(device, address);
        },
        Qt::DirectConnection);
}

} // namespace quillon
