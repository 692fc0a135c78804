// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

#include <ostream>

// Lets a failing expectation show texts as texts.

inline void PrintTo(const QString &text, std::ostream *out)
{
    if (text.isNull()) {
        *out << "(null)";
        return;
    }
    *out << '"' << text.toStdString() << '"';
}

inline void PrintTo(const QByteArray &bytes, std::ostream *out)
{
    *out << bytes.toHex(' ').toStdString();
}
