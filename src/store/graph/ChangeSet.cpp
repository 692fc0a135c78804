// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/graph/ChangeSet.h"

namespace quillon {

ChangeSet::Touched &ChangeSet::touch(const ManagedObjectPtr &object)
{
    const auto place = m_places.constFind(object.get());
    if (place != m_places.cend()) {
        return m_touched[*place];
    }
    m_places.insert(object.get(), m_touched.size());
    return m_touched.emplace_back(Touched{object, !object->isDeleted(), {}});
}

void ChangeSet::touchValue(
    const ManagedObjectPtr &object, qsizetype attribute, const QVariant &before)
{
    auto &values = touch(object).before;
    if (!values.contains(attribute)) {
        values.insert(attribute, before);
    }
}

const ChangeSet::Touched *ChangeSet::find(const ManagedObject &object) const
{
    const auto place = m_places.constFind(&object);
    return place == m_places.cend() ? nullptr : &m_touched[*place];
}

} // namespace quillon
