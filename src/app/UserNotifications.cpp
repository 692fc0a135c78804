// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/UserNotifications.h"

#include "base/Log.h"
#include "base/SettingsKeys.h"
#include "platform/Scheduler.h"
#include "platform/SettingsStore.h"
#include "platform/desktop/UserNotificationCenter.h"

namespace quillon {

namespace {

constexpr std::chrono::milliseconds notificationDelay{1000};

} // namespace

UserNotifications::UserNotifications(
    SettingsStore &settings, Scheduler &scheduler, UserNotificationCenter &center)
    : m_settings(settings)
    , m_scheduler(scheduler)
    , m_center(center)
{
}

void UserNotifications::setupNotificationCenter()
{
    checkNotificationCenter();
}

void UserNotifications::checkNotificationCenter()
{
    if (!m_settings.getBool(keys::displayNotifications)) {
        return;
    }
    m_center.requestAlertAuthorization(
        [&settings = m_settings](bool granted, const std::optional<Error> &error) {
            if (!granted && !error) {
                settings.setBool(keys::displayNotifications, false);
            }
        });
}

void UserNotifications::sendNotificationWithBody(const QString &title, const QString &body)
{
    if (!m_settings.getBool(keys::displayNotifications)) {
        return;
    }
    // The platform outlives this.
    m_scheduler.onMain([&center = m_center, title, body] {
        UserNotificationRequest request;
        request.identifier = QString::fromLatin1(title.toUtf8().toBase64());
        request.title = title;
        request.body = body;
        request.delay = notificationDelay;
        center.removePending(request.identifier);
        center.removeDelivered(request.identifier);
        center.add(request, [](const std::optional<Error> &error) {
            if (error) {
                qCWarning(logApp, "Quillon Local Notification failed to send");
            }
        });
    });
}

} // namespace quillon
