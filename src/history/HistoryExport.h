// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "store/RecordSnapshot.h"

#include <QObject>

#include <atomic>
#include <functional>
#include <memory>
#include <optional>

namespace quillon {

class Scheduler;

/// Writes the records of a list into a file of comma-separated values, in the background. The file
/// appears, or takes the place of the one of its name, when it is whole. One at a time; main
/// thread.
class HistoryExport : public QObject
{
    Q_OBJECT

public:
    explicit HistoryExport(Scheduler &scheduler);
    /// Cancels.
    ~HistoryExport() override;

    bool isRunning() const { return m_isCancelled != nullptr; }
    void write(const RecordSnapshot &records, const QString &path);
    void cancel();

Q_SIGNALS:
    void progressed(qsizetype written, qsizetype of);
    /// The file is there, with so many records.
    void written(qsizetype count);
    void cancelled();
    /// Nothing was changed; `reason` is the system's, in its words.
    void failed(const QString &reason);

private:
    struct End
    {
        qsizetype count = 0;
        bool isCancelled = false;
        QString failure; ///< empty when there was none
    };
    using Tell = std::function<void(qsizetype)>;

    static End writeAll(const RecordSnapshot &records, const QString &path,
        const std::atomic_bool &isCancelled, const Tell &tell);
    void end(const End &end);

    Scheduler &m_scheduler;
    std::shared_ptr<std::atomic_bool> m_isCancelled; ///< of the one that runs
};

} // namespace quillon
