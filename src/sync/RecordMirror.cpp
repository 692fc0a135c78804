// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "sync/RecordMirror.h"

#include "base/Log.h"
#include "base/NotificationNames.h"
#include "base/SettingsKeys.h"
#include "platform/NotificationCenter.h"
#include "platform/SettingsStore.h"
#include "store/RecordStore.h"

#include <QScopedValueRollback>

#include <SQLiteCpp/Column.h>
#include <utility>

namespace quillon {

using namespace std::chrono_literals;

namespace {

/// As many as take a fraction of the time that somebody notices.
constexpr int editsOfStep = 250;
// Others on the main thread get their turn.
constexpr auto pauseBetweenSteps = 15ms;
constexpr auto pauseWhileHeldUp = 200ms;
constexpr auto pauseAfterFailure = 30s;

} // namespace

RecordMirror::RecordMirror(const Collaborators &collaborators)
    : m_deps(collaborators)
{
    m_storage.setObserver([this] { return beginTransaction(); },
        [this](const RecordMirrorStorage::Shown &shown) { showMerged(shown); });
    connect(&m_deps.store, &RecordStore::managedObjectContextReplaced, this,
        &RecordMirror::containerOpened);
    connect(&m_deps.store, &RecordStore::saved, this, &RecordMirror::stepSoon);
    connect(&m_deps.store, &RecordStore::recordsMerged, this, &RecordMirror::stepSoon);
}

RecordMirror::~RecordMirror()
{
    stop();
}

void RecordMirror::containerOpened()
{
    m_storage.follow(m_deps.store.managedObjectContext().database());
    const bool mirrored = m_deps.settings.getBool(keys::iCloudSync);
    m_catchUp.reset();
    m_isReady = false;
    m_isMirrored = setMirrored(mirrored) && mirrored;
    m_isCaughtUp = m_isMirrored && isSet("SELECT isCaughtUp FROM Mirror");
    if (m_isMirrored != mirrored) {
        m_deps.scheduler.onMainAfter(pauseAfterFailure, this, [this] { containerOpened(); });
    }
    stepSoon();
    if (m_replica) {
        Q_EMIT started();
    }
}

bool RecordMirror::start(Replica &replica, const QByteArray &account)
{
    const bool isKnown = m_storage.file().attempt<bool>([&] {
        const auto use = m_storage.file().use("SELECT 1 FROM Mirror WHERE account = ?");
        use->bind(1, account.constData(), static_cast<int>(account.size()));
        return use->executeStep();
    });
    const bool kept = isKnown || m_storage.transaction([&] {
        m_storage.clear();
        m_edits.forget();
        m_storage.file().attempt<bool>([&] {
            const auto use = m_storage.file().use("UPDATE Mirror SET account = ?, isCaughtUp = 0");
            use->bind(1, account.constData(), static_cast<int>(account.size()));
            return use->exec() > 0;
        });
    });
    if (!kept) {
        return false;
    }
    m_isCaughtUp = m_isCaughtUp && isKnown;
    m_isReady = false;
    m_catchUp.reset();
    m_replica = &replica;
    stepSoon();
    Q_EMIT started();
    return true;
}

void RecordMirror::stop()
{
    m_replica = nullptr;
    m_isReady = false;
    m_catchUp.reset();
    if (m_nextStep) {
        m_deps.scheduler.cancel(*std::exchange(m_nextStep, std::nullopt));
    }
}

bool RecordMirror::setMirrored(bool mirrored)
{
    if (isSet("SELECT isRecording FROM Mirror") == mirrored) {
        return true;
    }
    const bool kept = m_storage.transaction([&] {
        // What has changed until then is found by looking at all records.
        m_edits.forget();
        write(mirrored ? "UPDATE Mirror SET isRecording = 1, isCaughtUp = 0"
                       : "UPDATE Mirror SET isRecording = 0, isCaughtUp = 0");
    });
    return kept;
}

bool RecordMirror::write(const char *sql)
{
    return m_storage.file().attempt<bool>([&] {
        m_storage.file().use(sql)->exec();
        return true;
    });
}

bool RecordMirror::isSet(const char *sql) const
{
    auto &file = const_cast<RecordMirror *>(this)->m_storage.file();
    return file.attempt<bool>([&] {
        const auto use = file.use(sql);
        return use->executeStep() && use->getColumn(0).getInt() != 0;
    });
}

qint64 RecordMirror::now() const
{
    return m_deps.scheduler.now().toMSecsSinceEpoch();
}

// MARK: from the records to the replica

bool RecordMirror::beginTransaction()
{
    if (!m_replica || !m_isMirrored || !m_isCaughtUp) {
        return m_isOwn;
    }
    if (!m_isOwn) {
        stepSoon(); // which says what was taken here
    }
    const QScopedValueRollback own(m_isOwn, true);
    const QList<LocalEdit> edits = m_edits.take(editsOfStep);
    if (!edits.isEmpty()) {
        m_hasTaken = true;
        if (!m_replica->edit(edits, now())) {
            m_storage.file().fail("edits cannot be taken");
        }
    }
    // What waits still is older than what is to be merged.
    return m_edits.isEmpty();
}

bool RecordMirror::edit(const QList<LocalEdit> &edits)
{
    if (!m_replica || !m_isMirrored) {
        return false;
    }
    const QScopedValueRollback own(m_isOwn, true);
    const bool kept = m_replica->edit(edits, now());
    if (kept) {
        Q_EMIT edited();
    }
    return kept;
}

void RecordMirror::takeEdits()
{
    if (m_replica && m_isMirrored && m_isCaughtUp) {
        step();
    }
}

void RecordMirror::stepSoon()
{
    stepAfter(0ms);
}

void RecordMirror::stepAfter(std::chrono::milliseconds pause)
{
    if (!m_nextStep && m_replica && m_isMirrored) {
        m_nextStep = m_deps.scheduler.onMainAfter(pause, this, [this] {
            m_nextStep.reset();
            step();
        });
    }
}

void RecordMirror::step()
{
    if (!m_replica || !m_isMirrored) {
        return;
    }
    const QScopedValueRollback own(m_isOwn, true);
    // A removal in the background writes for most of the time; to wait for it is not up to us.
    const RecordMirrorFile::Impatience impatience(m_storage.file());
    const bool kept = m_isCaughtUp ? m_edits.isEmpty() || m_storage.transaction([] {}) : catchUp();
    if (!kept) {
        const bool hasNotBegun = m_storage.file().wasHeldUp();
        if (!hasNotBegun) {
            m_catchUp.reset();
        }
        stepAfter(hasNotBegun ? pauseWhileHeldUp : pauseAfterFailure);
        return;
    }
    if (std::exchange(m_hasTaken, false)) {
        Q_EMIT edited();
    }
    if (!m_isCaughtUp || !m_edits.isEmpty()) {
        stepAfter(pauseBetweenSteps);
    } else if (!std::exchange(m_isReady, true)) {
        Q_EMIT ready();
    }
}

bool RecordMirror::catchUp()
{
    if (!m_catchUp) {
        m_catchUp.emplace(m_storage);
    }
    const bool kept = m_storage.transaction([&] {
        if (!m_catchUp->step(*m_replica, now())) {
            m_storage.file().fail("the records cannot be told of");
        }
        if (m_catchUp->isDone()) {
            write("UPDATE Mirror SET isCaughtUp = 1");
        }
    });
    m_hasTaken = m_hasTaken || kept;
    if (kept && m_catchUp->isDone()) {
        m_isCaughtUp = true;
        m_catchUp.reset();
    }
    return kept;
}

// MARK: from the replica to the records

void RecordMirror::showMerged(const RecordMirrorStorage::Shown &shown)
{
    if (shown.rows) {
        if (!m_isOwn && !std::exchange(m_isImporting, true)) {
            postImport(false, false);
        }
        mergeSoon();
    }
    if (!shown.settings.isEmpty()) {
        Q_EMIT settingsMerged(shown.settings);
    }
}

void RecordMirror::mergeSoon()
{
    if (!std::exchange(m_isMergeDue, true)) {
        m_deps.scheduler.onMain(this, [this] {
            m_isMergeDue = false;
            m_deps.store.managedObjectContext().mergeChangesFromStore();
        });
    }
}

void RecordMirror::endImport(bool succeeded)
{
    if (std::exchange(m_isImporting, false)) {
        postImport(succeeded, true);
    }
}

void RecordMirror::postImport(bool succeeded, bool ended)
{
    QVariantMap event{
        {cloudevent::type, int(cloudevent::Type::Import)}, {cloudevent::succeeded, succeeded}};
    if (ended) {
        event.insert(cloudevent::endDate, m_deps.scheduler.now());
    }
    m_deps.notifications.post(notifications::cloudContainerChanged, this, event);
}

} // namespace quillon
