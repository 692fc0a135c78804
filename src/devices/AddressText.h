// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace quillon {

/// The address-text test. Deliberately loose: six groups separated by ":", one or more characters
/// in each of the first five and two to four in the last, admitting letters beyond F and some
/// punctuation.
bool isStringValidHEX(const QString &text);

/// Whether both texts are the same six octets: neither case nor a leading zero counts. A text that
/// is no address is the same as no other.
bool isSameAddress(const QString &a, const QString &b);

/// Whether the address is of a group: the lowest bit of the first octet, with which its second
/// digit ends.
bool isGroupAddress(const QString &address);

/// Twelve bare digits, in pairs.
QString withColons(QString digits);

} // namespace quillon
