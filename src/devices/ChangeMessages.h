// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "devices/OwnerParticipation.h"

#include <QString>

#include <optional>

namespace quillon {

class Notifier;
struct ChangeOutcome;

/// What the user is told of a change of an address. Any thread.
class ChangeMessages
{
public:
    explicit ChangeMessages(Notifier &notifier);

    struct Subject
    {
        QString interface;  ///< for the user, "Wi-Fi"
        QString oldAddress; ///< before the change
    };
    /// Why the address was not changed, "" when it was and the user was told so; none when neither
    /// can be said.
    std::optional<QString> tell(const Subject &subject, const OwnerParticipation::Result &result,
        const ChangeOutcome &outcome);
    /// Nothing was asked of anybody: the interface has that address.
    void tellIdentical(const QString &interface);
    /// Another program keeps setting an address of its own.
    void tellUndone(const QString &interface);

private:
    void tellOfOwner(const QString &interface, const OwnerParticipation::Result &result);
    /// Returns the reason.
    QString tellNotChanged(const QString &interface, const QString &reason);

    Notifier &m_notifier;
};

} // namespace quillon
