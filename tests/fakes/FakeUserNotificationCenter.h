// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Scheduler.h"
#include "platform/desktop/UserNotificationCenter.h"

#include <QList>

#include <map>

namespace quillon::test {

/// A desktop that shows messages: what is waiting, what is on the screen, and what was ever shown.
/// At most one message per identifier is waiting, and one is on the screen.
class FakeUserNotificationCenter : public UserNotificationCenter
{
public:
    explicit FakeUserNotificationCenter(Scheduler &scheduler)
        : m_scheduler(scheduler)
    {
    }

    bool granted = true;
    std::optional<Error> authorizationError;
    std::optional<Error> deliveryError;
    int authorizationRequests = 0;
    QList<UserNotificationRequest> onScreen;
    QList<UserNotificationRequest> everShown;

    void requestAlertAuthorization(AuthorizationReply reply) override
    {
        ++authorizationRequests;
        m_scheduler.onMain(
            [this, reply] { reply(granted && !authorizationError, authorizationError); });
    }

    void removePending(const QString &identifier) override
    {
        const auto found = m_pending.find(identifier);
        if (found != m_pending.end()) {
            m_scheduler.cancel(found->second);
            m_pending.erase(found);
        }
    }

    void removeDelivered(const QString &identifier) override
    {
        onScreen.removeIf([&](const auto &shown) { return shown.identifier == identifier; });
    }

    void add(const UserNotificationRequest &request,
        std::function<void(const std::optional<Error> &)> reply) override
    {
        removePending(request.identifier);
        m_pending[request.identifier] =
            m_scheduler.onMainAfter(request.delay, [this, request, reply] {
                m_pending.erase(request.identifier);
                if (!deliveryError) {
                    removeDelivered(request.identifier);
                    onScreen.append(request);
                    everShown.append(request);
                }
                reply(deliveryError);
            });
    }

private:
    Scheduler &m_scheduler;
    std::map<QString, Scheduler::Token> m_pending;
};

} // namespace quillon::test
