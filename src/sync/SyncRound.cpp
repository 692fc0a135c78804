// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "sync/SyncRound.h"

#include "base/Log.h"
#include "sync/AccountFile.h"
#include "sync/KeyFileWatch.h"
#include "sync/Replica.h"
#include "sync/ReplicaStorage.h"

#include <QPointer>

#include <algorithm>
#include <memory>
#include <utility>

namespace quillon {

namespace {

/// What vanishes while it is read was replaced by a snapshot, which another listing shows.
constexpr int mostListings = 4;

QSet<QString> namesOf(const QMap<QString, QByteArray> &files)
{
    return {files.keyBegin(), files.keyEnd()};
}

} // namespace

SyncRound::SyncRound(const SyncDeps &deps, const SyncLimits &limits)
    : m_state{deps, limits, {}, {}, {}}
    , m_head(m_state)
    , m_reading(m_state)
    , m_sending(m_state)
    , m_clearing(m_state)
{
}

void SyncRound::start(Look look, Done done)
{
    m_done = std::move(done);
    const bool hasToWrite =
        m_state.deps.replica.hasUnsent() || m_state.deps.storage.progress().isHeadDue;
    if (look == Look::Head && hasToWrite) {
        proceed();
    } else {
        lookAtHead(look == Look::Listing);
    }
}

/// First, so that what it tells of is in the listing.
void SyncRound::lookAtHead(bool alwaysList)
{
    m_hasLooked = true;
    m_head.look([this, alwaysList](bool isNews) {
        if (!m_state.isStopped && (isNews || alwaysList)) {
            list();
        } else {
            proceed();
        }
    });
}

void SyncRound::list()
{
    ++m_listings;
    m_state.hasVanished = false;
    m_state.deps.account.list([self = QPointer(this)](const auto &result) {
        if (!self) {
            return;
        }
        if (const auto *error = std::get_if<CloudError>(&result)) {
            self->m_state.fail(*error);
            self->m_state.isStopped = true;
        } else {
            self->m_state.listing = std::get<QList<CloudFile>>(result);
            const CloudFile *key = self->m_state.listed(keyFileName);
            self->m_state.outcome.hasListed = true;
            self->m_state.outcome.isKeyMissing = key == nullptr;
            self->m_state.isStopped |= key == nullptr;
            if (key != nullptr && self->lookAtKey(key->revision)) {
                return;
            }
        }
        self->proceed();
    });
}

/// Before anything of the account is read or written: it may have become another one. False when
/// it is known to be ours.
bool SyncRound::lookAtKey(const QByteArray &revision)
{
    KeyFileWatch *const keyFile = m_state.deps.keyFile;
    if (keyFile == nullptr || keyFile->hasSeen(revision)) {
        return false;
    }
    keyFile->look([self = QPointer(this)](const KeyFileWatch::Result &result) {
        if (!self) {
            return;
        }
        SyncOutcome &outcome = self->m_state.outcome;
        if (const auto *error = std::get_if<CloudError>(&result)) {
            outcome.isKeyMissing = error->problem == CloudProblem::NotThere;
            if (!outcome.isKeyMissing) {
                self->m_state.fail(*error);
            }
            self->m_state.isStopped = true;
        } else if (const auto &problem = std::get<std::optional<KeyFileProblem>>(result)) {
            outcome.keyProblem = problem;
            self->m_state.isStopped = true;
        }
        self->proceed();
    });
    return true;
}

SyncPlan SyncRound::plan() const
{
    const ReplicaStorage &storage = m_state.deps.storage;
    return planSync(
        *m_state.listing, storage.progress(), namesOf(storage.outgoing()), m_state.limits);
}

/// Does the next thing that is to be done, and comes back after it.
void SyncRound::proceed()
{
    if (m_state.isStopped) {
        finish();
        return;
    }
    if (m_state.listing && readSomething(plan())) {
        return;
    }
    if (m_state.listing) {
        rememberHead();
    }
    if (sendSomething() || clearUp() || tellOthers() || lookNevertheless()) {
        return;
    }
    finish();
}

QStringList SyncRound::untried(const QStringList &names) const
{
    QStringList left;
    std::ranges::copy_if(names, std::back_inserter(left),
        [this](const QString &name) { return !m_state.tried.contains(name); });
    return left;
}

bool SyncRound::readSomething(const SyncPlan &plan)
{
    if (const QStringList manifests = untried(plan.manifests); !manifests.isEmpty()) {
        readManifests(manifests);
        return true;
    }
    for (const SnapshotFiles &files : plan.snapshots) {
        if (untried(files.parts) == files.parts) {
            readSnapshot(files);
            return true;
        }
    }
    if (const QStringList changes = untried(plan.changes); !changes.isEmpty()) {
        readChanges(changes);
        return true;
    }
    if (m_state.hasVanished && m_listings < mostListings) {
        list();
        return true;
    }
    return false;
}

void SyncRound::readManifests(const QStringList &names)
{
    m_reading.run(
        names,
        [this](const QString &name, const QByteArray &bytes) {
            return m_state.deps.replica.receiveManifest(name, bytes);
        },
        [this](bool) { proceed(); });
}

void SyncRound::readSnapshot(const SnapshotFiles &files)
{
    const auto finished = [this, manifest = files.manifest](bool all) {
        if (all && !m_state.deps.replica.finishSnapshot(manifest)) {
            m_state.failStoring();
        }
        proceed();
    };
    m_reading.run(
        files.parts,
        [this](const QString &name, const QByteArray &bytes) {
            const auto problem = m_state.deps.replica.receivePart(name, bytes);
            m_state.outcome.received += problem ? 0 : 1;
            return problem;
        },
        finished);
}

void SyncRound::readChanges(const QStringList &names)
{
    m_reading.run(
        names,
        [this](const QString &name, const QByteArray &bytes) {
            const auto problem = m_state.deps.replica.receiveChange(name, bytes);
            m_state.outcome.received += problem ? 0 : 1;
            return problem;
        },
        [this](bool) { proceed(); });
}

void SyncRound::rememberHead()
{
    if (m_state.isUndisturbed()) {
        m_head.remember();
    } else {
        m_state.outcome.wantsListing = true;
    }
}

/// A computer that was set back would use numbers twice. What could tell it so, has been read.
bool SyncRound::knowsOurNumbers() const
{
    if (!m_state.listing) {
        return true; // the first round after the start has a listing
    }
    const SyncPlan left = plan();
    const WriterId own = m_state.deps.storage.progress().writer;
    return left.manifests.isEmpty() &&
           std::ranges::none_of(left.changes,
               [own](const QString &name) { return AccountFile::fromName(name)->writer == own; });
}

bool SyncRound::sendSomething()
{
    if (m_state.isStopped || m_state.refusesWrites || !m_sending.isNeeded() || !knowsOurNumbers()) {
        return false;
    }
    m_sending.run([this] { proceed(); });
    return true;
}

bool SyncRound::clearUp()
{
    return m_state.listing && m_clearing.begin(plan(), [this](ClearingUp::Next next) {
        if (next == ClearingUp::Next::List) {
            list();
        } else {
            proceed();
        }
    });
}

bool SyncRound::tellOthers()
{
    if (m_state.isStopped || m_state.refusesWrites || !m_head.mayReplace() ||
        !m_state.deps.storage.progress().isHeadDue) {
        return false;
    }
    m_head.replace([this](bool isNews) {
        if (isNews && !m_state.isStopped && m_listings < mostListings) {
            list();
        } else {
            proceed();
        }
    });
    return true;
}

/// An account that takes nothing more can be read all the same.
bool SyncRound::lookNevertheless()
{
    if (m_state.isStopped || !m_state.refusesWrites || m_hasLooked) {
        return false;
    }
    lookAtHead(false);
    return true;
}

void SyncRound::finish()
{
    if (m_state.listing && m_state.isUndisturbed()) {
        m_clearing.forgetOldNames(plan());
    }
    const SyncOutcome outcome = m_state.outcome;
    if (outcome.error) {
        qCInfo(logSync, "the account did not do everything (%d): %s", int(outcome.error->problem),
            qUtf8Printable(outcome.error->message));
    }
    if (outcome.isKeyMissing) {
        qCWarning(logSync, "the account has no key file: nothing is read or written");
    }
    if (outcome.keyProblem) {
        qCWarning(logSync, "the key file is not ours (%d): nothing is read or written",
            int(*outcome.keyProblem));
    }
    if (outcome.couldNotStore) {
        qCWarning(logSync, "what came from the account, or is to go there, could not be stored");
    }
    qCDebug(logSync, "%d files received, %d sent", outcome.received, outcome.sent);
    std::exchange(m_done, {})(outcome);
}

} // namespace quillon
