// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "store/graph/ManagedObject.h"

#include <QHash>
#include <QMap>

#include <vector>

namespace quillon {

/// The records that changed in a stretch of time, in order, and what they were before it.
class ChangeSet
{
public:
    struct Change
    {
        ManagedObjectPtr object;
        bool wasPresent = true;           ///< a record that was neither new nor deleted
        QMap<qsizetype, QVariant> before; ///< by the attribute's index
    };

    /// Call before the change; only the first call for an object keeps its presence.
    Change &add(const ManagedObjectPtr &object);
    /// Call before the change; only the first call for an attribute keeps its value.
    void addValue(const ManagedObjectPtr &object, qsizetype attribute, const QVariant &before);

    /// Null when it did not change.
    const Change *find(const ManagedObject &object) const;
    bool isEmpty() const { return m_changes.empty(); }
    std::vector<Change>::const_iterator begin() const { return m_changes.begin(); }
    std::vector<Change>::const_iterator end() const { return m_changes.end(); }

private:
    std::vector<Change> m_changes;
    QHash<const ManagedObject *, std::size_t> m_places;
};

} // namespace quillon
