// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/FoldedText.h"

#include <QList>
#include <QString>
#include <QVariant>

namespace quillon {

/// A condition on a record's attributes; SQLite evaluates it (store/file/FetchSql.h). An attribute
/// that holds nothing satisfies no comparison. Texts compare exactly unless the operator says
/// otherwise.
class Predicate
{
public:
    enum class Kind
    {
        Equal,      ///< "device == 'en0'"
        Contains,   ///< plain, case-sensitive substring
        BeginsWith, ///< ignoring case and diacritics, as foldedText() does
        And,        ///< of none: true
        Or,         ///< of none: false
    };

    static Predicate equal(const QString &attribute, const QVariant &value);
    static Predicate contains(const QString &attribute, const QString &text);
    static Predicate beginsWith(const QString &attribute, const QString &text);
    static Predicate all(const QList<Predicate> &parts);
    static Predicate any(const QList<Predicate> &parts);

    Kind kind() const { return m_kind; }
    const QString &attribute() const { return m_attribute; }
    const QVariant &value() const { return m_value; }
    const QList<Predicate> &parts() const { return m_parts; }

    bool operator==(const Predicate &) const = default;

private:
    Kind m_kind = Kind::And;
    QString m_attribute;
    QVariant m_value;
    QList<Predicate> m_parts;
};

} // namespace quillon
