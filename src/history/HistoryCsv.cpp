// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/HistoryCsv.h"

#include "history/HistoryColumn.h"

#include <QDateTime>

#include <algorithm>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

/// What programs that calculate take for the beginning of a formula; some also in full width.
constexpr QStringView formulaStarts = u"=+-@\uFF1D\uFF0B\uFF0D\uFF20";
constexpr QStringView partEnds = u";\t\r\n";
constexpr QStringView quotedFor = u",\"\r\n";

/// Whether `text` begins like a formula, or like what is written before one. Spaces are no
/// protection: they are passed over.
bool startsFormula(QStringView text)
{
    const auto begin =
        std::ranges::find_if(text, [](QChar character) { return character != u' '; });
    return begin != text.end() && (*begin == u'\'' || formulaStarts.contains(*begin));
}

/// With an apostrophe before each part that begins like a formula. Parts are what a program gets
/// that takes semicolons, tabs or line breaks for the ends of fields.
QString defused(const QString &text)
{
    QString safe;
    if (!text.isEmpty() && partEnds.contains(text.front()) && text.front() != u';') {
        // Some take that away, and the rest for the beginning.
        safe += u'\'';
    }
    bool isStart = true;
    for (qsizetype index = 0; index < text.size(); ++index) {
        if (isStart && startsFormula(QStringView(text).sliced(index))) {
            safe += u'\'';
        }
        safe += text[index];
        isStart = partEnds.contains(text[index]);
    }
    return safe;
}

QByteArray fieldOf(const QVariant &value)
{
    if (value.typeId() != QMetaType::QDateTime) {
        return csvField(value.toString());
    }
    const QDateTime local = value.toDateTime().toLocalTime();
    return local.toOffsetFromUtc(local.offsetFromUtc()).toString(Qt::ISODateWithMs).toUtf8();
}

} // namespace

QByteArray csvField(const QString &field)
{
    QString text = defused(field);
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
