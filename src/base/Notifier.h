// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QString>

#include <functional>

namespace quillon {

/// What a user may answer to a message.
struct NotificationAction
{
    QString title;
    std::function<void()> chosen; ///< on the main thread, in a turn of its own
};

/// A message that asks for a decision.
struct Question
{
    QString identifier; ///< there is at most one of each
    QString title;
    QString body;
    QList<NotificationAction> actions; ///< at most one of them is ever chosen
};

/// The one channel by which a component tells the user of a result or asks for a decision. Title,
/// body and actions are shown as they are: callers look them up with localized() and fill them in.
class Notifier
{
public:
    virtual ~Notifier() = default;

    /// Safe from every thread.
    virtual void sendNotificationWithBody(const QString &title, const QString &body) = 0;

    /// Shown at once, in place of an earlier one with its identifier, until the user has decided or
    /// it is withdrawn. A desktop may show no actions: title and body say enough. Main thread.
    virtual void ask(const Question &question) = 0;
    /// None of its actions is chosen any more. Unknown identifiers are ignored. Main thread.
    virtual void withdraw(const QString &identifier) = 0;
};

} // namespace quillon
