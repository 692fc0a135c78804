// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "store/graph/ManagedObjectContext.h"

namespace quillon::test {

/// Records that are a function of one number, the last batch that was saved. A batch inserts some,
/// changes those of the batch before, deletes those of an older one, and moves a marker; so
/// whatever is lost, halved or too much in the file shows.
class Batches
{
public:
    explicit Batches(ManagedObjectContext &context)
        : m_context(context)
    {
    }

    /// Makes the changes of batch `number` in the context; the one before was the last.
    void change(qint64 number);
    /// The last batch as the marker has it: 0 when there is none, -1 when it cannot be read.
    qint64 last();
    /// Every record with all of its values, one text each, sorted.
    QStringList found();
    /// What found() has to be after batch `last`.
    static QStringList expected(qint64 last);

private:
    ManagedObjectList fetch(const QString &entity, std::optional<Predicate> predicate);
    void insertConnections(qint64 batch);

    ManagedObjectContext &m_context;
};

} // namespace quillon::test
