// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/graph/ChangeSet.h"

namespace quillon {

ChangeSet::Change &ChangeSet::add(const ManagedObjectPtr &object)
{
    const auto place = m_places.constFind(object.get());
    if (place != m_places.cend()) {
        return m_changes[*place];
    }
    m_places.insert(object.get(), m_changes.size());
    return m_changes.emplace_back(Change{object, !object->isDeleted(), {}});
}

void ChangeSet::addValue(
    const ManagedObjectPtr &object, qsizetype attribute, const QVariant &before)
{
    auto &values = add(object).before;
    if (!values.contains(attribute)) {
        values.insert(attribute, before);
    }
}

const ChangeSet::Change *ChangeSet::find(const ManagedObject &object) const
{
    const auto place = m_places.constFind(&object);
    return place == m_places.cend() ? nullptr : &m_changes[*place];
}

} // namespace quillon
