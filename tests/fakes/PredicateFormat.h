// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "store/model/Predicate.h"

#include <QDateTime>
#include <QStringList>

namespace quillon::test {

inline QString format(const Predicate &predicate);

namespace detail {

inline QString literal(const QVariant &value)
{
    if (!value.isValid()) {
        return QStringLiteral("nil");
    }
    if (value.typeId() == QMetaType::Bool) {
        return value.toBool() ? QStringLiteral("YES") : QStringLiteral("NO");
    }
    if (value.typeId() == QMetaType::QString) {
        QString text = value.toString();
        text.replace(QLatin1Char('\\'), QStringLiteral("\\\\"));
        text.replace(QLatin1Char('\''), QStringLiteral("\\'"));
        return QStringLiteral("'%1'").arg(text);
    }
    if (value.typeId() == QMetaType::QDateTime) {
        return value.toDateTime().toUTC().toString(Qt::ISODateWithMs);
    }
    return value.toString();
}

inline QString joined(const QList<Predicate> &parts, const QString &sign, const QString &ofNone)
{
    if (parts.size() == 1) {
        return format(parts.first());
    }
    QStringList texts;
    for (const Predicate &part : parts) {
        texts << QLatin1Char('(') + format(part) + QLatin1Char(')');
    }
    return texts.isEmpty() ? ofNone : texts.join(sign);
}

} // namespace detail

/// In the usual notation: texts in single quotes, Booleans as YES and NO, "&&" and "||" between
/// parentheses, "CONTAINS", "BEGINSWITH[cd]".
inline QString format(const Predicate &predicate)
{
    const auto comparison = [&predicate](const QString &sign) {
        return predicate.attribute() + QLatin1Char(' ') + sign + QLatin1Char(' ') +
               detail::literal(predicate.value());
    };
    switch (predicate.kind()) {
    case Predicate::Kind::Equal:
        return comparison(QStringLiteral("=="));
    case Predicate::Kind::Contains:
        return comparison(QStringLiteral("CONTAINS"));
    case Predicate::Kind::BeginsWith:
        return comparison(QStringLiteral("BEGINSWITH[cd]"));
    case Predicate::Kind::And:
        return detail::joined(
            predicate.parts(), QStringLiteral(" && "), QStringLiteral("TRUEPREDICATE"));
    case Predicate::Kind::Or:
        return detail::joined(
            predicate.parts(), QStringLiteral(" || "), QStringLiteral("FALSEPREDICATE"));
    }
    return {};
}

} // namespace quillon::test
