// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "vendors/DateStamp.h"

#include <QRegularExpression>

namespace quillon {

QString mediumDateShortTime(const QDateTime &moment, const QLocale &locale)
{
    QString date = locale.dateFormat(QLocale::LongFormat);
    // The weekday goes with what joins it to the date, and with words that belong to it.
    static const QRegularExpression weekday(
        QStringLiteral("^dddd?[\\s,،、.]*|[\\s,،、]*\\(?dddd?[^dMy]*$"));
    date.remove(weekday);
    date.replace(QLatin1String("MMMM"), QLatin1String("MMM"));
    const QString time = locale.timeFormat(QLocale::ShortFormat).remove(QLatin1String(":ss"));
    return locale.toString(moment.date(), date) + QLatin1String(", ") +
           locale.toString(moment.time(), time);
}

} // namespace quillon
