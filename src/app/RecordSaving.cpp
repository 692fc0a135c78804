// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/RecordSaving.h"

#include "app/RecordFailure.h"
#include "base/Log.h"
#include "platform/desktop/AlertPresenter.h"
#include "store/RecordStore.h"

namespace quillon {

RecordSaving::RecordSaving(RecordStore &store, AlertPresenter &alerts)
    : m_store(store)
    , m_alerts(alerts)
{
}

void RecordSaving::saveAction()
{
    ManagedObjectContext &context = m_store.managedObjectContext();
    if (!context.commitEditing()) {
        qCWarning(
            logRecords, "QuillonAppDelegate:saveAction: unable to commit editing before saving");
    }
    if (!context.hasChanges()) {
        return;
    }
    if (const auto error = context.save()) {
        m_alerts.presentError(saveFailure(*error));
    }
}

} // namespace quillon
