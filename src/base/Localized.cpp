// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/Localized.h"

#include <QCoreApplication>

namespace quillon {

QString localized(const QString &english)
{
    return localized(english.toUtf8().constData());
}

QString localized(const char *english)
{
    return QCoreApplication::translate("Quillon", english);
}

QString filled(const QString &text, const QStringList &values)
{
    QStringList pieces = text.split(QStringLiteral("%@"));
    QString result = pieces.takeFirst();
    qsizetype next = 0;
    for (const QString &piece : pieces) {
        result += next < values.size() ? values.at(next) : QStringLiteral("%@");
        result += piece;
        ++next;
    }
    return result;
}

} // namespace quillon
