// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/Notifier.h"

namespace quillon {

class Scheduler;
class SettingsStore;
class UserNotificationCenter;

/// Shows results to the user as desktop notifications, one per title: a newer message replaces the
/// older one with the same title, a newer question the one with its identifier. Silent while
/// `displayNotifications` is off.
class UserNotifications : public Notifier
{
public:
    UserNotifications(
        SettingsStore &settings, Scheduler &scheduler, UserNotificationCenter &center);

    void setupNotificationCenter();
    /// Asks for permission when notifications are on; a refusal switches them off.
    void checkNotificationCenter();

    void sendNotificationWithBody(const QString &title, const QString &body) override;
    void ask(const Question &question) override;
    void withdraw(const QString &identifier) override;

private:
    SettingsStore &m_settings;
    Scheduler &m_scheduler;
    UserNotificationCenter &m_center;
};

} // namespace quillon
