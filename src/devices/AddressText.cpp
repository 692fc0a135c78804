// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "devices/AddressText.h"

#include <QRegularExpression>

namespace quillon {

using namespace Qt::StringLiterals;

bool isStringValidHEX(const QString &text)
{
    // anchoredPattern ends in \z: a bare $ would let a trailing line break through.
    static const QRegularExpression addressText(QRegularExpression::anchoredPattern(
        u"[A-Z0-9a-z._%+-]+:[A-Za-z0-9.-]+:[A-Za-z0-9.-]+:[A-Za-z0-9.-]+:[A-Za-z0-9.-"
        "]+:[A-Za-z0-9.-]{2,4}"_s));
    return addressText.match(text).hasMatch();
}

} // namespace quillon
