// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "sync/RecordMirrorEdits.h"

#include "store/model/QuillonModel.h"
#include "sync/RecordMirrorStorage.h"
#include "sync/SynchronizedAttribute.h"

#include <SQLiteCpp/Column.h>
#include <algorithm>
#include <utility>

namespace quillon {

namespace {

/// As the triggers write it.
enum class NotedKind
{
    Insert = 0,
    Update = 1,
    Delete = 2,
};

struct NotedEdit
{
    qint64 number = 0;
    RecordId record;
    NotedKind kind = NotedKind::Insert;
    qint64 columns = 0;
};

QList<NotedEdit> notedEdits(const RecordMirrorFile &file, int count)
{
    return file.attempt<QList<NotedEdit>>([&] {
        const auto use = file.use("SELECT number, entity, uuid, kind, columns FROM MirrorEdit "
                                  "ORDER BY number LIMIT ?");
        use->bind(1, count);
        QList<NotedEdit> noted;
        while (use->executeStep()) {
            const SQLite::Column id = use->getColumn(2);
            noted.append({use->getColumn(0).getInt64(),
                {QString::fromStdString(use->getColumn(1).getString()),
                    QUuid::fromRfc4122(
                        QByteArrayView(static_cast<const char *>(id.getBlob()), id.getBytes()))},
                NotedKind(use->getColumn(3).getInt()), use->getColumn(4).getInt64()});
        }
        return noted;
    });
}

/// What has become of the attributes of `columns`; of one that was emptied, nothing.
RecordValues changedValues(const RecordId &record, const RecordValues &values, qint64 columns)
{
    RecordValues changed;
    const Entity *const entity = quillonModel().entity(record.entity);
    for (qsizetype index = 0; entity && index < entity->attributes().size(); ++index) {
        const QString &name = entity->attributes()[index].name;
        if ((columns >> index & 1) != 0 && isSynchronized(record.entity, name)) {
            changed.insert(name, values.value(name));
        }
    }
    return changed;
}

/// Adds it to the edits; the last one of each record is at `places`.
void add(QList<LocalEdit> &edits, QHash<QUuid, qsizetype> &places, LocalEdit edit)
{
    const auto last = places.constFind(edit.record.id);
    if (edit.kind == LocalEdit::Kind::Change && last != places.cend()) {
        LocalEdit &before = edits[*last];
        if (before.kind == LocalEdit::Kind::Insert) {
            return; // which has all values of now
        }
        if (before.kind == LocalEdit::Kind::Change) {
            before.values.insert(edit.values);
            return;
        }
    }
    places.insert(edit.record.id, edits.size());
    edits.append(std::move(edit));
}

} // namespace

QList<LocalEdit> RecordMirrorEdits::take(int count)
{
    const QList<NotedEdit> noted = notedEdits(m_storage.file(), count);
    QList<LocalEdit> edits;
    QHash<QUuid, qsizetype> places;
    for (const NotedEdit &note : noted) {
        if (note.kind == NotedKind::Delete) {
            add(edits, places, {LocalEdit::Kind::Delete, note.record, {}, {}, {}});
            continue;
        }
        const auto values = m_storage.file().attempt<std::optional<RecordValues>>(
            [&] { return m_storage.rows().values(note.record); });
        // A record that has gone meanwhile has its deletion noted behind this.
        if (values && note.kind == NotedKind::Insert) {
            add(edits, places, {LocalEdit::Kind::Insert, note.record, *values, {}, {}});
        } else if (values) {
            add(edits, places,
                {LocalEdit::Kind::Change, note.record,
                    changedValues(note.record, *values, note.columns), {}, {}});
        }
    }
    if (!noted.isEmpty()) {
        m_storage.file().attempt<bool>([&] {
            const auto use = m_storage.file().use("DELETE FROM MirrorEdit WHERE number <= ?");
            use->bind(1, int64_t{noted.last().number});
            use->exec();
            return true;
        });
    }
    return edits;
}

bool RecordMirrorEdits::isEmpty() const
{
    return m_storage.file().attempt<bool>(
        [&] { return !m_storage.file().use("SELECT 1 FROM MirrorEdit LIMIT 1")->executeStep(); });
}

void RecordMirrorEdits::forget()
{
    m_storage.file().attempt<bool>([&] {
        m_storage.file().use("DELETE FROM MirrorEdit")->exec();
        return true;
    });
}

} // namespace quillon
