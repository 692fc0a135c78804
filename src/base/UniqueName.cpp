// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/UniqueName.h"

#include <QSet>

namespace quillon {

using namespace Qt::StringLiterals;

QString numberedName(const QString &name, int number)
{
    return name + u" (%1)"_s.arg(number);
}

QString getOriginalNameFromArray(const QString &name, const QStringList &taken)
{
    const QSet<QString> names(taken.begin(), taken.end());
    QString candidate = name;
    for (int suffix = 2; names.contains(candidate); ++suffix) {
        candidate = numberedName(name, suffix);
    }
    return candidate;
}

} // namespace quillon
