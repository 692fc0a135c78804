// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "store/graph/ManagedObject.h"

#include <QHash>
#include <QMap>

#include <vector>

namespace quillon {

/// Which records a stretch of time touched, in order, and what they were before it.
class ChangeSet
{
public:
    struct Touched
    {
        ManagedObjectPtr object;
        bool wasPresent = true;           ///< a record that was neither new nor deleted
        QMap<qsizetype, QVariant> before; ///< by the attribute's index
    };

    /// Call before the change; only the first call for an object keeps its presence.
    Touched &touch(const ManagedObjectPtr &object);
    /// Call before the change; only the first call for an attribute keeps its value.
    void touchValue(const ManagedObjectPtr &object, qsizetype attribute, const QVariant &before);

    /// Null when it was not touched.
    const Touched *find(const ManagedObject &object) const;
    bool isEmpty() const { return m_touched.empty(); }
    std::vector<Touched>::const_iterator begin() const { return m_touched.begin(); }
    std::vector<Touched>::const_iterator end() const { return m_touched.end(); }

private:
    std::vector<Touched> m_touched;
    QHash<const ManagedObject *, std::size_t> m_places;
};

} // namespace quillon
