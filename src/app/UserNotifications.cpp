// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/UserNotifications.h"

#include "base/Log.h"
#include "base/SettingsKeys.h"
#include "platform/Scheduler.h"
#include "platform/SettingsStore.h"
#include "platform/desktop/UserNotificationCenter.h"

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr std::chrono::milliseconds notificationDelay{1000};

// No Base64 text, so never that of a title.
QString requestIdentifier(const QString &question)
{
    return u"question:"_s + question;
}

void noteFailure(const std::optional<Error> &error)
{
    if (error) {
        qCWarning(logApp, "Quillon Local Notification failed to send");
    }
}

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
        center.add(request, noteFailure);
    });
}

void UserNotifications::ask(const Question &question)
{
    if (!m_settings.getBool(keys::displayNotifications)) {
        return;
    }
    UserNotificationRequest request;
    request.identifier = requestIdentifier(question.identifier);
    request.title = question.title;
    request.body = question.body;
    for (const NotificationAction &action : question.actions) {
        request.actions.append({action.title, action.chosen});
    }
    m_center.add(request, noteFailure);
}

void UserNotifications::withdraw(const QString &identifier)
{
    m_center.removePending(requestIdentifier(identifier));
    m_center.removeDelivered(requestIdentifier(identifier));
}

} // namespace quillon
