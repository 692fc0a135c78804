// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/Error.h"

#include <QList>
#include <QObject>

#include <atomic>
#include <memory>
#include <optional>

namespace quillon {

class RecordStore;
class Scheduler;

/// Deletes more records than there could be objects of, for good: straight from the file, in the
/// background. One removal at a time. Main thread.
class RecordRemoval : public QObject
{
    Q_OBJECT

public:
    RecordRemoval(RecordStore &records, Scheduler &scheduler);
    /// What is not deleted yet stays.
    ~RecordRemoval() override;

    bool isRunning() const { return m_isStopped != nullptr; }
    /// Saves what is pending, as the file is what is deleted from; an Error of that is told as the
    /// removal's end.
    void remove(const QString &entity, const QList<qint64> &keys);
    void stop();

Q_SIGNALS:
    void progressed(qsizetype done, qsizetype of);
    /// The records in memory follow the file again. Of the keys so many are done.
    void ended(qsizetype done, const std::optional<quillon::Error> &error);

private:
    void end(qsizetype done, const std::optional<Error> &error);

    RecordStore &m_records;
    Scheduler &m_scheduler;
    std::shared_ptr<std::atomic_bool> m_isStopped; ///< of the removal that runs
};

} // namespace quillon
