// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <QLocale>

namespace quillon {

/// Date and time for people: the date in medium length (the locale's long one without the weekday
/// and with a short month name), the time without seconds. `moment` is shown in its own time zone.
QString mediumDateShortTime(const QDateTime &moment, const QLocale &locale);
/// The same with hours counted as another locale does.
QString mediumDateShortTime(const QDateTime &moment, const QLocale &locale, const QLocale &ofHours);

} // namespace quillon
