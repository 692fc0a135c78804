// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/HistoryCsv.h"

#include "history/HistoryColumn.h"

#include <QDateTime>

#include <algorithm>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

/// What programs that calculate take for the beginning of a formula.
constexpr QStringView formulaStarts = u"=+-@\t\r";
constexpr QStringView quotedFor = u",\"\r\n";

QByteArray fieldOf(const QVariant &value)
{
    if (value.typeId() != QMetaType::QDateTime) {
        return csvField(value.toString());
    }
    const QDateTime local = value.toDateTime().toLocalTime();
    return local.toOffsetFromUtc(local.offsetFromUtc()).toString(Qt::ISODateWithMs).toUtf8();
}

} // namespace

QByteArray csvField(QString text)
{
    if (!text.isEmpty() && (text.front() == u'\'' || formulaStarts.contains(text.front()))) {
        text.prepend(u'\'');
    }
    const bool isQuoted =
        std::ranges::any_of(text, [](QChar character) { return quotedFor.contains(character); });
    if (isQuoted) {
        text = u'"' + text.replace(u'"', u"\"\""_s) + u'"';
    }
    return text.toUtf8();
}

QByteArray csvHeader()
{
    return "Date,Interface,Device,Address,Network,BSSID,Notes\r\n";
}

QByteArray csvRow(const Entity &entity, const QVariantList &values)
{
    QByteArrayList fields;
    for (const HistoryColumn column : historyColumns) {
        fields << fieldOf(values.value(entity.indexOf(attributeOf(column))));
    }
    return fields.join(',') + "\r\n";
}

} // namespace quillon
