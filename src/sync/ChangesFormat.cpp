// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "sync/ChangesFormat.h"

#include "sync/StampFormat.h"

#include <algorithm>
#include <tuple>

namespace quillon {

namespace {

constexpr qsizetype idSize = 16;
/// The bits of a number say which of the first attributes were written with the insertion.
constexpr qsizetype mostBits = 62;
// More than any model will have.
constexpr qsizetype mostAttributes = 1000;
constexpr qsizetype mostEntities = 100;

/// An entity and those of its attributes that the file names.
struct Columns
{
    QString entity;
    QStringList attributes;
};

class ChangesOutput
{
public:
    explicit ChangesOutput(const SyncChanges &changes)
        : m_changes(changes)
        , m_writer(&m_content)
        , m_stamps(m_writer)
    {
    }

    QByteArray write()
    {
        collect();
        m_writer.startArray(5);
        m_stamps.writeTable();
        writeColumns();
        QByteArray ids;
        for (const Entry &entry : m_order) {
            ids += entry.id->id.toRfc4122();
        }
        m_writer.append(ids);
        m_writer.startArray();
        for (const Entry &entry : m_order) {
            writeRecord(entry);
        }
        m_writer.endArray();
        writeSettings();
        m_writer.endArray();
        return m_content;
    }

private:
    struct Entry
    {
        const RecordId *id;
        const RecordState *state;
        qsizetype columns;
    };

    void collect()
    {
        for (auto it = m_changes.records.begin(); it != m_changes.records.end(); ++it) {
            m_order.append({&it.key(), &*it, columnsOf(it.key().entity)});
            m_stamps.meet(it->inserted);
            m_stamps.meet(it->deleted);
            QStringList &known = m_columns[m_order.last().columns].attributes;
            for (auto value = it->attributes.begin(); value != it->attributes.end(); ++value) {
                m_stamps.meet(value->stamp);
                if (!known.contains(value.key())) {
                    known.append(value.key());
                }
            }
        }
        for (const SyncRegister &setting : m_changes.settings) {
            m_stamps.meet(setting.stamp);
        }
        // By time, so that the distances between stamps are short.
        std::ranges::sort(m_order, {}, [](const Entry &entry) {
            return std::tuple(
                std::max(entry.state->inserted, entry.state->deleted), std::cref(*entry.id));
        });
    }

    qsizetype columnsOf(const QString &entity)
    {
        const auto known = std::ranges::find(m_columns, entity, &Columns::entity);
        const qsizetype index = known - m_columns.begin();
        if (known == m_columns.end()) {
            m_columns.append({entity, {}});
        }
        return index;
    }

    void writeColumns()
    {
        m_writer.startArray(quint64(m_columns.size()));
        for (const Columns &columns : std::as_const(m_columns)) {
            m_writer.startArray(quint64(columns.attributes.size()) + 1);
            m_writer.append(columns.entity);
            for (const QString &attribute : columns.attributes) {
                m_writer.append(attribute);
            }
            m_writer.endArray();
        }
        m_writer.endArray();
    }

    /// What was written with the insertion comes first, without stamps of its own.
    void writeRecord(const Entry &entry)
    {
        const RecordState &state = *entry.state;
        const QStringList &names = m_columns[entry.columns].attributes;
        m_writer.append(quint64(entry.columns));
        m_stamps.write(state.inserted);
        m_stamps.write(state.deleted);
        quint64 mask = 0;
        const qsizetype bits = std::min(names.size(), mostBits);
        for (qsizetype i = 0; i < bits; ++i) {
            const auto attribute = state.attributes.find(names[i]);
            if (attribute != state.attributes.end() && attribute->stamp == state.inserted) {
                mask |= quint64{1} << i;
            }
        }
        m_writer.append(mask);
        for (qsizetype i = 0; i < bits; ++i) {
            if (mask & (quint64{1} << i)) {
                m_stamps.write(state.attributes.value(names[i]).value, state.inserted);
            }
        }
        m_writer.append(quint64(state.attributes.size()) - quint64(qPopulationCount(mask)));
        for (auto it = state.attributes.begin(); it != state.attributes.end(); ++it) {
            const qsizetype column = names.indexOf(it.key());
            if (it->stamp != state.inserted || column >= mostBits) {
                m_writer.append(quint64(column));
                m_stamps.write(it->stamp);
                m_stamps.write(it->value, it->stamp);
            }
        }
    }

