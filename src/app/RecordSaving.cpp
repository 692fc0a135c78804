// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/RecordSaving.h"

#include "base/Localized.h"
#include "base/Log.h"
#include "platform/AlertPresenter.h"
#include "store/RecordFailure.h"
#include "store/RecordStore.h"

namespace quillon {

namespace {

constexpr int cancelButton = 1;

/// `text` names first the class that the operation is known by, then the operation.
void logRefusal(const char *text, const QString &operation)
{
    qCWarning(logRecords, "%s",
        qUtf8Printable(
            filled(QString::fromUtf8(text), {QStringLiteral("QuillonAppDelegate"), operation})));
}

/// The same failure in words for the user.
Error presentable(const Error &error)
{
    return {error.domain, error.code,
        filled(
            localized("Rules and history could not be saved. They are kept while Quillon runs. %@"),
            {reasonOf(error)})};
}

} // namespace

RecordSaving::RecordSaving(RecordStore &store, AlertPresenter &alerts)
    : m_store(store)
    , m_alerts(alerts)
{
}

void RecordSaving::saveAction()
{
    ManagedObjectContext &context = m_store.managedObjectContext();
    if (!context.commitEditing()) {
        logRefusal("%@:%@ unable to commit editing before saving", QStringLiteral("saveAction:"));
    }
    if (!context.hasChanges()) {
        return;
    }
    if (const auto error = context.save()) {
        m_alerts.presentError(presentable(*error));
    }
}

RecordSaving::TerminateReply RecordSaving::applicationShouldTerminate()
{
    if (!m_store.hasManagedObjectContext()) {
        return TerminateReply::Now;
    }
    ManagedObjectContext &context = m_store.managedObjectContext();
    if (!context.commitEditing()) {
        logRefusal("%@:%@ unable to commit editing to terminate",
            QStringLiteral("applicationShouldTerminate:"));
        return TerminateReply::Cancel;
    }
    if (!context.hasChanges()) {
        return TerminateReply::Now;
    }
    const auto error = context.save();
    if (!error) {
        return TerminateReply::Now;
    }
    // While the user reads, the context may be replaced: it is not used any more from here on.
    if (m_alerts.presentError(presentable(*error))) {
        return TerminateReply::Cancel;
    }
    return quitAnyway() ? TerminateReply::Now : TerminateReply::Cancel;
}

bool RecordSaving::quitAnyway()
{
    const int button =
        m_alerts.runModal({localized("Could not save changes while quitting. Quit anyway?"),
            localized("Quitting now will lose any changes you have made since the last successful "
                      "save"),
            {localized("Quit anyway"), localized("Cancel")}});
    return button != cancelButton;
}

} // namespace quillon
