// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "sync/HeadFile.h"

#include "platform/RandomSource.h"
#include "sync/AccountFile.h"
#include "sync/ReplicaStorage.h"

#include <QPointer>

#include <utility>

namespace quillon {

namespace {

constexpr int headSize = 16;
/// Those of later versions may be longer.
constexpr qint64 longestHead = 4096;

} // namespace

void HeadFile::look(Answered answered)
{
    m_hasLooked = true;
    m_state.deps.account.readIfChanged(headFileName, m_state.deps.storage.progress().headRevision,
        longestHead, [self = QPointer(this), answered = std::move(answered)](const auto &result) {
            if (self) {
                answered(self->take(result));
            }
        });
}

bool HeadFile::take(const CloudResult<std::optional<CloudStorage::Content>> &result)
{
    m_isMissing = false;
    m_isForeign = false;
    m_seen.reset();
    if (const auto *error = std::get_if<CloudError>(&result)) {
        m_isMissing = error->problem == CloudProblem::NotThere;
        m_isForeign = error->problem == CloudProblem::TooLarge;
        if (!m_isMissing && !m_isForeign) {
            m_state.fail(*error);
        }
        return true;
    }
    const auto &content = std::get<std::optional<CloudStorage::Content>>(result);
    if (!content) {
        return false;
    }
    m_seen = *content;
    const ReplicaProgress progress = m_state.deps.storage.progress();
    if (content->bytes != progress.head || progress.head.isEmpty()) {
        return true;
    }
    if (content->revision != progress.headRevision) {
        remember();
    }
    return false;
}

void HeadFile::remember()
{
    ReplicaStorage &storage = m_state.deps.storage;
    if (!m_seen && !m_isMissing) {
        return;
    }
    const bool kept = storage.transaction([&] {
        ReplicaProgress progress = storage.progress();
        progress.head = m_seen ? m_seen->bytes : QByteArray();
        progress.headRevision = m_seen ? m_seen->revision : QByteArray();
        progress.isHeadDue |= m_isMissing;
        storage.setProgress(progress);
    });
    m_seen.reset();
    if (!kept) {
        m_state.failStoring();
    }
}

void HeadFile::replace(Answered answered)
{
    --m_tries;
    const bool knowsRevision = !m_state.deps.storage.progress().headRevision.isEmpty();
    if (knowsRevision || m_hasLooked) {
        write(answered);
        return;
    }
    look([this, answered = std::move(answered)](bool isNews) {
        if (isNews) {
            answered(true);
        } else {
            write(answered);
        }
    });
}

void HeadFile::write(const Answered &answered)
{
    const QByteArray bytes = m_state.deps.random.bytes(headSize);
    if (bytes.size() != headSize) {
        m_state.failWriting({CloudProblem::Failed, QStringLiteral("no random bytes")});
        answered(false);
        return;
    }
    const auto done = [self = QPointer(this), bytes, answered](const auto &result) {
        if (self) {
            self->written(bytes, result, answered);
        }
    };
    if (m_isMissing) {
        m_state.deps.account.create(headFileName, bytes, done);
    } else {
        m_state.deps.account.replace(headFileName, bytes,
            m_isForeign ? QByteArray() : m_state.deps.storage.progress().headRevision, done);
    }
}

void HeadFile::written(
    const QByteArray &bytes, const CloudResult<QByteArray> &result, const Answered &answered)
{
    if (const auto *error = std::get_if<CloudError>(&result)) {
        if (error->problem == CloudProblem::Changed || error->problem == CloudProblem::NotThere) {
            // Somebody else wrote, too; or the revision was not one to rely on.
            look(answered);
            return;
        }
        m_state.failWriting(*error);
        answered(false);
        return;
    }
    ReplicaStorage &storage = m_state.deps.storage;
    const bool kept = storage.transaction([&] {
        ReplicaProgress progress = storage.progress();
        progress.head = bytes;
        progress.headRevision = std::get<QByteArray>(result);
        progress.isHeadDue = false;
        storage.setProgress(progress);
    });
    m_isMissing = false;
    m_isForeign = false;
    if (!kept) {
        m_state.failStoring();
    }
    answered(false);
}

} // namespace quillon
