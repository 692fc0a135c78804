// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "devices/ChangeOutcome.h"

#include "base/Localized.h"

namespace quillon {

ChangeOutcome::Kind ChangeOutcome::kind() const
{
    // Without an address, whatever the helper says of it: the window still shows the one of before.
    if (address.isEmpty()) {
        return Kind::Failure;
    }
    if (isInPlace) {
        return Kind::Done;
    }
    return failure.isEmpty() && (!isSettled || isConfirmed) ? Kind::Notice : Kind::Failure;
}

QString ChangeOutcome::text() const
{
    if (address.isEmpty()) {
        return localized("The interface does not say which address it has now.");
    }
    if (isInPlace) {
        return localized("Changed: this is the address in use now.");
    }
    if (!failure.isEmpty()) {
        return filled(localized("Not changed: %@."), {failure});
    }
    if (!isSettled) {
        return localized("Not connected again: look at the address when it is.");
    }
    if (isConfirmed) {
        return localized("Changed, but to another address than you asked for.");
    }
    return localized("The address was not changed.");
}

} // namespace quillon
