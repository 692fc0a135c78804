// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "store/model/Entity.h"

#include <QList>
#include <QUuid>
#include <QVariantMap>

#include <memory>
#include <type_traits>

namespace quillon {

class ManagedObjectContext;

/// One record, live in its context: the same record is the same object for as long as somebody
/// holds it or it has unsaved changes. It stays readable after its context is gone, and ignores
/// writes then. Main thread.
class ManagedObject : public std::enable_shared_from_this<ManagedObject>
{
public:
    const Entity &entity() const { return m_entity; }
    /// The record's identity as text: "x-quillon-record://Quillon/Rule/<uuid>". Survives saving and
    /// restarts; ManagedObjectContext::objectWithURI() turns it back into the object.
    QString uriRepresentation() const;
    /// Its place in the order of creation; the first save gives it another.
    qint64 key() const { return m_key; }

    /// Invalid when the attribute holds nothing, or there is none of that name.
    QVariant value(const QString &attribute) const;
    /// A user-visible change: it can be undone, and is told at the end of the turn. A value that
    /// does not fit the attribute's type is a programming error: refused with a log line.
    void setValue(const QString &attribute, const QVariant &value);
    /// A correction: saved like any change, but neither told nor undone by itself.
    void setPrimitiveValue(const QString &attribute, const QVariant &value);

    /// value() and setValue() in the attribute's own type; what holds nothing reads as T().
    template <typename T>
    T get(const AttributeOf<T> &attribute) const
    {
        return value(attribute).template value<T>();
    }
    template <typename T>
    void set(const AttributeOf<T> &attribute, const std::type_identity_t<T> &value)
    {
        setValue(attribute, value);
    }

    /// The attributes changed since the last objectsDidChange, with their previous values.
    QVariantMap changedValuesForCurrentEvent() const;
    bool hasChanges() const; ///< inserted, updated or deleted since the last save
    bool isInserted() const; ///< not saved yet
    bool isDeleted() const;

    // Made by the context.
    ManagedObject(const ManagedObject &) = delete;
    ManagedObject &operator=(const ManagedObject &) = delete;
    ~ManagedObject();

private:
    friend class ManagedObjectContext;
    enum class Change
    {
        Edit,
        Correction,
    };

    ManagedObject(ManagedObjectContext &context, const Entity &entity, const QUuid &id);
    void change(const QString &attribute, const QVariant &value, Change kind);

    ManagedObjectContext *m_context; ///< null once it is gone
    Entity m_entity;
    QUuid m_id;
    QVariantList m_values;
    QVariantList m_stored; ///< as the file has them, when it has the record
    qint64 m_key = 0;      ///< RecordRow::key, kept when the record is deleted
    bool m_isInFile = false;
    bool m_isDeleted = false;
};

using ManagedObjectPtr = std::shared_ptr<ManagedObject>;
using ManagedObjectList = QList<ManagedObjectPtr>;

} // namespace quillon
