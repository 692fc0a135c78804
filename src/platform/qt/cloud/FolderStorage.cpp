// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/cloud/FolderStorage.h"

#include "platform/qt/cloud/FolderFiles.h"
#include "platform/qt/settings/FileWatch.h"

#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// A program that synchronizes brings files in bursts.
constexpr auto untilCalm = 500ms;

} // namespace

FolderStorage::FolderStorage(Scheduler &scheduler, const QString &folder)
    : m_scheduler(scheduler)
    , m_folder(folder)
    , m_files(std::make_shared<FolderFiles>(
          folder, [&scheduler] { return scheduler.now().toSecsSinceEpoch(); }))
    , m_queue(scheduler)
{
}

FolderStorage::~FolderStorage() = default;

template <typename Answer, typename Work, typename Reply>
void FolderStorage::run(Work work, Reply reply)
{
    m_queue.add([files = m_files, work = std::move(work),
                    answer = m_scheduler.replyOnMain<Answer>(&m_context, std::move(reply))] {
        answer(work(*files));
    });
}

void FolderStorage::list(Listed listed)
{
    run<CloudResult<QList<CloudFile>>>(
        [](FolderFiles &files) { return files.list(); }, std::move(listed));
}

void FolderStorage::read(const QString &name, qint64 limit, Read read)
{
    // Without a revision there is always a content, or an error.
    readIfChanged(name, {}, limit,
        [read = std::move(read)](const CloudResult<std::optional<Content>> &result) {
            if (const auto *const error = std::get_if<CloudError>(&result)) {
                read(*error);
            } else {
                read(std::get<std::optional<Content>>(result).value_or(Content()));
            }
        });
}

void FolderStorage::readIfChanged(
    const QString &name, const QByteArray &revision, qint64 limit, ReadChanged read)
{
    run<CloudResult<std::optional<Content>>>(
        [=](FolderFiles &files) { return files.read(name, revision, limit); }, std::move(read));
}

void FolderStorage::create(const QString &name, const QByteArray &bytes, Written written)
{
    run<CloudResult<QByteArray>>(
        [=](FolderFiles &files) { return files.create(name, bytes); }, std::move(written));
}

void FolderStorage::replace(
    const QString &name, const QByteArray &bytes, const QByteArray &revision, Written written)
{
    run<CloudResult<QByteArray>>(
        [=](FolderFiles &files) { return files.replace(name, bytes, revision); },
        std::move(written));
}

void FolderStorage::remove(const QString &name, Removed removed)
{
    run<std::optional<CloudError>>(
        [=](FolderFiles &files) { return files.remove(name); }, std::move(removed));
}

void FolderStorage::watch(std::function<void()> changed)
{
    m_changed = std::move(changed);
    if (!m_watch) {
        // No file has that name; what is watched is the folder, and whether it comes back.
        m_watch = std::make_unique<FileWatch>(
            m_folder + u"/~quillon-watch"_s, [this] { folderChanged(); });
    }
}

void FolderStorage::folderChanged()
{
    if (std::exchange(m_isAnnounced, true)) {
        return;
    }
    m_scheduler.onMainAfter(untilCalm, &m_context, [this] {
        m_isAnnounced = false;
        if (const std::function<void()> changed = m_changed) {
            changed(); // may destroy us
        }
    });
}

} // namespace quillon
