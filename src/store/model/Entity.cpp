// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/model/Entity.h"

#include <QDateTime>

#include <limits>
#include <utility>

namespace quillon {

QString wellFormedText(const QString &text)
{
    return text.isValidUtf16() ? text : QString::fromUtf8(text.toUtf8());
}

bool isNumber(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::Short:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
        return true;
    default:
        return false;
    }
}

Entity::Entity(QString name, QList<Attribute> attributes)
    : m_name(std::move(name))
    , m_attributes(std::move(attributes))
{
}

qsizetype Entity::indexOf(const QString &attribute) const
{
    for (qsizetype index = 0; index < m_attributes.size(); ++index) {
        if (m_attributes[index].name == attribute) {
            return index;
        }
    }
    return -1;
}

namespace {

std::optional<QVariant> integer16(const QVariant &value)
{
    const qlonglong number = value.toLongLong();
    if (!isNumber(value) || number < std::numeric_limits<qint16>::min() ||
        number > std::numeric_limits<qint16>::max()) {
        return std::nullopt;
    }
    return QVariant(number);
}

std::optional<QVariant> date(const QVariant &value)
{
    const QDateTime moment = value.toDateTime();
    if (value.typeId() != QMetaType::QDateTime || !moment.isValid()) {
        return std::nullopt;
    }
    return QVariant(moment.toUTC());
}

} // namespace

std::optional<QVariant> Entity::converted(qsizetype index, const QVariant &value) const
{
    if (!value.isValid()) {
        return QVariant();
    }
    const auto asIs = [&value](bool fits) { return fits ? std::optional(value) : std::nullopt; };
    switch (m_attributes[index].type) {
    case AttributeType::Integer16:
        return integer16(value);
    case AttributeType::Boolean:
        return asIs(value.typeId() == QMetaType::Bool);
    case AttributeType::String:
        return value.typeId() == QMetaType::QString
                   ? std::optional<QVariant>(wellFormedText(value.toString()))
                   : std::nullopt;
    case AttributeType::Date:
        return date(value);
    }
    return std::nullopt;
}

const Entity *Model::entity(const QString &entityName) const
{
    for (const Entity &entity : entities) {
        if (entity.name() == entityName) {
            return &entity;
        }
    }
    return nullptr;
}

} // namespace quillon
