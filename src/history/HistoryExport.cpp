// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/HistoryExport.h"

#include "base/Localized.h"
#include "history/HistoryCsv.h"
#include "platform/Scheduler.h"

#include <QFileInfo>
#include <QSaveFile>

namespace quillon {

namespace {

constexpr qsizetype recordsBetweenNews = 5000;

} // namespace

HistoryExport::HistoryExport(Scheduler &scheduler)
    : m_scheduler(scheduler)
{
}

HistoryExport::~HistoryExport()
{
    cancel();
}

void HistoryExport::write(const RecordSnapshot &records, const QString &path)
{
    if (isRunning()) {
        return;
    }
    m_isCancelled = std::make_shared<std::atomic_bool>(false);
    const auto tell = m_scheduler.replyOnMain<qsizetype>(this,
        [this, of = records.keys().size()](qsizetype count) { Q_EMIT progressed(count, of); });
    const auto ended =
        m_scheduler.replyOnMain<End>(this, [this](const End &reached) { end(reached); });
    m_scheduler.inBackground([records, path, isCancelled = m_isCancelled, tell, ended] {
        ended(writeAll(records, path, *isCancelled, tell));
    });
}

void HistoryExport::cancel()
{
    if (m_isCancelled) {
        *m_isCancelled = true;
    }
}

HistoryExport::End HistoryExport::writeAll(const RecordSnapshot &records, const QString &path,
    const std::atomic_bool &isCancelled, const Tell &tell)
{
    End end;
    if (const QFileInfo info(path); info.exists() && !info.isFile()) {
        // A device or a pipe would be replaced by the file.
        end.failure = localized("This is no file.");
        return end;
    }
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly)) {
        end.failure = file.errorString();
        return end;
    }
    bool isWritten = file.write(csvHeader()) >= 0;
    const auto error = records.read([&](const QVariantList &values) {
        isWritten = isWritten && file.write(csvRow(records.entity(), values)) >= 0;
        if (++end.count % recordsBetweenNews == 0) {
            tell(end.count);
        }
        return isWritten && !isCancelled;
    });
    end.isCancelled = isCancelled;
    if (error || end.isCancelled) {
        file.cancelWriting();
        end.failure = error ? error->message : QString();
    } else if (!file.commit()) {
        end.failure = file.errorString();
    }
    return end;
}

void HistoryExport::end(const End &end)
{
    m_isCancelled.reset();
    if (!end.failure.isEmpty()) {
        Q_EMIT failed(end.failure);
    } else if (end.isCancelled) {
        Q_EMIT cancelled();
    } else {
        Q_EMIT written(end.count);
    }
}

} // namespace quillon
