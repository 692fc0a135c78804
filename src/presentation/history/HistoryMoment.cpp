// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/history/HistoryMoment.h"

#include "base/Languages.h"
#include "base/Localized.h"

#include <QRegularExpression>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

QString timeText(const QTime &time)
{
    QString format = QLocale().timeFormat(QLocale::ShortFormat);
    // Seconds, which some locales have even in the short form, tell nobody anything here.
    static const QRegularExpression seconds(u"[^A-Za-z']*ss?"_s);
    format.remove(seconds);
    constexpr QChar narrowSpace = u'\u202F';
    return textLocale().toString(time, format.replace(narrowSpace, u' '));
}

} // namespace

QString momentText(const QDateTime &moment, const QDateTime &now)
{
    if (!moment.isValid()) {
        return {};
    }
    const QDateTime local = moment.toLocalTime();
    const QString time = timeText(local.time());
    const qint64 daysAgo = local.date().daysTo(now.toLocalTime().date());
    if (daysAgo == 0) {
        return filled(localized("Today %@"), {time});
    }
    if (daysAgo == 1) {
        return filled(localized("Yesterday %@"), {time});
    }
    // How a day is written; the letters are those of QDate::toString().
    const QString day = textLocale().toString(local.date(), localized("MMM d, yyyy"));
    return filled(localized("%@ %@"), {day, time});
}

QString momentInFull(const QDateTime &moment)
{
    if (!moment.isValid()) {
        return {};
    }
    const QDateTime local = moment.toLocalTime();
    const QLocale words = textLocale();
    return filled(
        u"%@ %@"_s, {words.toString(local.date(), QLocale::LongFormat),
                        words.toString(local, QLocale().timeFormat(QLocale::LongFormat))});
}

QDateTime nextMidnight(const QDateTime &now)
{
    return now.toLocalTime().date().addDays(1).startOfDay().toUTC();
}

} // namespace quillon
