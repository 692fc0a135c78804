// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/DateStamp.h"

#include <QRegularExpression>

namespace quillon {

using namespace Qt::StringLiterals;

QString mediumDateShortTime(const QDateTime &moment, const QLocale &locale)
{
    return mediumDateShortTime(moment, locale, locale);
}

QString mediumDateShortTime(const QDateTime &moment, const QLocale &locale, const QLocale &ofHours)
{
    QString date = locale.dateFormat(QLocale::LongFormat);
    // The weekday goes with what joins it to the date, and with words that belong to it.
    static const QRegularExpression weekday(u"^dddd?[\\s,،、.]*|[\\s,،、]*\\(?dddd?[^dMy]*$"_s);
    date.remove(weekday);
    date.replace("MMMM"_L1, "MMM"_L1);
    const QString time = ofHours.timeFormat(QLocale::ShortFormat).remove(":ss"_L1);
    return locale.toString(moment.date(), date) + ", "_L1 + locale.toString(moment.time(), time);
}

} // namespace quillon
