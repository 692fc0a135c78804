// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/history/HistoryDeletion.h"

#include "base/Localized.h"
#include "base/Log.h"
#include "platform/desktop/AlertPresenter.h"
#include "store/RecordStore.h"
#include "store/model/QuillonModel.h"

namespace quillon {

namespace {

QString deletedText(qsizetype count)
{
    return localized("Record deleted", "%Ln records deleted", count);
}

} // namespace

HistoryDeletion::HistoryDeletion(RecordStore &records, Scheduler &scheduler, AlertPresenter &alerts)
    : m_records(records)
    , m_alerts(alerts)
    , m_removal(records, scheduler)
{
    connect(&records, &RecordStore::undoPlaceChanged, this, [this] {
        if (m_undoPlace && m_records.undoPlace() != *m_undoPlace) {
            loseUndo();
        }
    });
    connect(&records, &RecordStore::managedObjectContextReplaced, this, &HistoryDeletion::loseUndo);
    connect(&m_removal, &RecordRemoval::progressed, this, [this](qsizetype done, qsizetype of) {
        m_progress = {done, of};
        Q_EMIT progressChanged();
    });
    connect(&m_removal, &RecordRemoval::ended, this,
        [this](qsizetype done, const std::optional<Error> &error) {
            m_progress.reset();
            Q_EMIT progressChanged();
            if (done > 0) {
                Q_EMIT deleted(deletedText(done), false);
            }
            if (error) {
                qCWarning(
                    logHistory, "Records cannot be deleted: %s", qUtf8Printable(error->message));
                Q_EMIT failed(localized("The records could not be deleted."));
            }
        });
}

void HistoryDeletion::remove(const ManagedObjectList &objects)
{
    if (objects.isEmpty()) {
        return;
    }
    loseUndo();
    ManagedObjectContext &context = m_records.managedObjectContext();
    for (const ManagedObjectPtr &object : objects) {
        context.deleteObject(object);
    }
    m_undoPlace = m_records.undoPlace();
    context.processPendingChanges();
    Q_EMIT deleted(deletedText(objects.size()), true);
}

void HistoryDeletion::removeForGood(const QList<qint64> &keys)
{
    if (keys.isEmpty() || m_removal.isRunning()) {
        return;
    }
    constexpr int deleteButton = 0;
    constexpr int cancelButton = 1;
    const int answer =
        m_alerts.runModal({localized("Delete %Ln record?", "Delete %Ln records?", keys.size()),
            localized("So many records at once cannot be brought back."),
            {localized("Delete"), localized("Cancel")}, cancelButton});
    // The alert let time go by.
    if (answer != deleteButton || m_removal.isRunning()) {
        return;
    }
    loseUndo();
    m_progress = {0, keys.size()};
    Q_EMIT progressChanged();
    m_removal.remove(model::Connection, keys);
}

void HistoryDeletion::stop()
{
    m_removal.stop();
}

void HistoryDeletion::undo()
{
    if (m_undoPlace == m_records.undoPlace()) {
        m_undoPlace.reset();
        m_records.undo();
    }
}

void HistoryDeletion::loseUndo()
{
    if (m_undoPlace) {
        m_undoPlace.reset();
        Q_EMIT undoLost();
    }
}

} // namespace quillon
