// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/window/AddressFieldLine.h"

#include "base/Localized.h"
#include "devices/AddressText.h"

namespace quillon {

namespace {

constexpr qsizetype fullLength = 17;

/// The group bit of IEEE 802: the lowest of the first octet, which its second digit ends with.
bool isGroupAddress(const QString &address)
{
    bool isNumber = false;
    return (address.mid(1, 1).toUInt(&isNumber, 16) & 1U) != 0 && isNumber;
}

} // namespace

AddressFieldLine AddressFieldLine::forText(const QString &fieldText, const QString &current)
{
    if (fieldText.isEmpty() || fieldText.compare(current, Qt::CaseInsensitive) == 0) {
        return {Kind::Hint,
            localized("This is the address in use. Type or drop another to change it.")};
    }
    if (fieldText.size() < fullLength) {
        return {Kind::Hint, localized("A MAC address has 12 hexadecimal digits.")};
    }
    if (!isStringValidHEX(fieldText)) {
        return {Kind::Failure, localized("This is not a MAC address.")};
    }
    if (isGroupAddress(fieldText)) {
        return {Kind::Notice, localized("Group address: most adapters refuse it.")};
    }
    return {Kind::Hint, localized("Press Return or Apply to use this address.")};
}

AddressFieldLine AddressFieldLine::forResult(bool isInPlace, const QString &failure)
{
    if (isInPlace) {
        return {Kind::Done, localized("Changed: this is the address in use now.")};
    }
    return {Kind::Failure, failure.isEmpty() ? localized("The address was not changed.")
                                             : filled(localized("Not changed: %@."), {failure})};
}

AddressFieldLine AddressFieldLine::changing()
{
    return {Kind::Hint, localized("Changing…")};
}

AddressFieldLine AddressFieldLine::withoutHelper()
{
    return {Kind::Hint, localized("Install the helper to change the address.")};
}

AddressFieldLine AddressFieldLine::withoutInterface()
{
    return {Kind::Hint, localized("No interface here can be changed.")};
}

} // namespace quillon
