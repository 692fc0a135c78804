// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <QString>

namespace quillon {

// Moments as people say them, in the user's time zone, in the words of the language that the texts
// have, with hours as the user's locale counts them.

/// "Today 14:02", "Yesterday 18:47", "Nov 19, 2026 08:01", as seen from `now`; empty for none.
QString momentText(const QDateTime &moment, const QDateTime &now);
/// With the day of the week, the seconds and the zone; empty for none.
QString momentInFull(const QDateTime &moment);
/// When momentText() of something begins to read otherwise: the next midnight here, in UTC.
QDateTime nextMidnight(const QDateTime &now);

} // namespace quillon
