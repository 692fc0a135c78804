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
    switch (outcome.kind()) {
    case ChangeOutcome::Kind::Done:
        return {Kind::Done, outcome.text()};
    case ChangeOutcome::Kind::Notice:
        return {Kind::Notice, outcome.text()};
    case ChangeOutcome::Kind::Failure:
        break;
    }
    return {Kind::Failure, outcome.text()};
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
