// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Termination.h"

#include "app/RecordFailure.h"
#include "base/Localized.h"
#include "base/Log.h"
#include "platform/desktop/AlertPresenter.h"
#include "store/RecordStore.h"

#include <QScopedValueRollback>

namespace quillon {

Termination::Termination(RecordStore &store, AlertPresenter &alerts)
    : m_store(store)
    , m_alerts(alerts)
{
}

void Termination::terminate()
{
    if (m_asking) {
        return;
    }
    const QScopedValueRollback asking(m_asking, true);
    if (applicationShouldTerminate()) {
        Q_EMIT granted();
    }
}

bool Termination::applicationShouldTerminate()
{
    if (!m_store.hasManagedObjectContext()) {
        return true;
    }
    ManagedObjectContext &context = m_store.managedObjectContext();
    if (!context.commitEditing()) {
        qCWarning(logRecords, "QuillonAppDelegate:applicationShouldTerminate: unable to commit "
                              "editing to terminate");
        return false;
    }
    if (!context.hasChanges()) {
        return true;
    }
    const auto error = context.save();
    // While the user reads, the context may be replaced: it is not used any more from here on.
    return !error || (!m_alerts.presentError(saveFailure(*error)) && quitAnyway());
}

bool Termination::quitAnyway()
{
    constexpr int cancelButton = 1;
    const int button =
        m_alerts.runModal({localized("Could not save changes while quitting. Quit anyway?"),
            localized("Quitting now will lose any changes you have made since the last successful "
                      "save"),
            {localized("Quit anyway"), localized("Cancel")}});
    return button != cancelButton;
}

} // namespace quillon
