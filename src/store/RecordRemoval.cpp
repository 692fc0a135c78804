// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/RecordRemoval.h"

#include "platform/Scheduler.h"
#include "store/RecordStore.h"
#include "store/file/RowRemoval.h"
#include "store/model/QuillonModel.h"

namespace quillon {

namespace {

/// A multiple of what is deleted at once. Lists let go of what is deleted while the rest is.
constexpr qsizetype keysBetweenMerges = 20'000;

} // namespace

RecordRemoval::RecordRemoval(RecordStore &records, Scheduler &scheduler)
    : m_records(records)
    , m_scheduler(scheduler)
{
}

RecordRemoval::~RecordRemoval()
{
    stop();
}

void RecordRemoval::remove(const QString &entityName, const QList<qint64> &keys)
{
    const Entity *const entity = quillonModel().entity(entityName);
    if (isRunning() || entity == nullptr) {
        return;
    }
    if (const auto error = m_records.managedObjectContext().save()) {
        Q_EMIT ended(0, error);
        return;
    }
    m_isStopped = std::make_shared<std::atomic_bool>(false);
    const auto progressed =
        m_scheduler.replyOnMain<qsizetype>(this, [this, of = keys.size()](qsizetype done) {
            Q_EMIT this->progressed(done, of);
            if (done % keysBetweenMerges == 0) {
                m_records.managedObjectContext().mergeChangesFromStore();
            }
        });
    const auto ended = m_scheduler.replyOnMain<qsizetype, std::optional<Error>>(
        this, [this](qsizetype done, const std::optional<Error> &error) { end(done, error); });
    m_scheduler.inBackground([path = m_records.path(), entity = *entity, keys,
                                 isStopped = m_isStopped, progressed, ended] {
        qsizetype done = 0;
        const auto error =
            removeRows(path, entity, keys, *isStopped, [&done, &progressed](qsizetype now) {
                done = now;
                progressed(now);
            });
        ended(done, error);
    });
}

void RecordRemoval::stop()
{
    if (m_isStopped) {
        *m_isStopped = true;
    }
}

void RecordRemoval::end(qsizetype done, const std::optional<Error> &error)
{
    m_isStopped.reset();
    m_records.managedObjectContext().mergeChangesFromStore();
    Q_EMIT ended(done, error);
}

} // namespace quillon
