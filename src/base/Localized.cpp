// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/Localized.h"

#include <QCoreApplication>
#include <QRegularExpression>

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
