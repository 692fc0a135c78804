// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/model/Predicate.h"

namespace quillon {

Predicate Predicate::equal(const QString &attribute, const QVariant &value)
{
    Predicate predicate;
    predicate.m_kind = Kind::Equal;
    predicate.m_attribute = attribute;
    predicate.m_value = value;
    return predicate;
}

Predicate Predicate::contains(const QString &attribute, const QString &text)
{
    Predicate predicate = equal(attribute, text);
    predicate.m_kind = Kind::Contains;
    return predicate;
}

Predicate Predicate::beginsWith(const QString &attribute, const QString &text)
{
    Predicate predicate = equal(attribute, text);
    predicate.m_kind = Kind::BeginsWith;
    return predicate;
}

Predicate Predicate::all(const QList<Predicate> &parts)
{
    Predicate predicate;
    predicate.m_parts = parts;
    return predicate;
}

Predicate Predicate::any(const QList<Predicate> &parts)
{
    Predicate predicate = all(parts);
    predicate.m_kind = Kind::Or;
    return predicate;
}

} // namespace quillon
