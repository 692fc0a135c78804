// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/window/AddressFieldLine.h"

#include "base/Localized.h"
#include "devices/AddressText.h"
#include "devices/ChangeOutcome.h"

namespace quillon {

namespace {

constexpr qsizetype bareDigits = 12;
constexpr qsizetype fullLength = 17;

/// The digits of an address without its colons, which is not taken for one.
bool isBareAddress(const QString &text)
{
    return text.size() == bareDigits && !text.contains(u':');
}

} // namespace

AddressFieldLine AddressFieldLine::forText(const QString &fieldText, const QString &current)
{
    if (fieldText.isEmpty() || fieldText.compare(current, Qt::CaseInsensitive) == 0) {
        return {Kind::Hint,
            localized("This is the address in use. Type or drop another to change it.")};
    }
    if (isBareAddress(fieldText)) {
        return {
            Kind::Notice, filled(localized("Write it with colons: %@."), {withColons(fieldText)})};
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

AddressFieldLine AddressFieldLine::forResult(const ChangeOutcome &outcome)
{
    if (outcome.address.isEmpty()) {
        // Whatever the helper says of it: the field still shows the one of before.
        return {Kind::Failure, localized("The interface does not say which address it has now.")};
    }
    if (outcome.isInPlace) {
        return {Kind::Done, localized("Changed: this is the address in use now.")};
    }
    if (!outcome.failure.isEmpty()) {
        return {Kind::Failure, filled(localized("Not changed: %@."), {outcome.failure})};
    }
    if (!outcome.isSettled) {
        return {Kind::Notice, localized("Not connected again: look at the address when it is.")};
    }
    if (outcome.isConfirmed) {
        return {Kind::Notice, localized("Changed, but to another address than you asked for.")};
    }
    return {Kind::Failure, localized("The address was not changed.")};
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

AddressFieldLine AddressFieldLine::interfaceGone()
{
    return {Kind::Notice, localized("This interface is not there: select another.")};
}

} // namespace quillon
