// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <QList>
#include <QString>
#include <QVariant>

#include <optional>

namespace quillon {

/// `text` as a file can hold it: halves of surrogate pairs that stand alone are replaced.
QString wellFormedText(const QString &text);
/// Whether `value` is an integer of any size.
bool isNumber(const QVariant &value);

/// What an attribute holds, and as what it is read: Integer16 as qlonglong, Boolean as bool, String
/// as QString, Date as QDateTime (UTC, milliseconds). Every attribute may also hold nothing, which
/// is an invalid QVariant.
enum class AttributeType
{
    Integer16,
    Boolean,
    String,
    Date,
};

struct Attribute
{
    QString name;
    AttributeType type = AttributeType::String;
};

/// What holds values of that C++ type.
template <typename T>
inline constexpr AttributeType attributeType = AttributeType::String;
template <>
inline constexpr AttributeType attributeType<int> = AttributeType::Integer16;
template <>
inline constexpr AttributeType attributeType<bool> = AttributeType::Boolean;
template <>
inline constexpr AttributeType attributeType<QDateTime> = AttributeType::Date;

/// An attribute that is read and written as T: int, bool, QString or QDateTime. It stands for its
/// name wherever a name is wanted.
template <typename T>
struct AttributeOf : Attribute
{
    explicit AttributeOf(const QString &attributeName)
        : Attribute{attributeName, attributeType<T>}
    {
    }
    operator const QString &() const { return name; }
};

/// One kind of record: its name and its attributes, in order.
class Entity
{
public:
    Entity(QString name, QList<Attribute> attributes);

    const QString &name() const { return m_name; }
    const QList<Attribute> &attributes() const { return m_attributes; }
    /// -1 when the entity has no such attribute.
    qsizetype indexOf(const QString &attribute) const;
    /// `value` as the attribute at `index` holds it: nothing stays nothing; none when the value
    /// does not fit the type (a number beyond 16 bits, a text for a date).
    std::optional<QVariant> converted(qsizetype index, const QVariant &value) const;

private:
    QString m_name;
    QList<Attribute> m_attributes;
};

/// The kinds of records of one store.
struct Model
{
    QString name;
    QList<Entity> entities;

    /// Null when there is none of that name.
    const Entity *entity(const QString &entityName) const;
};

} // namespace quillon
