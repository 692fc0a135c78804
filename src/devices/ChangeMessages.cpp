// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "devices/ChangeMessages.h"

#include "base/Localized.h"
#include "base/Notifier.h"
#include "devices/AddressText.h"
#include "devices/ChangeOutcome.h"

namespace quillon {

ChangeMessages::ChangeMessages(Notifier &notifier)
    : m_notifier(notifier)
{
}

std::optional<QString> ChangeMessages::tell(
    const Subject &subject, const OwnerParticipation::Result &result, const ChangeOutcome &outcome)
{
    using Outcome = AddressOwner::Outcome;
    const QString &readBack = outcome.address;
    const auto settlement = result.settlement.value_or(Outcome::Settled);
    if (result.isRefused) {
        return tellNotChanged(
            subject.interface, filled(localized("%@ did not let go of it"), {result.owner}));
    }
    if (!result.isChanged) {
        const bool isSession = outcome.wasAsked && settlement.testFlag(Outcome::Untold);
        return tellNotChanged(subject.interface,
            isSession ? localized("Only the session in front of this computer may change it")
                      : localized("Please make sure you have installed the HelperTool"));
    }
    if (!result.owner.isEmpty() && !isSameAddress(readBack, outcome.requested)) {
        if (settlement.testFlag(Outcome::NotBack)) {
            // On no network it may have one for scanning, which says nothing about what it comes
            // back with.
            tellOfOwner(subject.interface, result);
            return std::nullopt;
        }
        return tellNotChanged(subject.interface,
            filled(localized("%@ gives this network an Address of its own. Look for it in the "
                             "network's settings"),
                {result.owner}));
    }
    if (readBack == subject.oldAddress) {
        return tellNotChanged(
            subject.interface, localized("Please make sure your Device is enabled"));
    }
    m_notifier.sendNotificationWithBody(
        filled(localized("%@ Address Changed"), {subject.interface}),
        filled(localized("Your new MAC Address is: %@"), {readBack}));
    tellOfOwner(subject.interface, result);
    return QString();
}

void ChangeMessages::tellOfOwner(const QString &interface, const OwnerParticipation::Result &result)
{
    using Outcome = AddressOwner::Outcome;
    const auto outcomes = result.settlement.value_or(Outcome::Settled);
    const auto tell = [&](Outcome outcome, const QString &title, const QString &body) {
        if (outcomes.testFlag(outcome)) {
            m_notifier.sendNotificationWithBody(filled(title, {interface}), body);
        }
    };
    const QString connectAgain =
        result.owner.isEmpty()
            ? localized("Please connect it again with the program that connects it")
            : filled(localized("Please connect it again with %@"), {result.owner});
    tell(Outcome::NotBack, localized("%@ is not connected again"), connectAgain);
    tell(Outcome::KeepsIPAddress, localized("%@ keeps the IP Address of before"), connectAgain);
    tell(Outcome::KeepsIPv6Address, localized("%@ keeps an IPv6 Address made from the old one"),
        connectAgain);
    tell(Outcome::Untold, localized("%@ Address may be replaced"),
        filled(localized("This session may not control %@. The new Address holds until the "
                         "interface connects the next time"),
            {result.owner}));
}

void ChangeMessages::tellIdentical(const QString &interface)
{
    tellNotChanged(interface, localized("The new Address and the old Address are identical"));
}

void ChangeMessages::tellUndone(const QString &interface)
{
    m_notifier.sendNotificationWithBody(filled(localized("%@ Address was replaced"), {interface}),
        localized("Another program keeps setting an Address of its own. Your rule acts again "
                  "when you join a network"));
}

QString ChangeMessages::tellNotChanged(const QString &interface, const QString &reason)
{
    m_notifier.sendNotificationWithBody(
        filled(localized("%@ Address was not Changed"), {interface}), reason);
    return reason;
}

} // namespace quillon
