// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "sync/ClearingUp.h"

#include "base/Log.h"
#include "sync/Replica.h"
#include "sync/ReplicaStorage.h"

#include <QPointer>

#include <memory>
#include <utility>

namespace quillon {

ClearingUp::ClearingUp(RoundState &state)
    : m_state(state)
    , m_snapshot(state)
    , m_removing(state.limits.requests)
{
}

bool ClearingUp::begin(const SyncPlan &plan, Then then)
{
    m_then = std::move(then);
    noteLosses(plan);
    if (!m_state.isUndisturbed() || m_state.refusesWrites) {
        return false;
    }
    if (plan.unverified && !m_hasVerified) {
        verify(*plan.unverified);
        return true;
    }
    const bool isBegun = m_state.deps.storage.progress().unfinishedSnapshot.has_value();
    if (isBegun && !plan.unverified && !m_hasWrittenSnapshot) {
        remove(plan.abandoned, [this] { forgetUnfinished(); });
        return true;
    }
    if (!plan.superfluous.isEmpty() && !m_hasCleared) {
        m_hasCleared = true;
        remove(plan.superfluous, [this] { end(Next::Proceed); });
        return true;
    }
    return writeSnapshot(plan);
}

/// Whoever is told may begin the next thing.
void ClearingUp::end(Next next)
{
    const Then then = std::exchange(m_then, {});
    then(next);
}

/// Once a round. A listing alone proves nothing: it may be late.
void ClearingUp::noteLosses(const SyncPlan &plan)
{
    if (std::exchange(m_hasNotedLosses, true)) {
        return;
    }
    ReplicaStorage &storage = m_state.deps.storage;
    const ReplicaProgress now = storage.progress();
    const bool lacks = (plan.lacksOwn || plan.lacksOthers) && !plan.hasNewer;
    const quint32 count = lacks ? now.lackingListings + 1 : 0;
    m_heals = lacks && count >= listingsBeforeHealing(plan, now);
    m_state.outcome.wantsListing |= lacks;
    if (count != now.lackingListings && !storage.transaction([&] {
            ReplicaProgress progress = storage.progress();
            progress.lackingListings = count;
            storage.setProgress(progress);
        })) {
        m_state.failStoring();
    }
}

void ClearingUp::verify(const SnapshotFiles &files)
{
    m_hasVerified = true;
    for (const QString &name : files.parts + QStringList{files.manifest}) {
        m_state.tried.remove(name);
    }
    m_snapshot.verify(files, [this, files](bool done) {
        m_hasCleared = false;
        // Damaged: away with it. It is for another try to say whether the account can be trusted.
        if (!done && m_state.isUndisturbed()) {
            remove(files.parts + QStringList{files.manifest}, [this] { forgetUnfinished(); });
        } else {
            end(Next::Proceed);
        }
    });
}

void ClearingUp::remove(const QStringList &names, std::function<void()> done)
{
    const auto left = std::make_shared<QStringList>(names);
    m_removing.run(
        [this, left]() -> std::optional<QString> {
            if (left->isEmpty() || !m_state.outcome.isWell()) {
                return std::nullopt;
            }
            return left->takeFirst();
        },
        [this](const QString &name, const auto &answered) {
            m_state.deps.account.remove(
                name, [this, alive = QPointer(&m_removing), name, answered](const auto &error) {
                    if (!alive) {
                        return;
                    }
                    if (error) {
                        m_state.failWriting(*error);
                    } else {
                        m_state.setUnlisted(name);
                    }
                    answered();
                });
        },
        std::move(done));
}

void ClearingUp::forgetUnfinished()
{
    ReplicaStorage &storage = m_state.deps.storage;
    if (m_state.outcome.isWell() && !storage.transaction([&] {
            ReplicaProgress progress = storage.progress();
            progress.unfinishedSnapshot.reset();
            storage.setProgress(progress);
        })) {
        m_state.failStoring();
    }
    end(Next::Proceed);
}

bool ClearingUp::writeSnapshot(const SyncPlan &plan)
{
    const bool isWanted = (plan.wantsSnapshot && !plan.hasNewer) || m_heals;
    if (!isWanted || m_state.deps.replica.hasUnsent() || m_hasWrittenSnapshot ||
        m_state.isStopped || m_state.deps.storage.progress().unfinishedSnapshot) {
        return false;
    }
    m_hasWrittenSnapshot = true;
    qCInfo(logSync, "a snapshot is written: %s",
        m_heals ? "files have gone from the account" : "there are many change files");
    m_snapshot.write([this](bool done) { end(done ? Next::List : Next::Proceed); });
    return true;
}

void ClearingUp::forgetOldNames(const SyncPlan &now)
{
    ReplicaStorage &storage = m_state.deps.storage;
    if (now.forgotten.isEmpty() && now.unignored.isEmpty() && now.unsized.isEmpty()) {
        return;
    }
    const bool kept = storage.transaction([&] {
        ReplicaProgress progress = storage.progress();
        for (const QString &name : now.forgotten) {
            progress.snapshots.remove(name);
            progress.ownSnapshots.remove(name);
        }
        for (const QString &name : now.unignored) {
            progress.ignored.remove(name);
        }
        for (const quint64 number : now.unsized) {
            progress.sentSizes.remove(number);
        }
        storage.setProgress(progress);
    });
    m_state.outcome.couldNotStore |= !kept;
}

} // namespace quillon
