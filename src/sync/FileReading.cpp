// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "sync/FileReading.h"

#include "sync/SealedFile.h"

#include <QPointer>

#include <utility>

namespace quillon {

FileReading::FileReading(RoundState &state)
    : m_state(state)
    , m_queue(state.limits.requests)
{
}

void FileReading::run(const QStringList &names, Take take, Finished finished)
{
    m_names = names;
    m_take = std::move(take);
    m_all = true;
    m_queue.run(
        [this]() -> std::optional<QString> {
            if (m_names.isEmpty() || m_state.isStopped) {
                return std::nullopt;
            }
            return m_names.takeFirst();
        },
        [this](const QString &name, const auto &answered) { read(name, answered); },
        [this, finished = std::move(finished)] { finished(m_all && m_names.isEmpty()); });
}

void FileReading::read(const QString &name, const RequestQueue::Answered &answered)
{
    m_state.tried.insert(name);
    const CloudFile *listed = m_state.listed(name);
    if (listed && listed->size > longestSealedFile) {
        refuse(name, FileProblem::TooLarge);
        answered();
        return;
    }
    m_state.deps.account.read(name, longestSealedFile,
        [this, alive = QPointer(&m_queue), name, answered](const auto &result) {
            if (alive) {
                take(name, result);
                answered();
            }
        });
}

void FileReading::take(const QString &name, const CloudResult<CloudStorage::Content> &result)
{
    if (const auto *content = std::get_if<CloudStorage::Content>(&result)) {
        if (const auto problem = m_take(name, content->bytes)) {
            refuse(name, *problem, content->revision);
        }
        return;
    }
    const auto &error = std::get<CloudError>(result);
    if (error.problem == CloudProblem::TooLarge) {
        refuse(name, FileProblem::TooLarge);
        return;
    }
    m_all = false;
    if (error.problem == CloudProblem::NotThere) {
        m_state.hasVanished = true;
        m_state.setUnlisted(name);
    } else {
        m_state.fail(error);
    }
}

void FileReading::refuse(const QString &name, FileProblem problem, const QByteArray &readRevision)
{
    m_all = false;
    if (problem == FileProblem::NotKept) {
        m_state.failStoring();
    } else {
        m_state.refuse(name, problem, readRevision);
    }
}

} // namespace quillon
