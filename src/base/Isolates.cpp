// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/Isolates.h"

namespace quillon {

QList<qsizetype> halfIsolates(const QString &text)
{
    QList<qsizetype> ends;
    QList<qsizetype> begun;
    for (qsizetype place = 0; place < text.size(); ++place) {
        if (text.at(place) == isolateBegin) {
            begun.append(place);
        } else if (text.at(place) == isolateEnd) {
            if (begun.isEmpty()) {
                ends.append(place);
            } else {
                begun.removeLast();
            }
        }
    }
    return ends + begun;
}

QString isolated(const QString &value)
{
    return isolateBegin + value + isolateEnd;
}

QString withoutIsolates(QString text)
{
    return text.remove(isolateBegin).remove(isolateEnd);
}

} // namespace quillon
