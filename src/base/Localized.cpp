// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/Localized.h"

#include <QCoreApplication>
#include <QRegularExpression>

#include <algorithm>
#include <limits>

namespace quillon {

using namespace Qt::StringLiterals;

QString localized(const QString &english)
{
    return localized(english.toUtf8().constData());
}

QString localized(const char *english)
{
    return QCoreApplication::translate(textContext, english);
}

QString localized(const char *one, const char *many, qint64 count)
{
    constexpr qint64 most = std::numeric_limits<int>::max();
    const int number = static_cast<int>(std::clamp<qint64>(count, 0, most));
    const QString found = QCoreApplication::translate(textContext, many, nullptr, number);
    // What no table has comes back as it is, with the number in it.
    const bool isEnglish = found == QCoreApplication::translate("", many, nullptr, number);
    return isEnglish && number == 1 ? QCoreApplication::translate(textContext, one, nullptr, number)
                                    : found;
}

QString filled(const QString &text, const QStringList &values)
{
    static const QRegularExpression placeholder(u"%[@d]"_s);
    QString result;
    qsizetype end = 0;
    for (const QString &value : values) {
        const QRegularExpressionMatch match = placeholder.match(text, end);
        if (!match.hasMatch()) {
            break;
        }
        result += text.mid(end, match.capturedStart() - end) + value;
        end = match.capturedEnd();
    }
    return result + text.mid(end);
}

} // namespace quillon
