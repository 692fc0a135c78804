// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/Error.h"
#include "store/model/Entity.h"

#include <QHash>
#include <QList>
#include <QVariantList>

#include <functional>
#include <optional>

namespace quillon {

/// Which records a list showed at one moment, to be read elsewhere. It holds their keys, shared
/// with the list, and what was not saved of them. Cheap to copy; any thread.
class RecordSnapshot
{
public:
    RecordSnapshot(
        QString path, Entity entity, QList<qint64> keys, QHash<qint64, QVariantList> unsaved);

    const QList<qint64> &keys() const { return m_keys; }
    /// Of it those of these keys, in their order.
    RecordSnapshot of(const QList<qint64> &keys) const
    {
        return {m_path, m_entity, keys, m_unsaved};
    }
    const Entity &entity() const { return m_entity; }

    /// Reads the records from the file, in their order and without those that are gone by now, and
    /// gives `take` the values of each, by the entity's attributes; its answer is whether to go on.
    /// Error: recordFileErrorDomain.
    std::optional<Error> read(const std::function<bool(const QVariantList &values)> &take) const;

private:
    QString m_path;
    Entity m_entity;
    QList<qint64> m_keys;
    QHash<qint64, QVariantList> m_unsaved; ///< by key
};

} // namespace quillon
