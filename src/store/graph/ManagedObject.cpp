// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/graph/ManagedObject.h"

#include "base/Log.h"
#include "store/graph/ManagedObjectContext.h"

namespace quillon {

using namespace Qt::StringLiterals;

ManagedObject::ManagedObject(ManagedObjectContext &context, const Entity &entity, const QUuid &id)
    : m_context(&context)
    , m_entity(entity)
    , m_id(id)
    , m_values(entity.attributes().size())
{
}

ManagedObject::~ManagedObject()
{
    if (m_context) {
        m_context->m_registered.remove(ManagedObjectContext::identityOf(*this));
    }
}

QString ManagedObject::uriRepresentation() const
{
    return u"x-quillon-record://Quillon/%1/%2"_s.arg(
        m_entity.name(), m_id.toString(QUuid::WithoutBraces));
}

QVariant ManagedObject::value(const QString &attribute) const
{
    return m_values.value(m_entity.indexOf(attribute));
}

void ManagedObject::setValue(const QString &attribute, const QVariant &value)
{
    change(attribute, value, Change::Edit);
}

void ManagedObject::setPrimitiveValue(const QString &attribute, const QVariant &value)
{
    change(attribute, value, Change::Correction);
}

void ManagedObject::change(const QString &attribute, const QVariant &value, Change kind)
{
    if (!m_context || m_isDeleted) {
        return;
    }
    const qsizetype index = m_entity.indexOf(attribute);
    const auto converted = index < 0 ? std::nullopt : m_entity.converted(index, value);
    if (!converted) {
        qCWarning(logRecords, "A value of type %s does not fit %s.%s", value.typeName(),
            qUtf8Printable(m_entity.name()), qUtf8Printable(attribute));
        return;
    }
    m_context->assign(shared_from_this(), index, *converted, kind);
}

QVariantMap ManagedObject::changedValuesForCurrentEvent() const
{
    return m_context ? m_context->previousValues(*this) : QVariantMap();
}

bool ManagedObject::hasChanges() const
{
    return m_isDeleted ? m_isInFile : !m_isInFile || m_values != m_stored;
}

bool ManagedObject::isInserted() const
{
    return !m_isInFile && !m_isDeleted;
}

bool ManagedObject::isDeleted() const
{
    return m_isDeleted;
}

} // namespace quillon
