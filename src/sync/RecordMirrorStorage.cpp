// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "sync/RecordMirrorStorage.h"

#include "sync/ChangesFormat.h"
#include "sync/Compression.h"

#include <SQLiteCpp/Column.h>
#include <SQLiteCpp/Database.h>
#include <utility>

namespace quillon {

namespace {

/// Of one record, one setting or one edit before it is packed; what we wrote is never longer.
constexpr qsizetype longestState = qsizetype{256} << 20;
/// About how many packed bytes of edits are read at once.
constexpr qsizetype pendingAtOnce = qsizetype{1} << 20;

QByteArray packed(const SyncChanges &changes)
{
    return compressed(writtenChanges(changes));
}

void bindText(SQLite::Statement &statement, int index, const QString &text)
{
    statement.bind(index, text.toStdString());
}

void bindBytes(SQLite::Statement &statement, int index, const QByteArray &bytes)
{
    statement.bind(index, bytes.constData(), static_cast<int>(bytes.size()));
}

QString textOf(const SQLite::Column &column)
{
    return QString::fromUtf8(column.getText(), column.getBytes());
}

QByteArray bytesOf(const SQLite::Column &column)
{
    return {static_cast<const char *>(column.getBlob()), column.getBytes()};
}

QUuid idOf(const SQLite::Column &column)
{
    return QUuid::fromRfc4122(
        QByteArrayView(static_cast<const char *>(column.getBlob()), column.getBytes()));
}

} // namespace

RecordMirrorStorage::RecordMirrorStorage() = default;
RecordMirrorStorage::~RecordMirrorStorage() = default;

void RecordMirrorStorage::follow(std::shared_ptr<SQLite::Database> database)
{
    m_rows = std::make_unique<RecordMirrorRows>(*database);
    m_file.follow(std::move(database));
}

void RecordMirrorStorage::setObserver(Beginning beginning, Committed committed)
{
    m_beginning = std::move(beginning);
    m_committed = std::move(committed);
}

bool RecordMirrorStorage::transaction(const std::function<void()> &work)
{
    if (m_file.isInTransaction()) {
        work();
        return true;
    }
    m_shown = {};
    m_isMerging = false;
    m_mayWriteRecords = true;
    const auto begin = [this] {
        // What it writes itself is for it to judge.
        const bool mayWrite = !m_beginning || m_beginning();
        m_mayWriteRecords = mayWrite;
    };
    const auto all = [this, &work] {
        work();
        if (m_isMerging) {
            run("UPDATE Mirror SET isMerging = 0", [](SQLite::Statement &) {});
        }
    };
    if (!m_file.transaction(begin, all)) {
        return false;
    }
    const Shown shown = std::exchange(m_shown, {});
    if (m_committed && (shown.rows || !shown.settings.isEmpty())) {
        m_committed(shown);
    }
    return true;
}

template <typename Bind>
void RecordMirrorStorage::run(const char *sql, const Bind &bind)
{
    m_file.attempt<bool>([&] {
        const auto use = m_file.use(sql);
        bind(*use);
        use->exec();
        return true;
    });
}

std::optional<SyncChanges> RecordMirrorStorage::changesOf(const QByteArray &bytes) const
{
    const auto content = decompressed(bytes, longestState);
    auto read = content ? readChanges(*content) : ReadResult<SyncChanges>(FileProblem::Damaged);
    if (auto *const changes = std::get_if<SyncChanges>(&read)) {
        return std::move(*changes);
    }
    m_file.fail("what it keeps is damaged");
    return std::nullopt;
}

// MARK: what is known

RecordState RecordMirrorStorage::record(const RecordId &id) const
{
    return m_file.attempt<RecordState>([&] {
        const auto use = m_file.use("SELECT state FROM MirrorRecord WHERE entity = ? AND uuid = ?");
        bindText(*use, 1, id.entity);
        bindId(*use, 2, id.id);
        const auto changes =
            use->executeStep() ? changesOf(bytesOf(use->getColumn(0))) : std::nullopt;
        return changes ? changes->records.value(id) : RecordState();
    });
}

void RecordMirrorStorage::setRecord(const RecordId &id, const RecordState &state)
{
    if (!m_mayWriteRecords) {
        m_file.fail("edits are to be taken first");
        return;
    }
    run("INSERT OR REPLACE INTO MirrorRecord (entity, uuid, isPresent, state) VALUES (?, ?, ?, ?)",
        [&](SQLite::Statement &statement) {
            SyncChanges changes;
            changes.records.insert(id, state);
            bindText(statement, 1, id.entity);
            bindId(statement, 2, id.id);
            statement.bind(3, state.isPresent() ? 1 : 0);
            bindBytes(statement, 4, packed(changes));
        });
}

QList<RecordId> RecordMirrorStorage::recordsAfter(const RecordId &id, int count) const
{
    return m_file.attempt<QList<RecordId>>([&] {
        const auto use = m_file.use("SELECT entity, uuid FROM MirrorRecord WHERE (entity, uuid) > "
                                    "(?, ?) ORDER BY entity, uuid LIMIT ?");
        bindText(*use, 1, id.entity);
        bindId(*use, 2, id.id);
        use->bind(3, count);
        QList<RecordId> ids;
        while (use->executeStep()) {
            ids.append({textOf(use->getColumn(0)), idOf(use->getColumn(1))});
        }
        return ids;
    });
}

QList<RecordId> RecordMirrorStorage::presentRecords(const QString &entity) const
{
    return m_file.attempt<QList<RecordId>>([&] {
        const auto use = m_file.use(
            "SELECT uuid FROM MirrorRecord WHERE entity = ? AND isPresent ORDER BY uuid");
        bindText(*use, 1, entity);
        QList<RecordId> ids;
        while (use->executeStep()) {
            ids.append({entity, idOf(use->getColumn(0))});
        }
        return ids;
    });
}

SyncRegister RecordMirrorStorage::setting(const SettingId &id) const
{
    return m_file.attempt<SyncRegister>([&] {
        const auto use = m_file.use("SELECT state FROM MirrorSetting WHERE key = ? AND entry = ?");
        bindText(*use, 1, id.key);
        bindText(*use, 2, id.entry);
        const auto changes =
            use->executeStep() ? changesOf(bytesOf(use->getColumn(0))) : std::nullopt;
        return changes ? changes->settings.value(id) : SyncRegister();
    });
}

void RecordMirrorStorage::setSetting(const SettingId &id, const SyncRegister &value)
{
    run("INSERT OR REPLACE INTO MirrorSetting (key, entry, state) VALUES (?, ?, ?)",
        [&](SQLite::Statement &statement) {
            SyncChanges changes;
            changes.settings.insert(id, value);
            bindText(statement, 1, id.key);
            bindText(statement, 2, id.entry);
            bindBytes(statement, 3, packed(changes));
        });
}

QList<SettingId> RecordMirrorStorage::settings() const
{
    return m_file.attempt<QList<SettingId>>([&] {
        const auto use = m_file.use("SELECT key, entry FROM MirrorSetting ORDER BY key, entry");
        QList<SettingId> ids;
        while (use->executeStep()) {
            ids.append({textOf(use->getColumn(0)), textOf(use->getColumn(1))});
        }
        return ids;
    });
}

// MARK: what is shown

void RecordMirrorStorage::showRecord(const RecordId &id, const std::optional<RecordValues> &values)
{
    if (!std::exchange(m_isMerging, true)) {
        run("UPDATE Mirror SET isMerging = 1", [](SQLite::Statement &) {});
    }
    const bool changed = m_file.attempt<bool>([&] { return m_rows->show(id, values); });
    m_shown.rows = m_shown.rows || changed;
}

void RecordMirrorStorage::showSetting(const SettingId &id, const SyncValue &)
{
    m_shown.settings.insert(id.key);
}

// MARK: what waits

void RecordMirrorStorage::appendPending(const SyncChanges &edit)
{
    run("INSERT INTO MirrorPending (changes) VALUES (?)",
        [&](SQLite::Statement &statement) { bindBytes(statement, 1, packed(edit)); });
}

bool RecordMirrorStorage::hasPending() const
{
    return m_file.attempt<bool>(
        [&] { return m_file.use("SELECT 1 FROM MirrorPending LIMIT 1")->executeStep(); });
}

QList<SyncChanges> RecordMirrorStorage::pending(int count) const
{
    return m_file.attempt<QList<SyncChanges>>([&] {
        const auto use = m_file.use("SELECT changes FROM MirrorPending ORDER BY number LIMIT ?");
        use->bind(1, count);
        QList<SyncChanges> all;
        qsizetype size = 0;
        while (size < pendingAtOnce && use->executeStep()) {
            const QByteArray bytes = bytesOf(use->getColumn(0));
            size += bytes.size();
            all.append(changesOf(bytes).value_or(SyncChanges()));
        }
        return all;
    });
}

void RecordMirrorStorage::removePending(int count)
{
    run("DELETE FROM MirrorPending WHERE number IN "
        "(SELECT number FROM MirrorPending ORDER BY number LIMIT ?)",
        [&](SQLite::Statement &statement) { statement.bind(1, count); });
}

QMap<QString, QByteArray> RecordMirrorStorage::outgoing() const
{
    return m_file.attempt<QMap<QString, QByteArray>>([&] {
        const auto use = m_file.use("SELECT name, bytes FROM MirrorOutgoing");
        QMap<QString, QByteArray> files;
        while (use->executeStep()) {
            files.insert(textOf(use->getColumn(0)), bytesOf(use->getColumn(1)));
        }
        return files;
    });
}

void RecordMirrorStorage::addOutgoing(const QString &name, const QByteArray &bytes)
{
    run("INSERT OR REPLACE INTO MirrorOutgoing (name, bytes) VALUES (?, ?)",
        [&](SQLite::Statement &statement) {
            bindText(statement, 1, name);
            bindBytes(statement, 2, bytes);
        });
}

void RecordMirrorStorage::removeOutgoing(const QString &name)
{
    run("DELETE FROM MirrorOutgoing WHERE name = ?",
        [&](SQLite::Statement &statement) { bindText(statement, 1, name); });
}

ReplicaProgress RecordMirrorStorage::progress() const
{
    return m_file.attempt<ReplicaProgress>([&] {
        const auto use = m_file.use("SELECT progress FROM MirrorProgress");
        if (!use->executeStep()) {
            return ReplicaProgress();
        }
        const auto read = readProgress(bytesOf(use->getColumn(0)));
        if (!read) {
            m_file.fail("its progress is damaged");
        }
        return read.value_or(ReplicaProgress());
    });
}

void RecordMirrorStorage::setProgress(const ReplicaProgress &progress)
{
    run("INSERT OR REPLACE INTO MirrorProgress (id, progress) VALUES (1, ?)",
        [&](SQLite::Statement &statement) { bindBytes(statement, 1, writtenProgress(progress)); });
}

void RecordMirrorStorage::clear()
{
    for (const char *const sql :
        {"DELETE FROM MirrorRecord", "DELETE FROM MirrorSetting", "DELETE FROM MirrorPending",
            "DELETE FROM MirrorOutgoing", "DELETE FROM MirrorProgress"}) {
        run(sql, [](SQLite::Statement &) {});
    }
}

} // namespace quillon
