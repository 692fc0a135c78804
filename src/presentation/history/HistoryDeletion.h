// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "store/RecordRemoval.h"
#include "store/graph/ManagedObject.h"

#include <QObject>

#include <optional>

namespace quillon {

class AlertPresenter;
class RecordStore;
class Scheduler;

/// Deletes records of the history: at once and so that it can be undone, as long as there are not
/// too many to be kept for that. More go for good, after the user was asked. Main thread.
class HistoryDeletion : public QObject
{
    Q_OBJECT

public:
    static constexpr qsizetype mostUndoable = 10'000;

    HistoryDeletion(RecordStore &records, Scheduler &scheduler, AlertPresenter &alerts);

    /// No more than mostUndoable. One step of undo.
    void remove(const ManagedObjectList &objects);
    /// Asks, and deletes in the background.
    void removeForGood(const QList<qint64> &keys);
    /// Ends what runs in the background: the rest stays.
    void stop();
    /// Brings the last deletion back; nothing happens when it cannot be undone any more.
    void undo();

    struct Progress
    {
        qsizetype done = 0;
        qsizetype of = 0;

        bool operator==(const Progress &) const = default;
    };
    /// Of a deletion in the background; none when none runs.
    const std::optional<Progress> &progress() const { return m_progress; }

Q_SIGNALS:
    /// "3 records deleted".
    void deleted(const QString &message, bool canUndo);
    /// What was said of the last deletion's undo does not hold any more.
    void undoLost();
    void progressChanged();
    void failed(const QString &message);

private:
    void loseUndo();

    RecordStore &m_records;
    AlertPresenter &m_alerts;
    RecordRemoval m_removal;
    std::optional<Progress> m_progress;
    std::optional<int> m_undoPlace; ///< where the deletion is the last step
};

} // namespace quillon
