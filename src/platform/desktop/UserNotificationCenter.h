// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/Error.h"

#include <QList>
#include <QString>

#include <chrono>
#include <functional>
#include <optional>

namespace quillon {

struct UserNotificationAction
{
    QString label; ///< plain text
    std::function<void()> chosen;
};

struct UserNotificationRequest
{
    QString identifier;
    QString title;
    QString body; ///< plain text; markup in it is shown as it is written
    bool defaultSound = true;
    std::chrono::milliseconds delay{0}; ///< from add() to the moment it is shown
    /// Shown where the desktop can, in this order. One of them is chosen at most, and not once the
    /// message was removed or replaced. A message with actions stays until the user has done with
    /// it.
    QList<UserNotificationAction> actions = {};
};

/// Messages that the desktop shows to the user. Main thread only; callbacks come on the main
/// thread, always in a later turn of its loop.
class UserNotificationCenter
{
public:
    virtual ~UserNotificationCenter() = default;

    /// Asks whether alerts may be shown. `error` is set when that could not be found out; then
    /// `granted` is false and means nothing.
    using AuthorizationReply = std::function<void(bool granted, const std::optional<Error> &error)>;
    virtual void requestAlertAuthorization(AuthorizationReply reply) = 0;

    /// A request whose delay has not passed is dropped. Unknown identifiers are ignored.
    virtual void removePending(const QString &identifier) = 0;
    /// A message on the screen is taken away. Unknown identifiers are ignored.
    virtual void removeDelivered(const QString &identifier) = 0;
    /// `reply` tells, once shown or refused, what went wrong (none: shown).
    virtual void add(const UserNotificationRequest &request,
        std::function<void(const std::optional<Error> &)> reply) = 0;
};

} // namespace quillon
