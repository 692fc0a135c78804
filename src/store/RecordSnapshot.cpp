// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/RecordSnapshot.h"

#include "store/file/RecordReader.h"

#include <utility>

namespace quillon {

namespace {

constexpr qsizetype recordsAtOnce = 500;

} // namespace

RecordSnapshot::RecordSnapshot(
    QString path, Entity entity, QList<qint64> keys, QHash<qint64, QVariantList> unsaved)
    : m_path(std::move(path))
    , m_entity(std::move(entity))
    , m_keys(std::move(keys))
    , m_unsaved(std::move(unsaved))
{
}

std::optional<Error> RecordSnapshot::read(
    const std::function<bool(const QVariantList &values)> &take) const
{
    const auto reader = RecordReader::open(m_path);
    if (!reader) {
        return reader.error();
    }
    for (qsizetype from = 0; from < m_keys.size(); from += recordsAtOnce) {
        const QList<qint64> keys = m_keys.mid(from, recordsAtOnce);
        const auto rows = reader.value()->rows(m_entity, keys);
        if (!rows) {
            return rows.error();
        }
        QHash<qint64, QVariantList> found;
        for (const RecordRow &row : rows.value()) {
            found.insert(row.key, row.values);
        }
        for (const qint64 key : keys) {
            const auto unsaved = m_unsaved.constFind(key);
            const QVariantList values =
                unsaved == m_unsaved.cend() ? found.value(key) : unsaved.value();
            if (!values.isEmpty() && !take(values)) {
                return std::nullopt;
            }
        }
    }
    return std::nullopt;
}

} // namespace quillon
