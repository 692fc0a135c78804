// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "devices/AddressText.h"

#include <QRegularExpression>
#include <QStringList>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

/// Six octets of two lower-case digits; empty when `text` is no address.
QString canonicalAddress(const QString &text)
{
    static const QRegularExpression address(
        QRegularExpression::anchoredPattern(u"[0-9A-Fa-f]{1,2}(:[0-9A-Fa-f]{1,2}){5}"_s));
    if (!address.match(text).hasMatch()) {
        return {};
    }
    QStringList octets = text.toLower().split(u':');
    for (QString &octet : octets) {
        octet = octet.rightJustified(2, u'0');
    }
    return octets.join(u':');
}

} // namespace

bool isStringValidHEX(const QString &text)
{
    // anchoredPattern ends in \z: a bare $ would let a trailing line break through.
    static const QRegularExpression addressText(QRegularExpression::anchoredPattern(
        u"[A-Z0-9a-z._%+-]+:[A-Za-z0-9.-]+:[A-Za-z0-9.-]+:[A-Za-z0-9.-]+:[A-Za-z0-9.-"
        "]+:[A-Za-z0-9.-]{2,4}"_s));
    return addressText.match(text).hasMatch();
}

bool isSameAddress(const QString &a, const QString &b)
{
    const QString address = canonicalAddress(a);
    return !address.isEmpty() && address == canonicalAddress(b);
}

bool isGroupAddress(const QString &address)
{
    bool isNumber = false;
    return (address.mid(1, 1).toUInt(&isNumber, 16) & 1U) != 0 && isNumber;
}

QString withColons(QString digits)
{
    for (qsizetype place = digits.size() - 2; place > 0; place -= 2) {
        digits.insert(place, u':');
    }
    return digits;
}

} // namespace quillon
