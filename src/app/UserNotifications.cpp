// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/UserNotifications.h"

#include "base/Log.h"
#include "base/SettingsKeys.h"
#include "platform/Scheduler.h"
#include "platform/SettingsStore.h"
#include "platform/UserNotificationCenter.h"

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
    m_center.requestAlertAuthorization([this](bool granted, const std::optional<Error> &error) {
        if (!granted && !error) {
            m_settings.setBool(keys::displayNotifications, false);
        }
    });
}

void UserNotifications::sendNotificationWithBody(const QString &title, const QString &body)
{
    if (!m_settings.getBool(keys::displayNotifications)) {
        return;
    }
    m_scheduler.onMain([this, title, body] {
        UserNotificationRequest request;
        request.identifier = QString::fromLatin1(title.toUtf8().toBase64());
        request.title = title;
        request.body = body;
        request.delay = notificationDelay;
        m_center.removePending(request.identifier);
        m_center.removeDelivered(request.identifier);
        m_center.add(request, [](const std::optional<Error> &error) {
            if (error) {
                qCWarning(logApp, "Quillon Local Notification failed to send");
            }
        });
    });
}

} // namespace quillon
