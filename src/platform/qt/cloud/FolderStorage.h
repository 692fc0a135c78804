// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/CloudStorage.h"
#include "platform/SerialQueue.h"

#include <QObject>

#include <memory>

namespace quillon {

class FileWatch;
class FolderFiles;

/// The folder of an account that another program synchronizes, or a file system of the network. It
/// must be there: one that is missing is Unreachable, since its disk or server may come back. All
/// work is done by the scheduler's other threads, one request after the other; what has begun when
/// this goes is finished without an answer.
class FolderStorage : public CloudStorage
{
public:
    FolderStorage(Scheduler &scheduler, const QString &folder);
    ~FolderStorage() override;

    void list(Listed listed) override;
    void read(const QString &name, qint64 limit, Read read) override;
    void readIfChanged(
        const QString &name, const QByteArray &revision, qint64 limit, ReadChanged read) override;
    void create(const QString &name, const QByteArray &bytes, Written written) override;
    void replace(const QString &name, const QByteArray &bytes, const QByteArray &revision,
        Written written) override;
    void remove(const QString &name, Removed removed) override;
    void watch(std::function<void()> changed) override;

private:
    template <typename Answer, typename Work, typename Reply>
    void run(Work work, Reply reply);
    void folderChanged();

    Scheduler &m_scheduler;
    const QString m_folder;
    const std::shared_ptr<FolderFiles> m_files; ///< used by the queue only
    QObject m_context;
    std::unique_ptr<FileWatch> m_watch;
    std::function<void()> m_changed;
    bool m_isAnnounced = false;
    SerialQueue m_queue;
};

} // namespace quillon
