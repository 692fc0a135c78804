// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "sync/FileSending.h"

#include "sync/Replica.h"
#include "sync/ReplicaStorage.h"
#include "sync/SealedFile.h"

#include <QPointer>

#include <algorithm>
#include <utility>

namespace quillon {

FileSending::FileSending(RoundState &state)
    : m_state(state)
    , m_queue(state.limits.requests)
{
}

bool FileSending::isNeeded() const
{
    const QMap<QString, QByteArray> outgoing = m_state.deps.storage.outgoing();
    return m_state.deps.storage.hasPending() ||
           std::any_of(outgoing.keyBegin(), outgoing.keyEnd(),
               [this](const QString &name) { return !m_tried.contains(name); });
}

void FileSending::run(RequestQueue::Finished finished)
{
    m_queue.run([this] { return next(); },
        [this](const QString &name, const auto &answered) { send(name, answered); },
        std::move(finished));
}

std::optional<QString> FileSending::next()
{
    const SyncDeps &deps = m_state.deps;
    while (!m_state.isStopped && !m_state.refusesWrites) {
        const QMap<QString, QByteArray> outgoing = deps.storage.outgoing();
        for (auto it = outgoing.begin(); it != outgoing.end(); ++it) {
            if (!m_tried.contains(it.key())) {
                m_tried.insert(it.key());
                return it.key();
            }
        }
        if (!deps.storage.hasPending()) {
            break;
        }
        if (!deps.replica.sealNext()) {
            m_state.failStoring();
        }
    }
    return std::nullopt;
}

void FileSending::send(const QString &name, const Answered &answered)
{
    // Before it is written over where the account allows that.
    if (m_state.listed(name)) {
        settle(name, answered);
        return;
    }
    m_state.deps.account.create(name, m_state.deps.storage.outgoing().value(name),
        [this, alive = QPointer(&m_queue), name, answered](const auto &result) {
            if (!alive) {
                return;
            }
            const auto *error = std::get_if<CloudError>(&result);
            if (error && error->problem == CloudProblem::Changed) {
                settle(name, answered);
                return;
            }
            if (error) {
                m_state.failWriting(*error);
            } else {
                sent(name, std::get<QByteArray>(result));
            }
            answered();
        });
}

/// Something of that name is there: this file, of which nobody told us that it arrived; half of it;
/// or another one, and then this computer was set back and has used the number before.
void FileSending::settle(const QString &name, const Answered &answered)
{
    m_state.deps.account.read(name, longestSealedFile,
        [this, alive = QPointer(&m_queue), name, answered](const auto &result) {
            if (!alive) {
                return;
            }
            if (const auto *content = std::get_if<CloudStorage::Content>(&result)) {
                compare(name, *content, answered);
                return;
            }
            const auto &error = std::get<CloudError>(result);
            if (error.problem == CloudProblem::TooLarge) {
                replace(name, {}, answered);
                return;
            }
            // What has gone meanwhile is sent in the next round.
            if (error.problem != CloudProblem::NotThere) {
                m_state.fail(error);
            } else {
                m_state.outcome.wantsListing = true;
            }
            answered();
        });
}

void FileSending::compare(
    const QString &name, const CloudStorage::Content &there, const Answered &answered)
{
    const SyncDeps &deps = m_state.deps;
    if (there.bytes == deps.storage.outgoing().value(name)) {
        sent(name, there.revision);
        answered();
        return;
    }
    const auto content = opened(there.bytes, name, deps.key);
    const auto *problem = std::get_if<FileProblem>(&content);
    if (problem && *problem != FileProblem::Newer) {
        replace(name, there.revision, answered);
        return;
    }
    // Merged as well: it is in the account, and a file of ours that we know is never read again.
    const auto refused = deps.replica.receiveChange(name, there.bytes);
    if (refused == FileProblem::NotKept || (refused && !deps.replica.becomeNewWriter())) {
        m_state.failStoring();
    }
    answered();
}

void FileSending::replace(const QString &name, const QByteArray &revision, const Answered &answered)
{
    m_state.deps.account.replace(name, m_state.deps.storage.outgoing().value(name), revision,
        [this, alive = QPointer(&m_queue), name, answered](const auto &result) {
            if (!alive) {
                return;
            }
            if (const auto *error = std::get_if<CloudError>(&result)) {
                if (error->problem != CloudProblem::Changed) {
                    m_state.failWriting(*error);
                }
            } else {
                sent(name, std::get<QByteArray>(result));
            }
            answered();
        });
}

void FileSending::sent(const QString &name, const QByteArray &revision)
{
    const qint64 size = m_state.deps.storage.outgoing().value(name).size();
    if (!m_state.deps.replica.sent(name)) {
        m_state.failStoring();
        return;
    }
    ++m_state.outcome.sent;
    m_state.setListed(name, size, revision);
}

} // namespace quillon
