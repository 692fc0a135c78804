// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/model/Predicate.h"

#include <QDateTime>
#include <QStringList>

#include <algorithm>

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

namespace {

QString literal(const QVariant &value)
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

QString joined(const QList<Predicate> &parts, const QString &sign, const QString &ofNone)
{
    if (parts.size() == 1) {
        return parts.first().format();
    }
    QStringList texts;
    for (const Predicate &part : parts) {
        texts << QLatin1Char('(') + part.format() + QLatin1Char(')');
    }
    return texts.isEmpty() ? ofNone : texts.join(sign);
}

} // namespace

QString Predicate::format() const
{
    const auto comparison = [this](const QString &sign) {
        return m_attribute + QLatin1Char(' ') + sign + QLatin1Char(' ') + literal(m_value);
    };
    switch (m_kind) {
    case Kind::Equal:
        return comparison(QStringLiteral("=="));
    case Kind::Contains:
        return comparison(QStringLiteral("CONTAINS"));
    case Kind::BeginsWith:
        return comparison(QStringLiteral("BEGINSWITH[cd]"));
    case Kind::And:
        return joined(m_parts, QStringLiteral(" && "), QStringLiteral("TRUEPREDICATE"));
    case Kind::Or:
        return joined(m_parts, QStringLiteral(" || "), QStringLiteral("FALSEPREDICATE"));
    }
    return {};
}

QString foldedText(const QString &text)
{
    const auto isPlain = [](QChar letter) { return letter < QChar(0x80); };
    if (std::all_of(text.begin(), text.end(), isPlain)) {
        return text.toCaseFolded();
    }
    QList<char32_t> letters;
    for (const uint letter : text.normalized(QString::NormalizationForm_D).toUcs4()) {
        if (QChar::category(letter) != QChar::Mark_NonSpacing) {
            letters << letter;
        }
    }
    return QString::fromUcs4(letters.constData(), letters.size()).toCaseFolded();
}

} // namespace quillon
