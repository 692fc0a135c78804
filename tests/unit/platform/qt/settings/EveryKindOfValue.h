// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <QVariantMap>

#include <limits>

namespace quillon::test {

/// One of every kind of value that settings can hold, with the awkward ones.
inline QVariantMap everyKindOfValue()
{
    const auto moment = [](int year) {
        return QDateTime(QDate(year, 12, 31), QTime(23, 59, 58), Qt::UTC);
    };
    const QVariantMap inner{{QStringLiteral(""), QStringLiteral("the empty key")},
        {QStringLiteral("<&>\"'"), QStringLiteral("]]> &amp; <string>")}};
    return {
        {QStringLiteral("true"), true},
        {QStringLiteral("false"), false},
        {QStringLiteral("integers"),
            QVariantList{0LL, 1LL, -1LL, 255LL, 256LL, 65535LL, 1LL << 32,
                std::numeric_limits<qlonglong>::max(), std::numeric_limits<qlonglong>::min()}},
        {QStringLiteral("reals"),
            QVariantList{0.0, 1.0, -0.1, 1e300, 1e-300, 1.0 / 3,
                std::numeric_limits<double>::infinity(), -std::numeric_limits<double>::infinity(),
                std::numeric_limits<double>::quiet_NaN()}},
        {QStringLiteral("strings"),
            QVariantList{QString(), QStringLiteral(" "), QStringLiteral("  padded\t"),
                QStringLiteral("a\nb"), QStringLiteral("a\r\nb\r"),
                QString::fromUtf8("Caf\u00e9 \u6f22\u5b57 \U0001F600"),
                QString(QChar::ReplacementCharacter), QStringLiteral("%@ \\ \" '")}},
        {QStringLiteral("dates"),
            QVariantList{moment(1), moment(1900), moment(1969), moment(2026), moment(9999)}},
        {QStringLiteral("data"),
            QVariantList{QByteArray(""), QByteArray("\0\xff\x80", 3), QByteArray(1000, 'x')}},
        {QStringLiteral("empty"), QVariantList{QVariantList(), QVariantMap()}},
        {QStringLiteral("nested"),
            QVariantMap{{QStringLiteral("inner"), QVariantList{inner, QVariantList{inner}}}}},
        {QString::fromUtf8("schl\u00fcssel \U0001F511"), QStringLiteral("key beyond ASCII")},
    };
}

} // namespace quillon::test