    void writeSettings()
    {
        m_writer.startArray();
        for (auto it = m_changes.settings.begin(); it != m_changes.settings.end(); ++it) {
            m_writer.append(it.key().key);
            m_writer.append(it.key().entry);
            m_stamps.write(it->stamp);
            m_stamps.write(it->value, it->stamp);
        }
        m_writer.endArray();
    }

    const SyncChanges &m_changes;
    QByteArray m_content;
    QCborStreamWriter m_writer;
    StampOutput m_stamps;
    QList<Columns> m_columns;
    QList<Entry> m_order;
};

class ChangesInput
{
public:
    explicit ChangesInput(const QByteArray &content)
        : m_input(content)
        , m_stamps(m_input)
    {
    }

    ReadResult<SyncChanges> read()
    {
        m_input.enterArray();
        m_stamps.readTable();
        readColumns();
        const QByteArray ids = m_input.bytes();
        m_input.enterArray();
        for (qsizetype at = 0; m_input.hasNext(); at += idSize) {
            if (at + idSize > ids.size()) {
                m_input.fail();
                break;
            }
            readRecord(QUuid::fromRfc4122(QByteArrayView(ids).sliced(at, idSize)));
        }
        m_input.leaveArray();
        readSettings();
        m_input.leaveArray();
        if (!m_input.isAtEnd() || m_changes.records.size() * idSize != ids.size()) {
            return FileProblem::Damaged;
        }
        return m_changes;
    }

private:
    void readColumns()
    {
        m_input.enterArray();
        while (m_input.hasNext() && m_columns.size() < mostEntities) {
            Columns columns;
            m_input.enterArray();
            columns.entity = m_input.text();
            while (m_input.hasNext() && columns.attributes.size() < mostAttributes) {
                columns.attributes.append(m_input.text());
            }
            m_input.leaveArray();
            m_columns.append(columns);
        }
        m_input.leaveArray();
    }

    void readRecord(const QUuid &id)
    {
        const auto index = qsizetype(m_input.unsignedInteger(mostEntities));
        if (m_input.hasFailed() || index >= m_columns.size()) {
            m_input.fail();
            return;
        }
        const QStringList &names = m_columns[index].attributes;
        const qsizetype bits = std::min(names.size(), mostBits);
        RecordState state;
        state.inserted = m_stamps.read();
        state.deleted = m_stamps.read();
        const quint64 mask = m_input.unsignedInteger((quint64{1} << bits) - 1);
        if (mask != 0 && state.inserted.isNever()) {
            m_input.fail();
        }
        for (qsizetype i = 0; i < bits; ++i) {
            if (mask & (quint64{1} << i)) {
                addTo(state, names[i], {m_stamps.readValue(state.inserted), state.inserted});
            }
        }
        const quint64 others = m_input.unsignedInteger(quint64(names.size()));
        for (quint64 i = 0; i < others && !m_input.hasFailed(); ++i) {
            const auto column = qsizetype(m_input.unsignedInteger(quint64(names.size())));
            const Stamp stamp = m_stamps.readWritten();
            const SyncValue value = m_stamps.readValue(stamp);
            if (column >= names.size()) {
                m_input.fail();
                return;
            }
            addTo(state, names[column], {value, stamp});
        }
        join(m_changes.records[{m_columns[index].entity, id}], state);
    }

    /// What a deletion has made void is in no state that was merged.
    void addTo(RecordState &state, const QString &name, const SyncRegister &attribute)
    {
        if (attribute.stamp > state.deleted) {
            join(state.attributes[name], attribute);
        }
    }

    void readSettings()
    {
        m_input.enterArray();
        while (m_input.hasNext()) {
            SettingId id;
            id.key = m_input.text();
            id.entry = m_input.text();
            const Stamp stamp = m_stamps.readWritten();
            join(m_changes.settings[id], {m_stamps.readValue(stamp), stamp});
        }
        m_input.leaveArray();
    }

    CborInput m_input;
    StampInput m_stamps;
    QList<Columns> m_columns;
    SyncChanges m_changes;
};

} // namespace

QByteArray writtenChanges(const SyncChanges &changes)
{
    return ChangesOutput(changes).write();
}

ReadResult<SyncChanges> readChanges(const QByteArray &content)
{
    return ChangesInput(content).read();
}

} // namespace quillon
